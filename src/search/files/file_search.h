// Searches the files of a folder for the lines that have a match, a little at a time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "search/files/block_search.h"
#include "search/files/folder_walk.h"
#include "search/files/line_blocks.h"
#include "search/files/searched_files.h"

namespace vexa {

struct FileSearchRequest {
    SearchOptions options;
    std::string folder;  // a full path
    std::string patterns;
    bool subfolders = true;
};

// A line with its first match.
struct FileHit {
    const std::string& path;
    LineIndex line;
    LineMatch match;
    std::string_view text;
};

class HitTaker {
  public:
    virtual ~HitTaker() = default;
    // False when no more are taken.
    virtual bool take(const FileHit& hit) = 0;
};

struct FileSearchCounts {
    std::int32_t files = 0;  // searched
    std::int32_t filesWithHits = 0;
    std::int32_t hits = 0;
    std::int32_t unreadable = 0;  // files and folders
};

// Files that are open are searched as they are in memory; of the others, binary ones are passed over.
class FileSearch {
  public:
    FileSearch(const FileSearchRequest& request, SearchedFiles& files, HitTaker& taker)
        : files_(files),
          taker_(taker),
          walk_(request.folder, request.patterns, request.subfolders),
          search_(request.options),
          wholeWord_(request.options.wholeWord()) {}

    // Does a part that takes a few milliseconds at most; false when all is done or no more hits are taken.
    bool step() { return (this->*next_)(); }
    FileSearchCounts counts() const;
    // Whether it ended because no more hits were taken.
    bool isCutShort() const { return isCutShort_; }

  private:
    bool findFile();
    bool searchBlock();
    bool searchDocument();
    bool take(LineIndex line, const LineMatch& match, std::string_view text);

    SearchedFiles& files_;
    HitTaker& taker_;
    FolderWalk walk_;
    BlockSearch search_;
    const bool wholeWord_;
    LineBlocks blocks_;
    std::uint64_t size_ = 0;  // of the file
    bool (FileSearch::*next_)() = &FileSearch::findFile;
    LineIndex line_;  // the next of the file or document
    FileSearchCounts counts_;
    bool fileHasHits_ = false;
    bool isCutShort_ = false;
};

}  // namespace vexa
