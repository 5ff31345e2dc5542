// Searching a tree of source files, as the editor does it: the same source as a program of this machine and as a
// Windows program of 32 bits under Wine. Prints lines "files/WORK/BUILD nanoseconds" for each of several runs in turns:
// the whole search, the time to its first line and its longest time without a look at what the user does; and, as a
// peer, opening and reading the same files by the same calls.
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

constexpr int kRuns = 3;

using Time = std::chrono::steady_clock::time_point;

double Since(Time begin) {
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - begin).count();
}

// No document is open.
class NoFiles : public SearchedFiles {
  public:
    bool openFileAtLine(const std::string&, std::int32_t) override { return false; }
    const TextDocument* documentOf(const std::string&, std::uint64_t) const override { return nullptr; }
    std::string_view delimitersOf(const std::string&) override { return {}; }
    EditView* activeView() override { return nullptr; }
    void refreshActive() override {}
};

struct Peer {
    const char* build;
    std::string folder;
};

void Print(const Peer& peer, const std::string& work, double nanoseconds) {
    std::printf("files/%s/%s %.0f\n", work.c_str(), peer.build, nanoseconds);
}

void Search(const Peer& peer, const std::string& work, const std::string& text) {
    FileSearchRequest request;
    request.folder = peer.folder;
    request.options.setMatchCase(true);
    request.options.setRegularExpression(work == "regexp");
    request.options.setFindText(text, false);
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
    Print(peer, work, Since(begin));
    Print(peer, work + "_first_line", first);
    Print(peer, work + "_longest_part", longest);
    std::fprintf(stderr, "%s: %s\n", text.c_str(), std::string(list.rowText(list.rowCount() - 1)).c_str());
}

void Read(const Peer& peer) {
    const Time begin = std::chrono::steady_clock::now();
    FolderWalk walk(peer.folder, "", true);
    LineBlocks blocks;
    for (auto step = walk.step(); step != FolderWalk::Step::End; step = walk.step()) {
        if (step != FolderWalk::Step::File || !blocks.open(walk.file())) continue;
        while (blocks.next()) {
        }
    }
    Print(peer, "read", Since(begin));
}

int Run(int count, char** arguments) {
    if (count < 5) return EXIT_FAILURE;
#ifndef _WIN32
    platform::host::SetSandboxRoot(arguments[5]);
#endif
    const Peer peer{arguments[1], arguments[2]};
    for (int run = 0; run < kRuns; ++run) {
        Search(peer, "plain", arguments[3]);
        Search(peer, "regexp", arguments[4]);
        Read(peer);
    }
    return EXIT_SUCCESS;
}

}  // namespace
}  // namespace vexa::bench

int main(int count, char** arguments) {
    return vexa::bench::Run(count, arguments);
}
