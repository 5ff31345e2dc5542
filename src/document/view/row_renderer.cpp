#include "document/view/row_renderer.h"

#include <algorithm>
#include <limits>

#include "document/text/columns.h"
#include "language/line_tokenizer.h"

namespace vexa {

namespace {

constexpr DisplayColumn kToTheEdge{std::numeric_limits<std::int32_t>::max()};

DisplayColumn TextEnd(const TextDocument& document, LineIndex line) {
    return document.toDisplay(line, CharColumn(static_cast<std::int32_t>(document.text(line).size())));
}

ColumnSpan MarkedStream(const TextDocument& document, const MarkedArea& area, LineIndex line) {
    const DisplayColumn begin = line == area.start.line ? area.start.column : DisplayColumn(0);
    const DisplayColumn lineEnd = std::max(TextEnd(document, line), begin) + 1;
    return {begin, line == area.end.line ? area.end.column : lineEnd};
}

// Lays runs over the window's cells from left to right, each up to an end; an empty one is left out and equal ones are
// joined.
class RunList {
  public:
    explicit RunList(std::int32_t columns) : columns_(columns) {}

    bool isFull() const { return next_ == columns_; }
    void upTo(std::int64_t end, ColourElement text, ColourElement background) {
        const auto stop = static_cast<std::int32_t>(std::clamp<std::int64_t>(end, 0, columns_));
        if (stop <= next_) return;
        if (!runs_.empty() && runs_.back().text == text && runs_.back().background == background) {
            runs_.back().length += stop - next_;
        } else {
            runs_.push_back({next_, stop - next_, text, background});
        }
        next_ = stop;
    }
    std::vector<CellRun> take() { return std::move(runs_); }

  private:
    std::vector<CellRun> runs_;
    std::int32_t next_ = 0;
    std::int32_t columns_;
};

// Lays the colours of tokens over a row, except where it is marked.
class RowColours {
  public:
    RowColours(std::int32_t columns, std::int64_t markBegin, std::int64_t markEnd)
        : runs_(columns), markBegin_(markBegin), markEnd_(markEnd) {}

    bool isFull() const { return runs_.isFull(); }
    void upTo(std::int64_t end, ColourElement text) {
        if (markBegin_ < markEnd_ && end > markBegin_) {
            runs_.upTo(markBegin_, text, ColourElement::Background);
            runs_.upTo(std::min(end, markEnd_), ColourElement::MarkingText, ColourElement::MarkingBackground);
        }
        runs_.upTo(end, text, ColourElement::Background);
    }
    std::vector<CellRun> take() { return runs_.take(); }

  private:
    RunList runs_;
    std::int64_t markBegin_;
    std::int64_t markEnd_;
};

// Follows the display column through a text that is read from left to right.
class ColumnCounter {
  public:
    explicit ColumnCounter(std::int32_t tabSize) : tabSize_(tabSize) {}
    std::int64_t past(std::string_view text) {
        for (const char c : text)
            column_ = c == '\t' ? (column_ / tabSize_ + 1) * tabSize_ : column_ + 1;
        return column_;
    }

  private:
    std::int64_t column_ = 0;
    std::int32_t tabSize_;
};

void LayTokens(const TextDocument& document, LineIndex line, DisplayColumn left, RowColours& colours) {
    ColumnCounter columns(document.tabSize());
    const std::string_view text = document.text(line).substr(0, document.rules().limits.colouredLength);
    LineTokenizer tokens(*document.tokenRules(), text, document.startState(line));
    while (!colours.isFull()) {
        const Token token = tokens.NextToken();
        if (token.kind == TokenKind::EndOfLine) return;
        colours.upTo(columns.past(token.text) - left.value, tokens.ColourOfKind());
    }
}

ViewRow Render(const TextDocument& document, LineIndex line, DisplayColumn left, std::int32_t columns,
               bool highlighting, ColumnSpan marked) {
    const auto cell = [left](DisplayColumn column) { return std::int64_t{column.value} - left.value; };
    RowColours colours(columns, cell(marked.begin), cell(marked.end));
    if (highlighting && document.tokenRules()) LayTokens(document, line, left, colours);
    colours.upTo(columns, ColourElement::DefaultText);
    return {VisibleCells(document.text(line), document.tabSize(), left, columns, document.markBefore(line, left)),
            colours.take()};
}

}  // namespace

std::string VisibleCells(std::string_view text, std::int32_t tabSize, DisplayColumn left, std::int32_t columns,
                         ColumnMark from) {
    std::string cells;
    const CharColumn first = ToCharacter(text, left, tabSize, from);
    const bool isTab = text.substr(std::min(static_cast<std::size_t>(first.value), text.size())).starts_with('\t');
    DisplayColumn column =
        isTab ? ToDisplay(text, first, tabSize, from) : left;  // any other character takes one column
    const DisplayColumn right = left + columns;
    for (auto i = static_cast<std::size_t>(first.value); i < text.size() && column < right; ++i) {
        const DisplayColumn begin = std::max(column, left);
        column = text[i] == '\t' ? DisplayColumn((column.value / tabSize + 1) * tabSize) : column + 1;
        const char cell = text[i] == '\t' ? ' ' : text[i];
        cells.append(static_cast<std::size_t>(std::max(std::min(column, right) - begin, 0)), cell);
    }
    return cells;
}

ColumnSpan MarkedColumns(const TextDocument& document, LineIndex line) {
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

ViewRow RenderRow(const TextDocument& document, LineIndex line, DisplayColumn left, std::int32_t columns,
                  bool highlighting) {
    return Render(document, line, left, columns, highlighting, MarkedColumns(document, line));
}

ViewRow RenderUnmarkedRow(const TextDocument& document, LineIndex line, DisplayColumn left, std::int32_t columns,
                          bool highlighting) {
    return Render(document, line, left, columns, highlighting, {});
}

bool IsMarkedAt(const TextDocument& document, LineIndex line, DisplayColumn column) {
    const ColumnSpan marked = MarkedColumns(document, line);
    return marked.begin <= column && column < marked.end;
}

}  // namespace vexa
