#include "search/finder.h"

#include <algorithm>

#include "document/text/cursor_actions.h"
#include "document/text/run_actions.h"

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

}  // namespace

bool Finder::attach(EditView* view) {
    view_ = view;
    return view != nullptr;
}

LineSearch Finder::makeSearch() {
    const ExtensionProfile* profile = document().profile();
    return LineSearch(options_, profile ? std::string_view(profile->delimiters()) : std::string_view());
}

// ---- finding -----------------------------------------------------------------------------------------------------

bool Finder::findNext() {
    stopped_ = false;
    if (view_ == nullptr) return false;
    LineSearch search = makeSearch();
    SearchProgress progress(notices_, watch_);
    const std::optional<Match> match = findFrom(searchStart(), search, progress);
    stopped_ = progress.stopped();
    if (!match) return false;
    show(*match);
    options_.setMatchPending(true);
    FinishWithMatchInSight(*view_, options_.lastMatch);
    return true;
}

// Behind a pending match, so that overlapping ones are found too, unless the cursor has gone elsewhere.
Finder::Place Finder::searchStart() {
    Place start{document().currentLine(), document().column()};
    if (!options_.matchPending()) return start;
    const LastMatch& last = options_.lastMatch;
    if (start.line == last.line && start.column == last.cursorColumn) start.column = last.column + 1;
    if (options_.pastLineEnd()) start = {start.line + (options_.forward() ? 1 : -1), CharColumn(0)};
    return start;
}

std::optional<Finder::Match> Finder::findFrom(Place start, LineSearch& search, SearchProgress& progress) {
    const std::int32_t step = options_.forward() ? 1 : -1;
    const LineIndex last = options_.forward() ? LineIndex(document().lineCount(LastUsed::Text)) : start.line;
    const DynArray& lines = document().lines();
    CharColumn from = start.column;
    for (LineIndex line = start.line; line.value >= 0 && line <= last; line += step) {
        const TextLine* here = lines.at(line.value);
        if (here == nullptr) continue;
        if (const auto found = search.find(here->text(), from)) return Match{line, *found};
        if (progress.mustStop()) return std::nullopt;
        from = CharColumn(0);
    }
    return std::nullopt;
}

void Finder::show(const Match& match) {
    LastMatch& last = options_.lastMatch;
    last.line = match.line;
    last.column = match.inLine.column;
    last.length = match.inLine.length;
    last.displayStart = document().toDisplay(match.line, last.column);
    last.displayEnd = last.displayStart + std::max(last.length, 1);
    LineEditor& editor = view_->editor();
    view_->marker().clear();
    editor.moveToLine(match.line);
    editor.moveToColumn(last.column);
    editor.run<SetMarkMode>(MarkMode::Stream);
    editor.run<SetMark>(MarkPoint{match.line, last.displayStart}, MarkPoint{match.line, last.displayEnd});
    last.cursorColumn = document().column();
    options_.setPastLineEnd(last.cursorColumn >= editor.textEnd());
}

// ---- replacing ---------------------------------------------------------------------------------------------------

std::int32_t Finder::replace() {
    stopped_ = false;
    if (view_ == nullptr) return 0;
    LineSearch search = makeSearch();
    SearchProgress progress(notices_, watch_);
    std::optional<Match> match = pendingMatch(search);
    options_.setMatchPending(false);
    if (!match) match = findFrom(searchStart(), search, progress);
    if (match && options_.replaceAll()) {
        replaceAll(*match, search, progress);
    } else if (match) {
        replaceOne(*match);
        progress.countReplacement();
    }
    if (match) {
        options_.forgetMatch();
        view_->finish();
    }
    stopped_ = progress.stopped();
    return progress.replacements();
}

// A match that was found earlier may be replaced without a further search as long as the user sees it marked with the
// cursor on it, and it is what the present text and options would find there.
std::optional<Finder::Match> Finder::pendingMatch(LineSearch& search) {
    const LastMatch& last = options_.lastMatch;
    const MarkedArea marked{MarkMode::Stream, true, {last.line, last.displayStart}, {last.line, last.displayEnd}};
    const LineMatch inLine{last.column, last.length};
    const bool marksMatch = options_.matchPending() && document().marked() == marked;
    if (!marksMatch || document().currentLine() != last.line || document().column() != last.cursorColumn) return {};
    if (search.find(document().text(last.line), last.column) != inLine) return {};
    return Match{last.line, inLine};
}

void Finder::replaceOne(const Match& match) {
    const std::string text = options_.insertedText();
    LineEditor& editor = view_->editor();
    view_->marker().clear();
    editor.moveToLine(match.line);
    editor.run<ReplaceRun>(match.line, match.inLine.column, match.inLine.length, text);
    editor.moveToColumn(match.inLine.column + static_cast<std::int32_t>(text.size()));
}

void Finder::replaceAll(Match match, LineSearch& search, SearchProgress& progress) {
    const std::string text = options_.insertedText();
    view_->marker().clear();
    for (std::optional<Match> next = match; next;) {
        const CharColumn column = next->inLine.column;
        view_->editor().run<ReplaceRun>(next->line, column, next->inLine.length, text);
        progress.countReplacement();
        if (progress.mustStop()) return;
        next = findBehind(*next, column + static_cast<std::int32_t>(text.size()), search, progress);
    }
}

// The next match behind a replacement that ends at a column.
std::optional<Finder::Match> Finder::findBehind(const Match& match, CharColumn end, LineSearch& search,
                                                SearchProgress& progress) {
    const std::string_view text = document().text(match.line);
    std::optional<LineMatch> next = search.find(text, end);
    if (next == LineMatch{end, 0}) next = search.findAfter(text, end);
    if (next) return Match{match.line, *next};
    return findFrom({match.line + (options_.forward() ? 1 : -1), CharColumn(0)}, search, progress);
}

}  // namespace vexa
