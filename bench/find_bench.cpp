// Find and replace over whole documents: replacing every "int" of C code by "INTEGER" with undo recorded, taking that
// back, and looking for what is not there, each against vim or against the search engine alone on the same lines. Times
// are of the whole document; ns_hit and ns_line are nanoseconds a replacement and a line. The corpora are files of
// lines, in the folder that the environment variable VEXA_CORPORA names.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/platform/host/sandbox.h"
#include "search/find_commands.h"
#include "search/plain_search.h"
#include "search/regexp.h"

namespace vexa {
namespace {

class SilentNotices : public Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    BoxAnswer box(std::string_view, std::string_view, BoxButtons) override { return BoxAnswer::Ok; }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

class PatientWatch : public SearchWatch {
  public:
    std::int64_t milliseconds() override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now().time_since_epoch()).count();
    }
    bool stopAsked() override { return false; }
    using Clock = std::chrono::steady_clock;
};

std::string CorpusPath(const std::string& name) {
    const char* folder = std::getenv("VEXA_CORPORA");
    return std::string(folder != nullptr ? folder : ".") + "/" + name;
}

// Makes the corpora drive C of the sandbox that the program sees.
class Disk {
  public:
    Disk() : root_(std::filesystem::temp_directory_path() / ("vexa-find-bench-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(root_);
        std::filesystem::create_directory_symlink(std::filesystem::absolute(CorpusPath("")), root_ / "c");
        platform::host::SetSandboxRoot(root_.string());
    }
    ~Disk() { std::filesystem::remove_all(root_); }

  private:
    std::filesystem::path root_;
};

// A loaded document with everything that searches in it.
struct Session {
    explicit Session(const std::string& name) {
        document.setName("C:\\" + name);
        loaded = document.load();
        view.resize(40, 100);
    }

