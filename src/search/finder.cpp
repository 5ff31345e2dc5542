#include "search/finder.h"

#include <algorithm>
#include <optional>

#include "document/text/cursor_actions.h"
#include "document/text/run_actions.h"
#include "document/text/text_position.h"
#include "search/line_search.h"

namespace vexa {

namespace {

// Ends a command whose match may be out of sight: a line that is comes to the middle of the window, and sideways the
// match follows the cursor, no further than it must.
void FinishWithMatchInSight(EditView& view, const LastMatch& match) {
    if (match.line < view.topLine() || match.line >= view.topLine() + view.rows()) view.centreCursorLine();
    view.finish();
    if (match.displayEnd > view.leftColumn() + view.columns())
        view.scrollToColumn(std::min(match.displayStart, match.displayEnd - view.columns()));
}

std::string_view DelimitersOf(const TextDocument& document) {
    const ExtensionProfile* profile = document.profile();
    return profile ? std::string_view(profile->delimiters()) : std::string_view();
}

struct DocumentMatch {
    LineIndex line;
    LineMatch inLine;
};

// One operation on the document of a view.
class SearchRun {
  public:
    SearchRun(EditView& view, SearchOptions& options, SearchProgress& progress)
        : view_(view),
          document_(view.document()),
          options_(options),
          progress_(progress),
          search_(options, DelimitersOf(document_)) {}

    bool findNext();
    void replace();

  private:
    TextPosition start() const;
    std::optional<DocumentMatch> findFrom(TextPosition start);
    std::optional<DocumentMatch> findAfter(const DocumentMatch& match, CharColumn end);
    std::optional<DocumentMatch> pendingMatch();
    void show(const DocumentMatch& match);
    void replaceOne(const DocumentMatch& match);
    void replaceAll(const DocumentMatch& first);

