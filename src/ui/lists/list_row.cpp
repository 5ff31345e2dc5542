#include "ui/lists/list_row.h"

#include <algorithm>
#include <limits>

#include "document/text/columns.h"

namespace vexa {
namespace {

constexpr std::int32_t kTabSize = 8;  // as the programs expect whose output is listed

// In the order of the kinds. The colours are those of the editor's text that stand out from it in all the colour
// schemes that have colours.
struct KindLook {
    ColourElement colour;
    std::string_view mark;
};
constexpr KindLook kLooks[] = {
    {ColourElement::DefaultText, "  "}, {ColourElement::Keywords, "! "}, {ColourElement::Strings, "? "}};

constexpr ColourElement kHighlight = ColourElement::Keywords;

const KindLook& LookOf(RowKind kind) {
    return kLooks[static_cast<std::size_t>(kind)];
}

using Step = std::size_t (*)(std::size_t row, std::size_t page, std::size_t last);

struct KeyRow {
    unsigned key;  // as Windows numbers it
    Step step;
};
constexpr KeyRow kKeys[] = {
    {0x21, [](std::size_t row, std::size_t page, std::size_t) { return row - std::min(row, page); }},        // PgUp
    {0x22, [](std::size_t row, std::size_t page, std::size_t last) { return std::min(row + page, last); }},  // PgDn
    {0x23, [](std::size_t, std::size_t, std::size_t last) { return last; }},                                 // End
    {0x24, [](std::size_t, std::size_t, std::size_t) { return std::size_t{0}; }},                            // Home
    {0x26, [](std::size_t row, std::size_t, std::size_t) { return row - std::min<std::size_t>(row, 1); }},   // Up
    {0x28, [](std::size_t row, std::size_t, std::size_t last) { return std::min(row + 1, last); }},          // Down
};

// Cuts the cells up to an end out of the one run of a row.
void SetApart(std::vector<CellRun>& runs, std::int32_t begin, std::int32_t end, bool exchangesColours) {
    if (begin == end) return;
    CellRun part = runs[0];
    CellRun rest = runs[0];
    part.start = begin;
    part.length = end - begin;
    rest.start = end;
    rest.length -= end;
    part.text = kHighlight;
    if (exchangesColours) part = {part.start, part.length, rest.background, rest.text};
    runs[0].length = begin;
    if (begin == 0) runs.clear();
    runs.push_back(part);
    if (rest.length > 0) runs.push_back(rest);
}

}  // namespace

ColourElement ColourOf(RowKind kind) {
    return LookOf(kind).colour;
}

ViewRow RenderListRow(std::string_view text, RowKind kind, bool isSelected, const RowView& view,
                      const RowPart& highlight) {
    const CellRun run{0, view.columns, isSelected ? ColourElement::MarkingText : ColourOf(kind),
                      isSelected ? ColourElement::MarkingBackground : ColourElement::Background};
    std::string marked(view.hasMarks ? LookOf(kind).mark : std::string_view());
    const std::size_t start = marked.size() + highlight.start;
    marked += text;
    ViewRow row{VisibleCells(marked, kTabSize, DisplayColumn(view.left), view.columns), {run}};
    if (isSelected || highlight.length == 0) return row;
    const auto cellOf = [&](std::size_t character) {
        const std::int32_t column = ListRowWidth(std::string_view(marked).substr(0, character));
        return std::clamp(column - view.left, 0, view.columns);
    };
    SetApart(row.runs, cellOf(start), cellOf(start + highlight.length), view.hasMarks);
    return row;
}

std::int32_t ListRowWidth(std::string_view text) {
    return ToDisplay(text, CharColumn(static_cast<std::int32_t>(text.size())), kTabSize).value;
}

std::optional<std::size_t> RowAfterKey(unsigned key, std::optional<std::size_t> selected, const ListExtent& extent) {
    const auto* const found = std::ranges::find(kKeys, key, &KeyRow::key);
    if (found == std::end(kKeys) || extent.rows == 0) return std::nullopt;
    const std::size_t last = extent.rows - 1;
    const bool isSingle = key == 0x26 || key == 0x28;
    if (!selected && isSingle) return 0;
    // A row at the edge of a page stays in sight after the next.
    const std::size_t page = std::max<std::size_t>(extent.page, 2) - 1;
    return found->step(std::min(selected.value_or(0), last), page, last);
}

void RowSelection::move(std::optional<std::size_t> from, std::size_t to, bool extends) {
    if (!extends) anchor_ = to;
    if (extends && from != end_) anchor_ = from.value_or(to);
    end_ = to;
}

RowSpan RowSelection::span(std::optional<std::size_t> selected) const {
    if (!selected) return {};
    const std::size_t other = selected == end_ ? anchor_ : *selected;
    const std::size_t first = std::min(other, *selected);
    return {first, std::max(other, *selected) - first + 1};
}

std::size_t TopShowing(std::size_t row, std::size_t top, std::size_t page) {
    if (row < top) return row;
    return row >= top + page ? row - page + 1 : top;
}

}  // namespace vexa
