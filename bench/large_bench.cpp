// Long lines and large files: what a key costs there, up to the painted rows. Long files are the corpus over and over.
#include <benchmark/benchmark.h>

#include <string>

#include "base/file.h"
#include "support/peers.h"
#include "support/session.h"

namespace vexa::bench {
namespace {

constexpr int kRows = 40;
constexpr std::int32_t kLinesOfC = 90'000;

void Put(const std::string& name, const std::string& text) {
    File(name, platform::OpenMode::CreateAlways).write(text);
}

struct LargeSession : Session {
    explicit LargeSession(const std::string& name) {
        options.habits.keepFiles = options.habits.largeFiles = true;
        load(name);
        document.setProfile(profile);
    }
    void paint() {
        for (int row = 0; row < kRows; ++row)
            benchmark::DoNotOptimize(view.render(row));
        benchmark::DoNotOptimize(view.widestColumn());
        benchmark::DoNotOptimize(view.caret());
    }

    const ExtensionProfile profile;
};

// Types at the end of a line of so many characters, in a window full of such lines.
void TypeInLongLine(benchmark::State& state) {
    Disk disk;
    const Bytes c = ReadBytes(HostPathOf("c.txt"));
    std::string line(c.view().substr(0, static_cast<std::size_t>(state.range(0))));
    for (char& character : line)
        if (character == '\n') character = ' ';
    std::string text;
    for (int row = 0; row < kRows; ++row)
        text += line + "\r\n";
    Put("C:\\LONG.TXT", text);
    LargeSession session("LONG.TXT");
    session.view.key({.key = kKeyEnd});
    for (auto _ : state) {
        session.type('x');
        session.paint();
    }
}
BENCHMARK(TypeInLongLine)->Name("type_painted/vexa")->Arg(100)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

struct ThreeMillionLines {
    ThreeMillionLines() {
        const Bytes c = ReadBytes(HostPathOf("c.txt"));
        std::string text;
        for (std::int32_t lines = 0; lines < 3'000'000; lines += kLinesOfC)
            text += c.view();
        Put("C:\\MANY.TXT", text);
    }
    Disk disk;
};

void LoadManyLines(benchmark::State& state) {
    const ThreeMillionLines text;
    for (auto _ : state)
        LargeSession("MANY.TXT");
}
BENCHMARK(LoadManyLines)->Name("load/3000000_lines/vexa")->Unit(benchmark::kMillisecond);

void KeyInManyLines(benchmark::State& state, KeyEvent key) {
    const ThreeMillionLines text;
    LargeSession session("MANY.TXT");
    for (auto _ : state) {
        session.view.key(key);
        session.paint();
        state.PauseTiming();
        while (session.document.history().undo()) {
        }
        session.view.goTo(LineIndex(0), CharColumn(0));
        session.document.setProfile(session.profile);
        state.ResumeTiming();
    }
}
void Register(const char* name, const KeyEvent& key) {
    benchmark::RegisterBenchmark(name, KeyInManyLines, key)->Unit(benchmark::kMicrosecond)->Iterations(20);
}

}  // namespace
}  // namespace vexa::bench

int main(int argc, char** argv) {
    using namespace vexa;
    bench::Register("page_painted/3000000_lines/vexa", {.key = kKeyPageDown});
    bench::Register("end_painted/3000000_lines/vexa", {.key = kKeyEnd, .control = true});
    bench::Register("enter_painted/3000000_lines/vexa", {.key = kKeyEnter});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
