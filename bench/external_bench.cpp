// What external programs have printed, on its way into the lists: loading beside reading and cutting the same bytes;
// telling errors and warnings beside the engine's time for the same patterns; and stepping to an error that is not
// there. Times are of the whole work; bytes_line is what the list takes for a line besides its text.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/file.h"
#include "external/error_line_parser.h"
#include "external/message_list.h"
#include "external/output_list.h"
#include "support/fail.h"
#include "support/session.h"
#include "support/silent.h"

namespace vexa::bench {
namespace {

constexpr std::size_t kLoadedLines = 100'000;
constexpr std::size_t kLineLength = 80;
constexpr std::size_t kClassifiedLines = 1'000'000;
constexpr const char* kCapture = "C:\\capture.txt";

// As GCC, its linker and make print them.
constexpr const char* kCompilerLines[] = {
    "gcc -O2 -g -Wall -Wextra -Iinclude -c -o build/driver/session.o driver/session.c",
    "In file included from include/linux/list.h:9,",
    "                 from driver/session.c:24:",
    "driver/session.c: In function 'session_open':",
    "driver/session.c:118:31: warning: unused variable 'flags' [-Wunused-variable]",
    "  118 |         unsigned long         flags = 0;",
    "      |                               ^~~~~",
    "driver/session.c:204:9: error: 'struct session' has no member named 'lock'",
    "  204 |         spin_lock(&session->lock);",
    "      |         ^~~~~~~~~",
    "include/linux/spinlock.h:333:29: note: in definition of macro 'spin_lock'",
    "make[2]: *** [Makefile:79: build/driver/session.o] Error 1",
};

class NoOpener : public FileOpener {
  public:
    bool openFileAtLine(const std::string&, std::int32_t) override { return false; }
};

void WriteCapture(std::size_t lines, std::string_view line) {
    std::string bytes;
    for (std::size_t i = 0; i < lines; ++i)
        bytes.append(line).append("\r\n");
    if (!WriteWholeFile(kCapture, bytes)) Fail("The capture file cannot be written.");
}

// ---- loading ----

void LoadIntoList(benchmark::State& state) {
    SilentNotices notices;
    NoOpener opener;
    WriteCapture(kLoadedLines, std::string(kLineLength, 'x'));
    for (auto _ : state) {
        OutputList list(opener, notices);
        if (!list.LoadCapture(kCapture, {}, {})) return state.SkipWithError("it was not loaded");
    }
    OutputList list(opener, notices);
    const double empty = AllocatedBytes();
    list.LoadCapture(kCapture, {}, {});
    state.counters["bytes_line"] = (AllocatedBytes() - empty) / kLoadedLines - kLineLength;
}

void ReadAndCut(benchmark::State& state) {
    WriteCapture(kLoadedLines, std::string(kLineLength, 'x'));
    for (auto _ : state) {
        const std::string bytes = File(kCapture, platform::OpenMode::Read).readAll(SIZE_MAX).value_or(std::string());
        std::vector<std::string_view> lines;
        for (std::size_t begin = 0, end; (end = bytes.find("\r\n", begin)) != std::string::npos; begin = end + 2)
            lines.emplace_back(bytes.data() + begin, end - begin);
        benchmark::DoNotOptimize(lines.data());
        if (lines.size() != kLoadedLines) return state.SkipWithError("lines are missing");
    }
}

// ---- classifying ----

template <typename Look>
void LookAtLines(benchmark::State& state, Look look) {
    for (auto _ : state) {
        for (std::size_t i = 0; i < kClassifiedLines; ++i)
            benchmark::DoNotOptimize(look(std::string_view(kCompilerLines[i % std::size(kCompilerLines)])));
    }
}

void ClassifyWithParser(benchmark::State& state) {
    ErrorLineParser parser;
    LookAtLines(state, [&parser](std::string_view line) {
        parser.Parse("session.c", line);
        return parser.level();
    });
}

// The two patterns alone that tell the level, on every line.
void ClassifyWithEngine(benchmark::State& state) {
    const auto error = RegExp::Compile("[ (]*[^a-z]ERROR[^a-z][ :!)]*|^ERROR[^a-z]");
    const auto warning = RegExp::Compile("[ (]*[^a-z]WARNING[^a-z][ :!)]*|^WARNING[^a-z]");
    const auto word = RegExp::Compile("[ (]*[^a-z]LINE[^a-z][ (:!)]*[0-9]+");
    const auto number = RegExp::Compile("[ (:]+[0-9]+[ ):,]+");
    const auto matches = [](RegExp& pattern, std::string_view line) {
        return RegExp::Execute(&pattern, line, LetterCase::Ignored);
    };
    LookAtLines(state, [&](std::string_view line) {
        if (!matches(*error, line) && !matches(*warning, line)) return false;
        return matches(*word, line) || matches(*number, line);
    });
}

// ---- stepping ----

class AnyDocument : public SourceDocument {
  public:
    std::string path() const override { return "C:\\session.c"; }
    bool isModified() const override { return false; }
    bool save() override { return true; }
    void moveCaret(LineIndex) override {}
    void activate() override {}
    bool isActive() const override { return true; }
};

void NextErrorThatIsNotThere(benchmark::State& state) {
    SilentNotices notices;
    NoOpener opener;
    AnyDocument document;
    WriteCapture(kLoadedLines, kCompilerLines[0]);
    MessageList list(opener, notices);
    list.Reset(&document);
    list.Load(kCapture, {}, "C:");
    for (auto _ : state) {
        list.selectRow(0);
        list.NextError();
        if (list.selectedRow() != list.rowCount() - 1) return state.SkipWithError("it stopped early");
    }
}

}  // namespace
}  // namespace vexa::bench

int main(int argc, char** argv) {
    using namespace vexa::bench;
    const Disk disk;
    const auto add = [](const char* name, void (*run)(benchmark::State&)) {
        benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMicrosecond);
    };
    add("load_output/vexa", LoadIntoList);
    add("load_output/read_and_cut", ReadAndCut);
    add("classify/vexa", ClassifyWithParser);
    add("classify/engine", ClassifyWithEngine);
    add("next_error/vexa", NextErrorThatIsNotThere);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
