// The search for the find text in one line after the other.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/units.h"
#include "document/text/text_document.h"
#include "regexp/plain_search.h"
#include "regexp/regexp.h"
#include "search/search_options.h"

namespace vexa {

struct LineMatch {
    CharColumn column;
    std::int32_t length = 0;  // characters

    bool operator==(const LineMatch&) const = default;
};

// Those of its profile; none without one.
std::string_view DelimitersOf(const TextDocument& document);

// Prepared once for many lines. Each search looks at what a line has from a column on as if the line began there: "^"
// matches at that column, and it is the start of a word. With the habit of groups in replacements the line begins where
// it does. An empty find text, and a pattern that does not compile, are found nowhere.
//
// A whole word is looked for at the first occurrence alone: where that is part of a longer word, the line has no match.
// After the word the delimiters of the document's profile count as a word's end, before it only blanks and tabs do.
// With the habit of going around, a whole word is any occurrence that neither begins nor ends inside a word.
class LineSearch {
  public:
    // The characters, beside blanks and tabs, that may follow a whole word.
    LineSearch(const SearchOptions& options, std::string_view delimiters);
    void setDelimiters(std::string_view delimiters) { delimiters_ = delimiters; }

    bool isNowhere() const { return isNowhere_; }
    // The lines after a line whose text must follow it, each after a "\n", for the find text to be found in it.
    std::int32_t furtherLines() const { return furtherLines_; }
    // What is to be put in for the match that was found last, whose text must still be there.
    std::string replacement() const;

    // The first match at or after a column; none where the text ends before it. A NUL must follow the text.
    std::optional<LineMatch> find(std::string_view text, CharColumn from);
    // The first match of a regular expression that begins after a column of the text, with what stands at that column
    // seen as part of the line: neither "^" nor the start of a word are found where they are not.
    std::optional<LineMatch> findAfter(std::string_view text, CharColumn column);
    // The next match after a replacement that ends at a column: an empty one there would be found for ever.
    std::optional<LineMatch> findBehind(std::string_view text, CharColumn replacementEnd);

  private:
    // Both are called for every line, and most lines have no match: a flag costs half of what an optional does.
    bool findPlain(std::string_view subject, LineMatch& match) const;
    bool findRegular(std::string_view subject, std::size_t from, LineMatch& match) const;
    bool findWord(std::string_view text, std::size_t from, LineMatch& match) const;
    bool isWholeWord(std::string_view subject, std::size_t at) const;

    const Habits& habits_;
    const std::string text_;
    const std::string replacement_;
    std::string delimiters_;
    const bool regular_;
    const bool wholeWord_;
    const bool seesWholeLine_;  // also where the search begins in its middle
    const LetterCase letterCase_;
    bool isNowhere_ = false;  // worked out once, as each line asks for it
    std::int32_t furtherLines_ = 0;
    PlainSearch plain_;
    // The engine itself rather than a RegexMatcher, which looks its pattern up for each line. Matches have the same
    // limit.
    std::unique_ptr<RegExp> program_;
};

}  // namespace vexa
