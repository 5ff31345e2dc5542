// One find or replace operation on the document of a view: what Finder does, step by step.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "document/text/text_position.h"
#include "document/view/edit_view.h"
#include "search/line_search.h"
#include "search/search_options.h"
#include "search/search_progress.h"

namespace vexa {

struct DocumentMatch {
    TextPosition start() const { return {line, inLine.column}; }

    LineIndex line;
    LineMatch inLine;  // of several lines with one character between two of them
};

// Whether the search goes on at the other end of the text: only with that habit, and when the user agrees.
bool AsksToGoAround(const SearchOptions& options, Notices& notices);

class SearchRun {
  public:
    SearchRun(EditView& view, SearchOptions& options, SearchProgress& progress);

    // False, with nothing changed, when there is no match.
    bool findNext();
    // The replacements are counted in the progress.
    void replace();

  private:
    TextPosition start() const;
    LineIndex lastTextLine() const { return document_.lastLine(LastUsed::Text); }
    std::string_view subject(LineIndex line);
    TextPosition endOf(const DocumentMatch& match) const;
    std::optional<DocumentMatch> findBetween(TextPosition start, LineIndex last);
    std::optional<DocumentMatch> findFrom(TextPosition start);
    std::optional<DocumentMatch> findAfter(TextPosition end);
    std::optional<DocumentMatch> pendingMatch();
    void showAsNext(const std::optional<DocumentMatch>& match);
    TextPosition exchange(const DocumentMatch& match);
    void moveOrigin(TextPosition from, TextPosition oldEnd, TextPosition newEnd);
    void moveTo(TextPosition position);
    void replaceOne(const DocumentMatch& match);
    void replaceAll(const DocumentMatch& first);

    EditView& view_;
    TextDocument& document_;
    SearchOptions& options_;
    SearchProgress& progress_;
    LineSearch search_;
    const std::int32_t step_;
    TextPosition origin_;    // the cursor's, which goes along with the text around it
    LineIndex reached_;      // the line of the last match that did not follow a replacement in its own line
    bool isAround_ = false;  // the search goes on at the other end, up to the origin
    std::string manyLines_;  // those in which one match can be
};

}  // namespace vexa
