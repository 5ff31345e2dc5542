// Loading and saving a document, beside plain reads and writes of the same bytes and QScintilla. The files are in the
// page cache. Every subject frees what it made outside the time that is measured.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "support/peers.h"
#include "support/session.h"

namespace vexa::bench {
namespace {

// ---- loading ----

// A user's first load takes memory that the process has not touched yet, and finding a page for it costs as much as the
// load itself; a later one may find memory that is warm. Both are measured, the same for every subject: memory that is
// freed stays with the process, and is given back before each fresh load.
enum class Heap { Fresh, Warm };

// Measures a load that keeps what it has loaded in what it returns.
template <class Load>
void MeasureLoad(benchmark::State& state, Heap heap, Load load) {
    for (auto _ : state) {
        state.PauseTiming();
        if (heap == Heap::Fresh) malloc_trim(0);
        state.ResumeTiming();
        auto loaded = std::make_optional(load());
        benchmark::DoNotOptimize(loaded);
        state.PauseTiming();
        loaded.reset();
        state.ResumeTiming();
    }
}

void LoadScintilla(benchmark::State& state, Heap heap, const std::string& file) {
    Scintilla editor;
    MeasureLoad(state, heap, [&] {
        const Bytes bytes = ReadBytes(HostPathOf(file));
        editor.setText(bytes.view());
        // A new document takes the place of the loaded one when that is no longer used.
        return std::shared_ptr<void>(&editor, [&](void*) { editor.clear(); });
    });
}

void RegisterLoads(const std::string& corpus, const std::string& file) {
    for (const Heap heap : {Heap::Fresh, Heap::Warm}) {
        const auto add = [&](const char* subject, const std::function<void(benchmark::State&)>& run) {
            const std::string work = heap == Heap::Fresh ? "load/" : "load_warm/";
            benchmark::RegisterBenchmark((work + corpus + "/" + subject).c_str(), run)->Unit(benchmark::kMicrosecond);
        };
        add("vexa", [=](benchmark::State& state) {
            MeasureLoad(state, heap, [&] { return std::make_unique<Session>(file); });
        });
        add("vexa_kept", [=](benchmark::State& state) {
            MeasureLoad(state, heap, [&] {
                auto session = std::make_unique<Session>();
                session->options.habits.keepFiles = session->options.habits.largeFiles = true;
                session->load(file);
                return session;
            });
        });
        add("qscintilla", [=](benchmark::State& state) { LoadScintilla(state, heap, file); });
        add("lines",
            [=](benchmark::State& state) { MeasureLoad(state, heap, [&] { return ReadLines(HostPathOf(file)); }); });
        add("read",
            [=](benchmark::State& state) { MeasureLoad(state, heap, [&] { return ReadBytes(HostPathOf(file)); }); });
    }
}

// ---- saving ----

// Measures a write of a file that is put there before each time, or taken away.
void MeasureWrite(benchmark::State& state, const std::string& original, const std::function<bool()>& write) {
    const std::string target = HostPathOf("OUT.TXT");
    for (auto _ : state) {
        state.PauseTiming();
        std::filesystem::remove(target);
        if (!original.empty() && !WriteBytes(target, original, Sync::Yes)) state.SkipWithError("no room");
        state.ResumeTiming();
        if (!write()) state.SkipWithError("not written");
    }
}

void RegisterWrites(const std::string& corpus, const std::string& file) {
    for (const bool isNew : {true, false}) {
        const std::string name = std::string(isNew ? "write_new/" : "write_existing/") + corpus + "/";
        const auto add = [&](const char* subject, const auto& makeWrite) {
            benchmark::RegisterBenchmark((name + subject).c_str(),
                                         [=](benchmark::State& state) {
                                             Session session(file);
                                             session.document.setName("C:\\OUT.TXT");
                                             session.document.write();
                                             const Bytes written = ReadBytes(HostPathOf("OUT.TXT"));
                                             MeasureWrite(state, isNew ? std::string() : std::string(written.view()),
                                                          makeWrite(session, written.view()));
                                         })
                ->Unit(benchmark::kMicrosecond)
                ->UseRealTime();
        };
        add("vexa", [](Session& session, std::string_view) {
            return std::function<bool()>([&session] { return session.document.write(); });
        });
        add("lines_buffered_synced", [=](Session&, std::string_view) {
            return std::function<bool()>(
                [lines = ReadLines(HostPathOf(file))] { return WriteLinesBuffered(HostPathOf("OUT.TXT"), lines); });
        });
        for (const Sync sync : {Sync::No, Sync::Yes}) {
            add(sync == Sync::No ? "one_write" : "one_write_synced", [=](Session&, std::string_view bytes) {
                return std::function<bool()>([=] { return WriteBytes(HostPathOf("OUT.TXT"), bytes, sync); });
            });
        }
    }
}

}  // namespace
}  // namespace vexa::bench

int main(int argc, char** argv) {
    vexa::bench::KeepFreedMemory();
    const vexa::bench::Disk disk;
    for (const auto& [corpus, file] : {std::pair("C", "c.txt"), std::pair("WIDE", "wide.txt")}) {
        vexa::bench::RegisterLoads(corpus, file);
        vexa::bench::RegisterWrites(corpus, file);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
