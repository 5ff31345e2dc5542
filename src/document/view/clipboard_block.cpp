#include "document/view/clipboard_block.h"

#include <algorithm>
#include <utility>

#include "base/strings.h"
#include "document/text/document_line_ends.h"
#include "document/text/line_actions.h"
#include "document/text/run_actions.h"
#include "document/view/marked_text.h"

namespace vexa {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

}  // namespace

// ---- copying -----------------------------------------------------------------------------------------------------

std::string ClipboardBlock::markedText() const {
    const MarkedArea& area = document_.marked();
    const LineIndex last = LastMarkedLine(document_);
    const bool isWithinLine = area.mode == MarkMode::Stream && area.start.line == area.end.line;
    std::string text;
    for (LineIndex line = area.start.line; line <= last; ++line)
        text.append(TextOf(document_, line, MarkedSpan(document_, line))).append(isWithinLine ? "" : kLineEnd);
    return text;
}

bool ClipboardBlock::put(TextId tooLarge) {
    const MarkedArea& area = document_.marked();
    const bool isLimited = !document_.options().habits.largeClipboard;
    if (isLimited && area.active && area.end.line - area.start.line > kClipboardLineLimit) {
        document_.notices().box(LoadText(tooLarge), TextId::ErrorCaption, BoxButtons::Ok);
        return false;
    }
    const std::string line = std::string(document_.text(document_.currentLine())).append(kLineEnd);
    const bool done = area.active ? store_.put(markedText(), area.mode) : store_.put(line, MarkMode::Lines);
    if (!done) document_.notices().status(LoadText(TextId::ClipboardInUse), true, true);
    return done;
}

bool ClipboardBlock::copy() {
    const BusyCursor busy(document_.notices());
    if (!put(TextId::TooManyLinesToCopy)) return false;
    if (document_.options().habits.keepMarking) {
        marker_.stopExtending();
    } else if (marker_.isActive()) {
        marker_.clear();
    }
    return true;
}

bool ClipboardBlock::cut() {
    const BusyCursor busy(document_.notices());
    if (!put(TextId::TooManyLinesToCut)) return false;
    if (!marker_.deleteMarked()) editor_.deleteLine();
    return true;
}

// ---- pasting -----------------------------------------------------------------------------------------------------

ClipboardBlock::Pieces ClipboardBlock::split(std::string_view text) {
    Pieces pieces;
    for (std::size_t end = text.find(kLineEnd); end != std::string_view::npos; end = text.find(kLineEnd)) {
        pieces.texts.push_back(text.substr(0, end));
        text.remove_prefix(end + kLineEnd.size());
    }
    pieces.haveLineEnds = !pieces.texts.empty();
    pieces.endWithText = text.empty();
    if (!pieces.haveLineEnds) pieces.texts.push_back(text);
    return pieces;
}

void ClipboardBlock::paste() {
    const std::optional<std::string> text = store_.hasText() ? store_.getText() : std::nullopt;
    if (!text || text->empty()) return;
    const BusyCursor busy(document_.notices());
    const MarkMode kind = store_.getKind();
    const Pieces pieces = split(*text);
    deleteMarkedForPaste();
    if (kind == MarkMode::Lines) {
        pasteLines(pieces);
    } else if (kind == MarkMode::Column) {
        pasteColumn(pieces);
    } else {
        pasteStream(pieces);
    }
}

void ClipboardBlock::deleteMarkedForPaste() {
    const MarkedArea area = document_.marked();
    if (!marker_.deleteMarked()) return;
    editor_.moveToLine(area.start.line);
    editor_.moveToDisplayColumn(area.start.column);
}

// Inserts the pieces from first up to last above the current line, the last one first, so that the cursor moves once.
void ClipboardBlock::insertLines(const std::vector<std::string_view>& texts, std::size_t first, std::size_t last) {
    if (first >= last) return;
    for (std::size_t i = last; i > first; --i)
        editor_.run<InsertLine>(NewLine(document_, texts[i - 1]));
    editor_.moveToLine(document_.currentLine() + (static_cast<std::int32_t>(last - first) - 1));
    editor_.cursorDown();
}

void ClipboardBlock::pasteLines(const Pieces& pieces) {
    const DisplayColumn display = document_.displayColumn();
    insertLines(pieces.texts, 0, pieces.texts.size());
    editor_.moveToDisplayColumn(display);
}

void ClipboardBlock::pasteColumn(const Pieces& pieces) {
    const DisplayColumn display = document_.displayColumn();
    for (const std::string_view piece : pieces.texts) {
        typeAt(piece);
        editor_.moveToDisplayColumn(display);
        editor_.cursorDown();
    }
}

void ClipboardBlock::pasteStream(const Pieces& pieces) {
    const CharColumn end = typeAt(pieces.texts[0]);
    if (!pieces.haveLineEnds) return;
    splitAt(end);
    const std::size_t count = pieces.texts.size();
    const std::size_t wholeLines = pieces.endWithText && count > 1 ? count - 1 : count;
    insertLines(pieces.texts, 1, wholeLines);
    if (wholeLines < count) typeAt(pieces.texts[wholeLines]);
}

// Types a text at the cursor in one step and returns where it ends, which may lie beyond the last column that the
// cursor can reach.
CharColumn ClipboardBlock::typeAt(std::string_view text) {
    if (text.empty()) return document_.column();
    editor_.pad();
    const CharColumn column = document_.column();
    const auto length = static_cast<std::int32_t>(text.size());
    const std::int32_t over = document_.options().InsertMode ? 0 : std::min(length, editor_.textEnd() - column);
    editor_.run<ReplaceRun>(document_.currentLine(), column, over, text);
    editor_.moveToColumn(column + length);
    return column + length;
}

// Splits the current line at a column and goes to the start of the lower part. Beyond the last column of the cursor the
// lower part is taken out and put into a line of its own.
void ClipboardBlock::splitAt(CharColumn column) {
    if (column == document_.column()) {
        editor_.splitLine();
        editor_.cursorDown();
    } else {
        const LineIndex line = document_.currentLine();
        const std::string rest(TextOf(document_, line, {column, editor_.textEnd()}));
        LinePtr lower = TextDocument::makeLine(rest);
        lower->setEnd(document_.current().end());
        editor_.deleteBetween(column, editor_.textEnd());
        if (lower->end() != NewLineEnd(document_)) editor_.run<SetLineEnd>(line, NewLineEnd(document_));
        editor_.cursorDown();
        editor_.run<InsertLine>(std::move(lower));
    }
    editor_.moveToLineStart();
}

}  // namespace vexa
