#include "document/print/print_layout.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/strings.h"

namespace vexa {

namespace {

constexpr std::int32_t kNumberGap = 2;  // columns between a line number and its text

// The part of the text before the blanks at its end.
std::string_view WithoutTrailingBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string Shortened(const std::string& name, std::size_t columns) {
    constexpr std::string_view kLeftOut = "...";
    if (name.size() <= columns) return name;
    if (columns <= kLeftOut.size()) return {};
    return std::string(kLeftOut) + name.substr(name.size() - (columns - kLeftOut.size()));
}

}  // namespace

std::string HeaderText(const PrintHeading& heading, std::int32_t page, std::int32_t pages, std::int32_t columns) {
    constexpr std::size_t kGap = 2;
    const auto width = static_cast<std::size_t>(columns);
    std::string right = FillText(TextId::PageOf, {std::to_string(page), std::to_string(pages)});
    const std::string dated = heading.date + std::string(kGap, ' ') + right;
    if (!heading.date.empty() && dated.size() <= width) right = dated;
    if (right.size() > width) return right.substr(0, width);
    const std::size_t room = width - right.size();
    std::string header = Shortened(heading.name, room > kGap ? room - kGap : 0);
    header.resize(room, ' ');
    return header + right;
}

PrintLayout::PrintLayout(const TextDocument& document, Request request)
    : document_(document), request_(std::move(request)) {
    findLines();
    reserveNumbers();
    textColumns_ = std::max(request_.page.columns - textColumn_, 1);
    textRows_ = std::max(request_.page.rows - (request_.options.header ? kHeaderRows : 0), 1);
    divide();
}

void PrintLayout::findLines() {
    last_ = document_.lastLine(LastUsed::Text);
    if (request_.area == PrintArea::Marked) {
        first_ = document_.marked().start.line;
        last_ = std::min(last_, document_.marked().end.line);
    }
    while (last_ >= first_ && printedColumns(last_).end <= printedColumns(last_).begin)
        --last_;
}

void PrintLayout::reserveNumbers() {
    if (!request_.options.lineNumbers) return;
    numberDigits_ = static_cast<std::int32_t>(std::to_string(last_.value + 1).size());
    textColumn_ = numberDigits_ + kNumberGap;
}

void PrintLayout::divide() {
    std::int32_t row = 0;
    for (LineIndex line = first_; line <= last_; ++line) {
        const std::int32_t rows = rowsOf(line);
        for (std::int32_t i = 0; i < rows; ++i, ++row) {
            if (row % textRows_ == 0) firstRows_.push_back({line, i});
        }
    }
}

// ---- lines -------------------------------------------------------------------------------------------------------

ColumnSpan PrintLayout::printedColumns(LineIndex line) const {
    const auto length = WithoutTrailingBlanks(document_.text(line)).size();
    const DisplayColumn textEnd = document_.toDisplay(line, CharColumn(static_cast<std::int32_t>(length)));
    if (request_.area == PrintArea::Document) return {DisplayColumn(0), textEnd};
    const ColumnSpan marked = MarkedColumns(document_, line);
    return {marked.begin, std::min(marked.end, textEnd)};
}

std::int32_t PrintLayout::rowsOf(LineIndex line) const {
    const ColumnSpan columns = printedColumns(line);
    return std::max((columns.end - columns.begin + textColumns_ - 1) / textColumns_, 1);
}

// ---- pages -------------------------------------------------------------------------------------------------------

PrintedPage PrintLayout::page(std::int32_t number) const {
    PrintedPage page;
    if (request_.options.header) {
        page.header = HeaderText(request_.heading, number, pageCount(), request_.page.columns);
    }
    RowPosition position = firstRows_.at(static_cast<std::size_t>(number) - 1);
    for (std::int32_t row = 0; row < textRows_ && position.line <= last_; ++row) {
        page.rows.push_back(printedRow(position, printedColumns(position.line)));
        position = next(position, rowsOf(position.line));
    }
    return page;
}

PrintLayout::RowPosition PrintLayout::next(RowPosition position, std::int32_t rowsOfLine) const {
    return position.row + 1 < rowsOfLine ? RowPosition{position.line, position.row + 1}
                                         : RowPosition{position.line + 1, 0};
}

PrintedRow PrintLayout::printedRow(RowPosition position, ColumnSpan columns) const {
    PrintedRow row;
    if (request_.options.lineNumbers && position.row == 0) row.lineNumber = position.line.value + 1;
    const DisplayColumn left = columns.begin + position.row * textColumns_;
    const std::int32_t width = std::clamp(columns.end - left, 0, textColumns_);
    row.text = RenderUnmarkedRow(document_, position.line, left, width, request_.highlighting);
    return row;
}

}  // namespace vexa
