// Whatever a document holds, marks and asks for: its pages keep within their size, and together they hold the text.
#include <cstdint>
#include <string>

#include "document/print/print_layout.h"
#include "document/text/columns.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {
namespace {

MarkedArea TakeMarked(Input& input) {
    MarkedArea area;
    area.active = true;
    area.mode = static_cast<MarkMode>(1 + input.byte() % 3);
    area.start = {LineIndex(input.byte() % 20), DisplayColumn(input.byte())};
    area.end = {area.start.line + input.byte(), DisplayColumn(input.byte())};
    if (area.end < area.start) area.end = area.start;
    if (area.mode == MarkMode::Column) area.end.column = std::max(area.end.column, area.start.column);
    return area;
}

PrintLayout::Request TakeRequest(Input& input) {
    PrintLayout::Request request;
    const std::uint8_t how = input.byte();
    request.area = how & 1 ? PrintArea::Marked : PrintArea::Document;
    request.options.header = how & 2;
    request.options.lineNumbers = how & 4;
    request.highlighting = how & 8;
    request.page = {kSmallestPage.rows + input.byte() % 40, kSmallestPage.columns + input.byte()};
    const std::uint8_t size = input.byte();
    request.heading = {input.text(size), how & 16 ? "1.1.2000" : ""};
    return request;
}

std::size_t Check(const PrintedPage& page, const PrintLayout::Request& request, std::int32_t textColumn) {
    const PageGrid grid = request.page;
    const std::int32_t rows = grid.rows - (request.options.header ? kHeaderRows : 0);
    Require(!page.rows.empty() && page.rows.size() <= static_cast<std::size_t>(rows));
    Require(page.header.size() == (request.options.header ? static_cast<std::size_t>(grid.columns) : 0));
    std::size_t characters = 0;
    for (const PrintedRow& row : page.rows) {
        Require(row.text.cells.size() <= static_cast<std::size_t>(grid.columns - textColumn));
        characters += row.text.cells.size();
    }
    return characters;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    SilentNotices notices;
    EditorOptions options;
    options.TabSize = input.byte() % 10;
    TextDocument document(options, notices);
    const ExtensionProfile profile;
    document.setProfile(profile);
    document.marked() = TakeMarked(input);
    const PrintLayout::Request request = TakeRequest(input);
    Fill(document, input.text(3000));

    const PrintLayout layout(document, request);
    std::size_t characters = 0;
    for (std::int32_t page = 1; page <= layout.pageCount(); ++page)
        characters += Check(layout.page(page), request, layout.textColumn());
    std::size_t expected = 0;
    for (const std::string& line : LinesOf(document)) {
        const auto end = static_cast<std::int32_t>(line.find_last_not_of(" \t") + 1);
        expected += static_cast<std::size_t>(ToDisplay(line, CharColumn(end), document.tabSize()).value);
    }
    if (request.area == PrintArea::Document) Require(characters == expected);
    return 0;
}

}  // namespace vexa::fuzz