    SilentNotices notices;
    PatientWatch watch;
    EditorOptions editorOptions;
    TextDocument document{editorOptions, notices};
    EditView view{document, editorOptions, notices};
    SearchOptions options;
    Finder finder{options, notices, watch};
    bool loaded = false;
};

template <typename Work>
double Seconds(Work work) {
    const auto start = PatientWatch::Clock::now();
    work();
    return std::chrono::duration<double>(PatientWatch::Clock::now() - start).count();
}

void Report(benchmark::State& state, const char* unit, double count) {
    using benchmark::Counter;
    state.counters[unit] = Counter(count / 1e9, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

// ---- replacing ----

struct ReplaceTimes {
    double replace = 0;
    double undo = 0;
    double hits = 0;
};

ReplaceTimes ReplaceInVexa() {
    Session session("c.txt");
    session.options.setMatchCase(true);
    session.options.setReplaceAll(true);
    session.options.setFindText("int", false);
    session.options.setReplaceText("INTEGER");
    session.finder.attach(&session.view);
    ReplaceTimes times;
    times.replace = Seconds([&] { times.hits = session.finder.replace(); });
    times.undo = Seconds([&] { session.view.undo(); });
    return times;
}

ReplaceTimes ReplaceInVim() {
    const std::string command =
        "vim -u NONE -N -i NONE -n -es -c 'set noswapfile ul=1000' -c 'let t = reltime()' "
        "-c '%s/int/INTEGER/g' -c 'let a = reltimefloat(reltime(t))' -c 'let t = reltime()' -c undo "
        "-c 'let b = reltimefloat(reltime(t))' -c 'verbose echo printf(\"%.9f %.9f\", a, b)' -c "
        "'qa!' '" +
        CorpusPath("c.txt") + "' 2>&1";
    ReplaceTimes times;
    FILE* vim = popen(command.c_str(), "r");
    if (vim == nullptr) return times;
    if (std::fscanf(vim, "%lf %lf", &times.replace, &times.undo) != 2) times = {};
    pclose(vim);
    return times;
}

template <typename Replace>
void RegisterReplace(const std::string& editor, Replace replace) {
    const double hits = ReplaceInVexa().hits;
    const auto registerOne = [&](const std::string& work, double ReplaceTimes::*time) {
        benchmark::RegisterBenchmark((work + "/C/" + editor).c_str(),
                                     [=](benchmark::State& state) {
                                         for (auto _ : state) {
                                             const double seconds = replace().*time;
                                             if (seconds == 0) return state.SkipWithError("not run");
                                             state.SetIterationTime(seconds);
                                         }
                                         Report(state, "ns_hit", hits);
                                         state.counters["hits"] = hits;
                                     })
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    };
    registerOne("replace_all", &ReplaceTimes::replace);
    registerOne("undo_replace_all", &ReplaceTimes::undo);
}

// ---- what is not there ----

struct Absent {
    const char* name;
    const char* text;
    bool matchCase;
    bool regularExpression;
};
const Absent kAbsent[] = {
    {"plain", "no such text", true, false},
    {"plain_nocase", "no such text", false, false},
    {"regexp_literal", "pthread_rwlock_none", true, true},
    {"regexp_set", "[A-Z_]+_HXQ", true, true},
    {"regexp_alternatives", "structx|unionx|enumx", true, true},
};

void FindInDocument(benchmark::State& state, const char* file, const Absent& absent) {
    Session session(file);
    if (!session.loaded) return state.SkipWithError("no corpus");
    session.options.setMatchCase(absent.matchCase);
    session.options.setRegularExpression(absent.regularExpression);
    session.options.setFindText(absent.text, false);
    session.finder.attach(&session.view);
    for (auto _ : state) {
        if (session.finder.findNext()) return state.SkipWithError("it is there");
    }
    Report(state, "ns_line", session.document.lineCount(LastUsed::Text) + 1);
}

template <typename Search>
void SearchLines(benchmark::State& state, const TextDocument& document, Search search) {
    std::vector<std::string_view> lines;
    for (LineIndex line; line.value <= document.lineCount(LastUsed::Text); ++line)
        lines.push_back(document.text(line));
    for (auto _ : state) {
        for (const std::string_view line : lines)
            benchmark::DoNotOptimize(search(line));
    }
    Report(state, "ns_line", static_cast<double>(lines.size()));
}

void FindWithEngine(benchmark::State& state, const char* file, const Absent& absent) {
    const Session session(file);
    if (!session.loaded) return state.SkipWithError("no corpus");
    if (absent.regularExpression) {
        SetRegExpIgnoreCase(!absent.matchCase);
        const std::unique_ptr<RegExp> program = RegExp::Compile(absent.text);
        SearchLines(state, session.document,
                    [&program](std::string_view line) { return RegExp::Execute(program.get(), line); });
    } else {
        const PlainSearch search(absent.text, absent.matchCase ? LetterCase::Sensitive : LetterCase::Ignored);
        SearchLines(state, session.document, [&search](std::string_view line) { return search.find(line); });
    }
}

void RegisterAbsent(const char* corpus, const char* file) {
    for (const Absent& absent : kAbsent) {
        const std::string name = std::string("not_there/") + corpus + "/" + absent.name;
        const auto add = [&](const char* searcher, auto run) {
            benchmark::RegisterBenchmark((name + searcher).c_str(), [=](benchmark::State& state) {
                run(state, file, absent);
            })->Unit(benchmark::kMicrosecond);
        };
        add("/vexa", FindInDocument);
        add("/engine", FindWithEngine);
    }
}

}  // namespace
}  // namespace vexa

int main(int argc, char** argv) {
    const vexa::Disk disk;
    vexa::RegisterReplace("vexa", vexa::ReplaceInVexa);
    vexa::RegisterReplace("vim", vexa::ReplaceInVim);
    vexa::RegisterAbsent("C", "c.txt");
    vexa::RegisterAbsent("WIDE", "wide.txt");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
