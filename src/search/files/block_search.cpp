#include "search/files/block_search.h"

#include <cstring>

namespace vexa {

namespace {

// A NUL stands at a position of the text while this lives.
class TemporaryEnd {
  public:
    explicit TemporaryEnd(char* position) : position_(position), character_(*position) { *position = '\0'; }
    ~TemporaryEnd() { *position_ = character_; }
    TemporaryEnd(const TemporaryEnd&) = delete;
    TemporaryEnd& operator=(const TemporaryEnd&) = delete;

  private:
    char* const position_;
    const char character_;
};

// The line of a text that a character, or the end, of the text belongs to; the text begins with a line.
FoundLine LineAt(char* begin, char* end, const char* character) {
    const std::string_view before(begin, static_cast<std::size_t>(character - begin));
    FoundLine line{begin + (before.rfind('\n') + 1), end, end, {}};
    char* const from = begin + before.size();
    if (auto* const found = static_cast<char*>(std::memchr(from, '\n', static_cast<std::size_t>(end - from)))) {
        line.end = found;
        line.next = found + 1;
    }
    if (line.next != line.end && line.end != line.begin && line.end[-1] == '\r') --line.end;
    return line;
}

}  // namespace

BlockSearch::BlockSearch(const SearchOptions& options) : lines_(options, {}) {
    const LetterCase letterCase = options.matchCase() ? LetterCase::Sensitive : LetterCase::Ignored;
    const std::string text = options.searchedText();
    if (!options.regularExpression()) {
        plain_ = PlainSearch(text, letterCase);
    } else if (const auto program = RegExp::Compile(text.c_str())) {
        candidates_ = std::make_unique<const CandidateSearch>(*program, letterCase);
    }
}

const char* BlockSearch::findCandidate(const char* begin, const char* end) const {
    if (candidates_) return candidates_->find(begin, end);
    return plain_.empty() ? nullptr : plain_.find({begin, static_cast<std::size_t>(end - begin)});
}

std::optional<FoundLine> BlockSearch::find(char* begin, char* end) {
    const TemporaryEnd textEnd(end);
    while (begin < end) {
        const char* const candidate = findCandidate(begin, end);
        if (candidate == nullptr) return std::nullopt;
        FoundLine line = LineAt(begin, end, candidate);
        if (line.begin == end) return std::nullopt;
        const TemporaryEnd lineEnd(line.end);
        if (const auto match = lines_.find(line.text(), CharColumn(0))) {
            line.match = *match;
            return line;
        }
        begin = line.next;
    }
    return std::nullopt;
}

}  // namespace vexa
