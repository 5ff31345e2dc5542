#include "document/text/column_marks.h"

#include <algorithm>
#include <iterator>

namespace vexa {

namespace {

constexpr std::int32_t kStep = ColumnMarks::kStep;

ColumnMark MarkAt(const std::vector<std::int32_t>& displays, std::ptrdiff_t i) {
    return {CharColumn(static_cast<std::int32_t>(i) * kStep), DisplayColumn(displays[static_cast<std::size_t>(i)])};
}

std::vector<std::int32_t> Measure(const TextLine& line, std::int32_t tabSize) {
    std::vector<std::int32_t> displays;
    for (ColumnMark mark; mark.character.value <= line.length();) {
        displays.push_back(mark.display.value);
        const CharColumn next = mark.character + kStep;
        mark = {next, ToDisplay(line.text(), next, tabSize, mark)};
    }
    return displays;
}

}  // namespace

ColumnMark ColumnMarks::lookUp(const TextLine& line, CharColumn column, std::int32_t tabSize) {
    return MarkAt(marksOf(line, tabSize), std::min(column.value, line.length()) / kStep);
}

ColumnMark ColumnMarks::lookUp(const TextLine& line, DisplayColumn column, std::int32_t tabSize) {
    const std::vector<std::int32_t>& displays = marksOf(line, tabSize);
    return MarkAt(displays, std::ranges::upper_bound(displays, column.value) - displays.begin() - 1);
}

// A line says itself whether its text is the one that was measured. A new one in the memory of another was not.
const std::vector<std::int32_t>& ColumnMarks::marksOf(const TextLine& line, std::int32_t tabSize) {
    Measured* known = std::ranges::find(lines_, &line, &Measured::line);
    if (known != std::end(lines_) && line.isMeasured() && known->tabSize == tabSize) return known->displays;
    if (known == std::end(lines_)) {
        known = &lines_[oldest_];
        oldest_ = (oldest_ + 1) % std::size(lines_);
    }
    *known = {&line, tabSize, Measure(line, tabSize)};
    line.setMeasured();
    return known->displays;
}

}  // namespace vexa
