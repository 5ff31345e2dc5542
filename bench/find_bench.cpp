// Find and replace over whole documents: replacing every "int" of C code by "INTEGER" with undo recorded, and taking
// that back, beside vim and emacs; and looking for what is not there, beside the search engine alone on the same lines.
// Times are of the whole document; ns_hit and ns_line are nanoseconds a replacement and a line.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "regexp/plain_search.h"
#include "regexp/regexp.h"
#include "search/find_commands.h"
#include "support/fail.h"
#include "support/session.h"
#include "support/silent.h"

namespace vexa::bench {
namespace {

// A loaded document with everything that searches in it.
struct SearchSession : Session {
    explicit SearchSession(const std::string& name) : Session(name) {}

    PatientWatch watch;
    SearchOptions searchOptions;
    Finder finder{searchOptions, notices, watch};
};

template <typename Work>
double Seconds(Work work) {
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
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
    SearchSession session("c.txt");
    session.searchOptions.setMatchCase(true);
    session.searchOptions.setReplaceAll(true);
    session.searchOptions.setFindText("int", false);
    session.searchOptions.setReplaceText("INTEGER");
    ReplaceTimes times;
    times.replace = Seconds([&] { times.hits = session.finder.replace(session.view); });
    times.undo = Seconds([&] { session.view.undo(); });
    return times;
}

// Of an editor that prints the seconds of replacing and of undoing.
ReplaceTimes ReplaceIn(const std::string& command) {
    ReplaceTimes times;
    FILE* editor = popen((command + " 2>&1").c_str(), "r");
    if (editor == nullptr || std::fscanf(editor, "%lf %lf", &times.replace, &times.undo) != 2)
        Fail("This printed no times: " + command);
    pclose(editor);
    return times;
}

ReplaceTimes ReplaceInVim() {
    return ReplaceIn(
        "vim -u NONE -N -i NONE -n -es -c 'set noswapfile ul=1000' -c 'let t = reltime()' "
        "-c '%s/int/INTEGER/g' -c 'let a = reltimefloat(reltime(t))' -c 'let t = reltime()' -c undo "
        "-c 'let b = reltimefloat(reltime(t))' -c 'verbose echo printf(\"%.9f %.9f\", a, b)' -c 'qa!' '" +
        CorpusPath("c.txt") + "'");
}

ReplaceTimes ReplaceInEmacs() {
    return ReplaceIn(
        "emacs -Q --batch --insert '" + CorpusPath("c.txt") +
        "' --eval '(progn (buffer-enable-undo) (undo-boundary) (goto-char (point-min))"
        " (let* ((case-fold-search nil) (start (float-time)) (undone nil)"
        " (replaced (progn (while (search-forward \"int\" nil t) (replace-match \"INTEGER\" t t)) (float-time))))"
        " (undo-boundary) (primitive-undo 1 (cdr buffer-undo-list)) (setq undone (float-time))"
        " (princ (format \"%.9f %.9f\" (- replaced start) (- undone replaced)))))'");
}

template <typename Replace>
void RegisterReplace(const std::string& editor, Replace replace) {
    const double hits = ReplaceInVexa().hits;
    const auto registerOne = [&](const std::string& work, double ReplaceTimes::*time) {
        benchmark::RegisterBenchmark((work + "/C/" + editor).c_str(),
                                     [=](benchmark::State& state) {
                                         for (auto _ : state) {
                                             state.SetIterationTime(replace().*time);
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
    SearchSession session(file);
    session.searchOptions.setMatchCase(absent.matchCase);
    session.searchOptions.setRegularExpression(absent.regularExpression);
    session.searchOptions.setFindText(absent.text, false);
    for (auto _ : state) {
        if (session.finder.findNext(session.view)) return state.SkipWithError("it is there");
    }
    Report(state, "ns_line", session.document.lastLine(LastUsed::Text).value + 1);
}

template <typename Search>
void SearchLines(benchmark::State& state, const TextDocument& document, Search search) {
    std::vector<std::string_view> lines;
    for (LineIndex line; line <= document.lastLine(LastUsed::Text); ++line)
        lines.push_back(document.text(line));
    for (auto _ : state) {
        for (const std::string_view line : lines)
            benchmark::DoNotOptimize(search(line));
    }
    Report(state, "ns_line", static_cast<double>(lines.size()));
}

void FindWithEngine(benchmark::State& state, const char* file, const Absent& absent) {
    const Session session(file);
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
}  // namespace vexa::bench

int main(int argc, char** argv) {
    const vexa::bench::Disk disk;
    vexa::bench::RegisterReplace("vexa", vexa::bench::ReplaceInVexa);
    vexa::bench::RegisterReplace("vim", vexa::bench::ReplaceInVim);
    vexa::bench::RegisterReplace("emacs", vexa::bench::ReplaceInEmacs);
    vexa::bench::RegisterAbsent("C", "c.txt");
    vexa::bench::RegisterAbsent("WIDE", "wide.txt");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
