// Searching a tree of source files, as the editor does it: the same source as a program of this machine and as a
// Windows program of 32 bits under Wine. Prints lines "files/WORK/BUILD nanoseconds", each the best of several runs:
// the whole search, and of the worst text the time to the first line found and the longest time without a look at what
// the user does.
//
// usage: file_search BUILD FOLDER PLAIN REGEXP [ROOT]    FOLDER is a path as the editor has it; on this machine, in the
//        folder ROOT as C:
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "search/files/file_search_job.h"
#include "support/silent.h"

#ifndef _WIN32
#include "base/platform/host/sandbox.h"
#endif

namespace vexa::bench {
namespace {

constexpr int kRuns = 5;

using Time = std::chrono::steady_clock::time_point;

double Since(Time begin) {
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - begin).count();
}

// No document is open.
class NoFiles : public SearchedFiles {
  public:
    bool openFileAtLine(const std::string&, std::int32_t) override { return false; }
    const TextDocument* documentOf(const std::string&) const override { return nullptr; }
    std::string_view delimitersOf(const std::string&) override { return {}; }
    EditView* activeView() override { return nullptr; }
    void refreshActive() override {}
};

struct Times {
    double whole = 1e18;
    double firstLine = 1e18;
    double longestPart = 1e18;
};

void Keep(double& best, double time) {
    best = std::min(best, time);
}

Times Measure(const std::string& folder, const std::string& text, bool isRegular) {
    FileSearchRequest request;
    request.folder = folder;
    request.options.setMatchCase(true);
    request.options.setRegularExpression(isRegular);
    request.options.setFindText(text, false);
    Times best;
    for (int run = 0; run < kRuns; ++run) {
        SilentNotices notices;
        SearchOptions options;
        NoFiles files;
        HitList list(files, options, notices);
        FileSearchJob job(list, files, notices);
        const Time begin = std::chrono::steady_clock::now();
        job.start(request);
        double first = 0;
        double longest = 0;
        for (bool goesOn = true; goesOn;) {
            const Time part = std::chrono::steady_clock::now();
            goesOn = job.work();
            longest = std::max(longest, Since(part));
            if (first == 0 && list.hitCount() > 0) first = Since(begin);
        }
        Keep(best.whole, Since(begin));
        Keep(best.firstLine, first);
        Keep(best.longestPart, longest);
        std::fprintf(stderr, "%s: %zu lines, %s\n", text.c_str(), list.hitCount(),
                     std::string(list.rowText(list.rowCount() - 1)).c_str());
    }
    return best;
}

void Print(const char* work, const char* build, double nanoseconds) {
    std::printf("files/%s/%s %.0f\n", work, build, nanoseconds);
}

int Run(int count, char** arguments) {
    if (count < 5) return EXIT_FAILURE;
#ifndef _WIN32
    platform::host::SetSandboxRoot(arguments[5]);
#endif
    const char* const build = arguments[1];
    const Times plain = Measure(arguments[2], arguments[3], false);
    const Times regular = Measure(arguments[2], arguments[4], true);
    Print("plain", build, plain.whole);
    Print("regexp", build, regular.whole);
    Print("first_line", build, std::max(plain.firstLine, regular.firstLine));
    Print("longest_part", build, std::max(plain.longestPart, regular.longestPart));
    return EXIT_SUCCESS;
}

}  // namespace
}  // namespace vexa::bench

int main(int count, char** arguments) {
    return vexa::bench::Run(count, arguments);
}
