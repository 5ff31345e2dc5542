// How a search run replaces what it has found.
#include "search/search_run.h"

#include "search/line_insertion.h"

namespace vexa {

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
}

// A match that was found earlier may be replaced without a further search as long as the user sees it marked with the
// cursor on it, and it is what the present text and options would find there.
std::optional<DocumentMatch> SearchRun::pendingMatch() {
    const LastMatch& last = options_.lastMatch;
    const MarkedArea marked{MarkMode::Stream, true, {last.line, last.displayStart}, {last.endLine, last.displayEnd}};
    const LineMatch inLine{last.column, last.length};
    const bool marksMatch = options_.matchPending() && document_.marked() == marked;
    if (!marksMatch || document_.currentLine() != last.line || document_.column() != last.cursorColumn) return {};
    if (search_.find(subject(last.line), last.column) != inLine) return {};
    return DocumentMatch{last.line, inLine};
}

// Puts the new text in the place of the match that was found last, and returns where it ends.
TextPosition SearchRun::exchange(const DocumentMatch& match) {
    const std::string text = search_.replacement();
    const TextPosition oldEnd = endOf(match);
    const std::int32_t joined = oldEnd.line - match.line;
    if (joined > 0) view_.editor().moveToLine(match.line);
    for (std::int32_t n = 0; n < joined; ++n)
        view_.editor().joinNextLine();
    const TextPosition newEnd = InsertLines(view_, match.start(), match.inLine.length - joined, text);
    moveOrigin(match.start(), oldEnd, newEnd);
    progress_.countReplacement();
    return newEnd;
}

void SearchRun::moveOrigin(TextPosition from, TextPosition oldEnd, TextPosition newEnd) {
    if (from >= origin_ || oldEnd > origin_) return;
    if (oldEnd.line == origin_.line) origin_.column += newEnd.column - oldEnd.column;
    origin_.line += newEnd.line - oldEnd.line;
}

void SearchRun::moveTo(TextPosition position) {
    if (position == TextPosition{document_.currentLine(), document_.column()}) return;
    view_.editor().moveToLine(position.line);
    view_.editor().moveToColumn(position.column);
}

// With the habit of going around, the next match is shown for the user to decide about.
void SearchRun::replaceOne(const DocumentMatch& match) {
    view_.marker().clear();
    view_.editor().moveToLine(match.line);
    const TextPosition end = exchange(match);
    if (end.line != document_.currentLine()) view_.editor().moveToLine(end.line);
    view_.editor().moveToColumn(end.column);
    options_.forgetMatch();
    if (options_.habits().searchAround) showAsNext(findAfter(end));
    view_.finish();
}

void SearchRun::replaceAll(const DocumentMatch& first) {
    view_.marker().clear();
    for (std::optional<DocumentMatch> next = first; next;) {
        const bool isDoneAlready = isAround_ && next->line == origin_.line && next->start() >= origin_;
        if (isDoneAlready) break;
        const TextPosition end = exchange(*next);
        if (progress_.mustStop()) break;
        next = findAfter(end);
    }
    moveTo(origin_);
    options_.forgetMatch();
    view_.finish();
}

// The next match after a replacement that ends at a position. What it has made of the line that the search had reached
// may be several lines, each of them looked at already.
std::optional<DocumentMatch> SearchRun::findAfter(TextPosition end) {
    const std::string_view text = subject(end.line);
    const std::optional<LineMatch> next = search_.findBehind(text, end.column);
    if (next && next->column.value <= static_cast<std::int32_t>(document_.text(end.line).size()))
        return DocumentMatch{end.line, *next};
    return findFrom({(options_.forward() ? end.line : reached_) + step_, CharColumn(0)});
}

}  // namespace vexa
