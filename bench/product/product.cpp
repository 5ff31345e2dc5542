// What users wait for, on 90,000 lines of C: the same source as a program of this machine and as a Windows program of
// 32 bits under Wine, whose C library and processor instructions are others. Prints lines "product/WORK/BUILD
// nanoseconds"; each is the best of several runs, so that what else the machine does counts as little as can be.
//
// usage: product BUILD FILE [ROOT]    FILE is a path as the editor has it; on this machine, in the folder ROOT as C:
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "language/line_tokenizer.h"
#include "search/find_commands.h"
#include "support/silent.h"

#ifndef _WIN32
#include "base/platform/host/sandbox.h"
#endif

namespace vexa::bench {
namespace {

constexpr int kRuns = 15;

void Require(bool held, const char* what) {
    if (held) return;
    std::fprintf(stderr, "%s failed\n", what);
    std::exit(EXIT_FAILURE);
}

// A document of the file, made anew for each run.
struct Session {
    explicit Session(const std::string& path) { document.setName(path); }
    void load() { Require(document.load(), "loading"); }
    void lookFor(const char* text, bool isRegularExpression) {
        load();
        searchOptions.setMatchCase(true);
        searchOptions.setRegularExpression(isRegularExpression);
        searchOptions.setFindText(text, false);
    }
    void prepareReplaceAll() {
        lookFor("int", false);
        searchOptions.setReplaceAll(true);
        searchOptions.setReplaceText("INTEGER");
    }

    SilentNotices notices;
    PatientWatch watch;
    EditorOptions options;
    SearchOptions searchOptions;
    TextDocument document{options, notices};
    EditView view{document, options, notices};
    Finder finder{searchOptions, notices, watch};
};

std::size_t CutTokens(const TextDocument& document) {
    static const TokenRules rules{ExtensionProfile()};
    std::size_t tokens = 0;
    const LineIndex last = document.lastLine(LastUsed::Text);
    for (LineIndex line; line <= last; ++line) {
        LineTokenizer tokenizer(rules, document.text(line));
        while (tokenizer.NextToken().kind != TokenKind::EndOfLine)
            ++tokens;
    }
    return tokens;
}

struct Work {
    const char* name;
    std::function<void(Session&)> prepare;
    std::function<void(Session&)> perform;  // this alone is measured
};

const Work kWorks[] = {
    {"load", [](Session&) {}, [](Session& s) { s.load(); }},
    {"tokens", [](Session& s) { s.load(); }, [](Session& s) { Require(CutTokens(s.document) > 0, "cutting"); }},
    {"find_plain", [](Session& s) { s.lookFor("no such text", false); },
     [](Session& s) { Require(!s.finder.findNext(s.view), "looking for what is not there"); }},
    {"find_regexp", [](Session& s) { s.lookFor("[A-Z_]+_HXQ", true); },
     [](Session& s) { Require(!s.finder.findNext(s.view), "looking for what is not there"); }},
    {"replace_all", [](Session& s) { s.prepareReplaceAll(); },
     [](Session& s) { Require(s.finder.replace(s.view) > 0, "replacing"); }},
    {"undo_replace_all",
     [](Session& s) {
         s.prepareReplaceAll();
         s.finder.replace(s.view);
     },
     [](Session& s) { Require(s.view.undo(), "undoing"); }},
};

double Nanoseconds(const Work& work, const std::string& path) {
    Session session(path);
    work.prepare(session);
    const auto start = Clock::now();
    work.perform(session);
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

}  // namespace
}  // namespace vexa::bench

int main(int argc, char** argv) {
    if (argc < 3) return EXIT_FAILURE;
#ifndef _WIN32
    vexa::platform::host::SetSandboxRoot(argc > 3 ? argv[3] : ".");
#endif
    for (const vexa::bench::Work& work : vexa::bench::kWorks) {
        double best = vexa::bench::Nanoseconds(work, argv[2]);
        for (int run = 1; run < vexa::bench::kRuns; ++run)
            best = std::min(best, vexa::bench::Nanoseconds(work, argv[2]));
        std::printf("product/%s/%s %.0f\n", work.name, argv[1], best);
    }
}
