#include "document/view/marker.h"

#include <algorithm>

#include "document/text/cursor_actions.h"

namespace vexa {

namespace {

// Orders the ends of an area as its mode wants them: a column's by line and by column each on its own.
std::pair<MarkPoint, MarkPoint> Ordered(MarkMode mode, MarkPoint a, MarkPoint b) {
    if (mode != MarkMode::Column) return std::minmax({a, b});
    const auto [top, bottom] = std::minmax({a.line, b.line});
    const auto [left, right] = std::minmax({a.column, b.column});
    return {{top, left}, {bottom, right}};
}

}  // namespace

// ---- marking -----------------------------------------------------------------------------------------------------

void Marker::start(MarkMode mode) {
    anchor_ = cursor();
    editor_.run<StartMark>(anchor_);
    if (document_.marked().mode != mode) editor_.run<SetMarkMode>(mode);
}

void Marker::toggle(MarkMode mode) {
    if (extending_ && document_.marked().mode == mode) {
        extending_ = false;
        return;
    }
    start(mode);
    extending_ = true;
    extend();
}

void Marker::begin(MarkMode mode) {
    if (isActive()) {
        // The anchor of a marking that something else made is the end that the cursor is not at.
        const MarkedArea& area = document_.marked();
        if (anchor_ != area.start && anchor_ != area.end) anchor_ = cursor() == area.start ? area.end : area.start;
    } else {
        start(mode);
    }
}

void Marker::extend() {
    const auto [from, to] = Ordered(document_.marked().mode, anchor_, cursor());
    editor_.run<SetMark>(from, to);
}

void Marker::cursorMoved(bool extending) {
    if (extending || extending_) {
        extend();
    } else {
        clear();
    }
}

void Marker::markAll() {
    const LineIndex last = document_.lastLine(LastUsed::Text);
    extending_ = false;
    editor_.run<SetMarkMode>(MarkMode::Lines);
    anchor_ = MarkPoint{};
    editor_.run<SetMark>(anchor_, MarkPoint{last, DisplayColumn(0)});
}

void Marker::clear() {
    extending_ = false;
    if (document_.marked() != MarkedArea{}) editor_.run<ClearMark>();
}

// ---- deleting ----------------------------------------------------------------------------------------------------

LineIndex Marker::lastMarkedLine() const {
    return LineIndex(std::min(document_.marked().end.line.value, document_.lines().capacity() - 1));
}

bool Marker::deleteMarked() {
    if (!isActive()) return false;
    const MarkedArea area = document_.marked();
    if (area.mode == MarkMode::Lines) {
        deleteLines();
    } else if (area.mode == MarkMode::Column) {
        deleteColumn();
    } else if (area.start.line == area.end.line) {
        deleteStreamInLine();
    } else {
        deleteStream();
    }
    clear();
    return true;
}

void Marker::deleteLines() {
    const MarkedArea area = document_.marked();
    const DisplayColumn display = document_.displayColumn();
    editor_.moveToLine(area.start.line);
    for (std::int32_t n = lastMarkedLine() - area.start.line + 1; n > 0; --n)
        editor_.deleteCurrentLine();
    editor_.moveToDisplayColumn(display);
}

void Marker::deleteStreamInLine() {
    const MarkedArea area = document_.marked();
    editor_.moveToLine(area.start.line);
    const CharColumn from = document_.toCharacter(area.start.line, area.start.column);
    const CharColumn to = document_.toCharacter(area.start.line, area.end.column);
    editor_.deleteBetween(from, to);
}

// The end line goes up to the start line with what it has after the area.
void Marker::deleteStream() {
    const MarkedArea area = document_.marked();
    editor_.moveToLine(area.start.line);
    const CharColumn end = editor_.textEnd();
    editor_.deleteBetween(std::min(document_.toCharacter(area.start.line, area.start.column), end), end);
    editor_.moveToLine(area.start.line + 1);
    for (std::int32_t n = lastMarkedLine() - area.start.line - 1; n > 0; --n)
        editor_.deleteCurrentLine();
    editor_.deleteBetween(CharColumn(0), document_.toCharacter(document_.currentLine(), area.end.column));
    editor_.moveToLine(area.start.line);
    editor_.joinNextLine();
}

void Marker::deleteColumn() {
    const MarkedArea area = document_.marked();
    const LineIndex last = lastMarkedLine();
    for (LineIndex line = area.start.line; line <= last; ++line) {
        editor_.moveToLine(line);
        editor_.deleteColumns(area.start.column, area.end.column);
    }
    editor_.moveToLine(area.start.line);
    editor_.moveToDisplayColumn(area.start.column);
}

// ---- shifting ----------------------------------------------------------------------------------------------------

bool Marker::shiftLines(bool right) {
    const MarkedArea area = document_.marked();
    if (!area.active || area.mode != MarkMode::Lines) return false;
    const MarkPoint home = cursor();
    const LineIndex last = lastMarkedLine();
    for (LineIndex line = area.start.line; line <= last; ++line) {
        editor_.moveToLine(line);
        editor_.moveToLineStart();
        if (!right) {
            outdent();
        } else if (!IsBlank(document_.text(line))) {
            editor_.insertIndent();
        }
    }
    editor_.moveToLine(home.line);
    editor_.moveToDisplayColumn(home.column);
    return true;
}

// Takes the white space of the first tab stop out.
void Marker::outdent() {
    const std::string_view indent = IndentOf(document_.text(document_.currentLine()));
    const auto width = static_cast<std::size_t>(document_.tabSize());
    const std::size_t tab = indent.find('\t');
    editor_.deleteInLine(static_cast<std::int32_t>(std::min({indent.size(), tab < width ? tab + 1 : width})));
}

}  // namespace vexa