    EditView& view_;
    TextDocument& document_;
    SearchOptions& options_;
    SearchProgress& progress_;
    LineSearch search_;
};

// ---- finding -----------------------------------------------------------------------------------------------------

bool SearchRun::findNext() {
    const std::optional<DocumentMatch> match = findFrom(start());
    if (!match) return false;
    show(*match);
    options_.setMatchPending(true);
    FinishWithMatchInSight(view_, options_.lastMatch);
    return true;
}

// After a pending match, so that overlapping ones are found too, unless the cursor has gone elsewhere.
TextPosition SearchRun::start() const {
    TextPosition start{document_.currentLine(), document_.column()};
    if (!options_.matchPending()) return start;
    const LastMatch& last = options_.lastMatch;
    if (start.line == last.line && start.column == last.cursorColumn) start.column = last.column + 1;
    if (options_.pastLineEnd()) start = {start.line + (options_.forward() ? 1 : -1), CharColumn(0)};
    return start;
}

std::optional<DocumentMatch> SearchRun::findFrom(TextPosition start) {
    const std::int32_t step = options_.forward() ? 1 : -1;
    const LineIndex last = options_.forward() ? LineIndex(document_.lastLine(LastUsed::Text)) : start.line;
    const DynArray& lines = document_.lines();
    CharColumn from = start.column;
    for (LineIndex line = start.line; line.value >= 0 && line <= last; line += step) {
        const TextLine* here = lines.at(line.value);
        if (here == nullptr) continue;
        if (const auto found = search_.find(here->text(), from)) return DocumentMatch{line, *found};
        if (progress_.mustStop()) return std::nullopt;
        from = CharColumn(0);
    }
    return std::nullopt;
}

void SearchRun::show(const DocumentMatch& match) {
    LastMatch& last = options_.lastMatch;
    last.line = match.line;
    last.column = match.inLine.column;
    last.length = match.inLine.length;
    last.displayStart = document_.toDisplay(match.line, last.column);
    last.displayEnd = last.displayStart + std::max(last.length, 1);
    LineEditor& editor = view_.editor();
    view_.marker().clear();
    editor.moveToLine(match.line);
    editor.moveToColumn(last.column);
    editor.run<SetMarkMode>(MarkMode::Stream);
    editor.run<SetMark>(MarkPoint{match.line, last.displayStart}, MarkPoint{match.line, last.displayEnd});
    last.cursorColumn = document_.column();
    options_.setPastLineEnd(last.cursorColumn >= editor.textEnd());
}

// ---- replacing ---------------------------------------------------------------------------------------------------

void SearchRun::replace() {
    std::optional<DocumentMatch> match = pendingMatch();
    options_.setMatchPending(false);
    if (!match) match = findFrom(start());
    if (!match) return;
    if (options_.replaceAll()) {
        replaceAll(*match);
    } else {
        replaceOne(*match);
    }
    options_.forgetMatch();
    view_.finish();
}

// A match that was found earlier may be replaced without a further search as long as the user sees it marked with the
// cursor on it, and it is what the present text and options would find there.
std::optional<DocumentMatch> SearchRun::pendingMatch() {
    const LastMatch& last = options_.lastMatch;
    const MarkedArea marked{MarkMode::Stream, true, {last.line, last.displayStart}, {last.line, last.displayEnd}};
    const LineMatch inLine{last.column, last.length};
    const bool marksMatch = options_.matchPending() && document_.marked() == marked;
    if (!marksMatch || document_.currentLine() != last.line || document_.column() != last.cursorColumn) return {};
    if (search_.find(document_.text(last.line), last.column) != inLine) return {};
    return DocumentMatch{last.line, inLine};
}

void SearchRun::replaceOne(const DocumentMatch& match) {
    const std::string text = options_.insertedText();
    LineEditor& editor = view_.editor();
    view_.marker().clear();
    editor.moveToLine(match.line);
    editor.run<ReplaceRun>(match.line, match.inLine.column, match.inLine.length, text);
    editor.moveToColumn(match.inLine.column + static_cast<std::int32_t>(text.size()));
    progress_.countReplacement();
}

void SearchRun::replaceAll(const DocumentMatch& first) {
    const std::string text = options_.insertedText();
    view_.marker().clear();
    for (std::optional<DocumentMatch> next = first; next;) {
        const CharColumn column = next->inLine.column;
        view_.editor().run<ReplaceRun>(next->line, column, next->inLine.length, text);
        progress_.countReplacement();
        if (progress_.mustStop()) return;
        next = findAfter(*next, column + static_cast<std::int32_t>(text.size()));
    }
}

// The next match after a replacement that ends at a column.
std::optional<DocumentMatch> SearchRun::findAfter(const DocumentMatch& match, CharColumn end) {
    const std::string_view text = document_.text(match.line);
    std::optional<LineMatch> next = search_.find(text, end);
    if (next == LineMatch{end, 0}) next = search_.findAfter(text, end);
    if (next) return DocumentMatch{match.line, *next};
    return findFrom({match.line + (options_.forward() ? 1 : -1), CharColumn(0)});
}

}  // namespace

bool Finder::findNext(EditView& view) {
    SearchProgress progress(notices_, watch_);
    const bool found = SearchRun(view, options_, progress).findNext();
    stopped_ = progress.stopped();
    return found;
}

bool Finder::findNext(ListRows& rows) {
    SearchProgress progress(notices_, watch_);
    LineSearch search(options_, {});
    const std::size_t count = rows.rowCount();
    const std::size_t step = options_.forward() ? 1 : SIZE_MAX;
    std::size_t row = rows.selectedRow().value_or(options_.forward() ? SIZE_MAX : count) + step;
    while (row < count && !search.find(rows.rowText(row), CharColumn(0)) && !progress.mustStop())
        row += step;
    stopped_ = progress.stopped();
    if (row >= count || stopped_) return false;
    rows.selectRow(row);
    return true;
}

std::int32_t Finder::replace(EditView& view) {
    SearchProgress progress(notices_, watch_);
    SearchRun(view, options_, progress).replace();
    stopped_ = progress.stopped();
    return progress.replacements();
}

}  // namespace vexa
