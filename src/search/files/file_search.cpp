#include "search/files/file_search.h"

#include <algorithm>

namespace vexa {

namespace {

constexpr std::int32_t kLinesAtOnce = 10'000;

std::int32_t LinesIn(const char* begin, const char* end) {
    return static_cast<std::int32_t>(std::count(begin, end, '\n'));
}

}  // namespace

FileSearchCounts FileSearch::counts() const {
    FileSearchCounts counts = counts_;
    counts.unreadable += walk_.unreadable();
    return counts;
}

bool FileSearch::findFile() {
    const FolderWalk::Step step = walk_.step();
    if (step != FolderWalk::Step::File) return step != FolderWalk::Step::End;
    line_ = LineIndex(0);
    fileHasHits_ = false;
    if (wholeWord_) search_.lines().setDelimiters(files_.delimitersOf(walk_.file()));
    const bool isOpen = blocks_.open(walk_.file());
    size_ = blocks_.fileSize();
    if (files_.documentOf(walk_.file(), size_)) {
        blocks_.leave();
        next_ = &FileSearch::searchDocument;
    } else if (isOpen) {
        next_ = &FileSearch::searchBlock;
    } else {
        ++counts_.unreadable;
        return true;
    }
    ++counts_.files;
    return true;
}

bool FileSearch::searchBlock() {
    if (!blocks_.next()) {
        if (blocks_.state() == LineBlocks::State::Failed) ++counts_.unreadable;
        next_ = &FileSearch::findFile;
        return true;
    }
    const char* counted = blocks_.begin();
    char* from = blocks_.begin();
    while (const auto found = search_.find(from, blocks_.end())) {
        line_ += LinesIn(counted, found->begin);
        counted = found->begin;
        from = found->next;
        if (!take(line_, found->match, found->text())) return false;
    }
    line_ += LinesIn(counted, blocks_.end());
    return true;
}

// The document may have been changed or closed since the last part.
bool FileSearch::searchDocument() {
    const TextDocument* document = files_.documentOf(walk_.file(), size_);
    const LineIndex last = document ? document->lastLine(LastUsed::Text) : LineIndex(-1);
    for (std::int32_t left = kLinesAtOnce; left > 0 && line_ <= last; --left, ++line_) {
        const std::string_view text = document->text(line_);
        const auto match = search_.lines().find(text, CharColumn(0));
        if (match && !take(line_, *match, text)) return false;
    }
    if (line_ > last) next_ = &FileSearch::findFile;
    return true;
}

bool FileSearch::take(LineIndex line, const LineMatch& match, std::string_view text) {
    isCutShort_ = !taker_.take({walk_.file(), line, match, text});
    if (isCutShort_) return false;
    ++counts_.hits;
    if (!fileHasHits_) ++counts_.filesWithHits;
    fileHasHits_ = true;
    return true;
}

}  // namespace vexa
