#include "document/row_renderer.h"

#include <algorithm>
#include <limits>

#include "document/columns.h"

namespace vexa {

namespace {

constexpr DisplayColumn kToTheEdge{std::numeric_limits<std::int32_t>::max()};

// Display columns from begin up to end; none when they are equal.
struct Span {
    DisplayColumn begin;
    DisplayColumn end;
};

DisplayColumn TextEnd(const TextDocument& document, LineIndex line) {
    return document.toDisplay(line, CharColumn(static_cast<std::int32_t>(document.text(line).size())));
}

// A marked line end is shown as one cell behind the text.
Span MarkedStream(const TextDocument& document, const MarkedArea& area, LineIndex line) {
    const DisplayColumn begin = line == area.start.line ? area.start.column : DisplayColumn(0);
    const DisplayColumn lineEnd = std::max(TextEnd(document, line), begin) + 1;
    return {begin, line == area.end.line ? area.end.column : lineEnd};
}

Span MarkedIn(const TextDocument& document, LineIndex line) {
    const MarkedArea& area = document.marked();
    if (!area.active || line < area.start.line || line > area.end.line) return {};
    switch (area.mode) {
        case MarkMode::Lines:
            return {DisplayColumn(0), kToTheEdge};
        case MarkMode::Stream:
            return MarkedStream(document, area, line);
        case MarkMode::Column:
            return {area.start.column, area.end.column};
        case MarkMode::None:
            break;
    }
    return {};
}

std::string VisibleCells(std::string_view text, std::int32_t tabSize, DisplayColumn left, std::int32_t columns) {
    std::string cells;
    const CharColumn first = ToCharacter(text, left, tabSize);
    DisplayColumn column = ToDisplay(text, first, tabSize);
    const DisplayColumn right = left + columns;
    for (auto i = static_cast<std::size_t>(first.value); i < text.size() && column < right; ++i) {
        const DisplayColumn begin = std::max(column, left);
        column = text[i] == '\t' ? DisplayColumn((column.value / tabSize + 1) * tabSize) : column + 1;
        const char cell = text[i] == '\t' ? ' ' : text[i];
        cells.append(static_cast<std::size_t>(std::max(std::min(column, right) - begin, 0)), cell);
    }
    return cells;
}

// Lays runs over the window's cells from left to right; an empty one is left out.
class RunList {
  public:
    explicit RunList(std::int32_t columns) : columns_(columns) {}

    void upTo(std::int64_t end, ColourElement text, ColourElement background) {
        const auto stop = static_cast<std::int32_t>(std::clamp<std::int64_t>(end, 0, columns_));
        if (stop <= next_) return;
        runs_.push_back({next_, stop - next_, text, background});
        next_ = stop;
    }
    std::vector<CellRun> take() { return std::move(runs_); }

  private:
    std::vector<CellRun> runs_;
    std::int32_t next_ = 0;
    std::int32_t columns_;
};

}  // namespace

ViewRow RenderRow(const TextDocument& document, LineIndex line, DisplayColumn left, std::int32_t columns) {
    const Span marked = MarkedIn(document, line);
    const auto cell = [left](DisplayColumn column) { return std::int64_t{column.value} - left.value; };
    RunList runs(columns);
    if (marked.begin < marked.end) {
        runs.upTo(cell(marked.begin), ColourElement::DefaultText, ColourElement::Background);
        runs.upTo(cell(marked.end), ColourElement::MarkingText, ColourElement::MarkingBackground);
    }
    runs.upTo(columns, ColourElement::DefaultText, ColourElement::Background);
    return {VisibleCells(document.text(line), document.tabSize(), left, columns), runs.take()};
}

}  // namespace vexa
