// Divides a document, or what is marked in it, into printed pages of rows of characters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/units.h"
#include "document/print/print_options.h"
#include "document/text/text_document.h"
#include "document/view/row_renderer.h"

namespace vexa {

// What fits on a page between its margins; a header takes its rows from it.
struct PageGrid {
    std::int32_t rows = 1;
    std::int32_t columns = 1;
};

// The rows that a header takes: its text, and one that divides it from the document.
inline constexpr std::int32_t kHeaderRows = 2;

// Pages smaller than this are refused: with a header and line numbers nothing would be left for the text.
inline constexpr PageGrid kSmallestPage{4, 20};
constexpr bool HasRoomToPrint(PageGrid page) {
    return page.rows >= kSmallestPage.rows && page.columns >= kSmallestPage.columns;
}

enum class PrintArea {
    Document,
    Marked  // the text that is marked, from the page's left edge on
};

// What the header says beside the number of the page.
struct PrintHeading {
    std::string name;
    std::string date;
};

struct PrintedRow {
    // Counted from 1; none for a line that goes on, and where none are asked for.
    std::optional<std::int32_t> lineNumber;
    ViewRow text;

    bool operator==(const PrintedRow&) const = default;
};

struct PrintedPage {
    std::string header;  // as wide as the page; empty without one
    std::vector<PrintedRow> rows;
};

// The header's text: the name to the left, date and page to the right. A name that has no room loses its beginning.
std::string HeaderText(const PrintHeading& heading, std::int32_t page, std::int32_t pages, std::int32_t columns);

// Tabs stand as on the screen; a line that is wider than the page goes on in the next row, and blanks at its end are
// left out. So are lines without text at the end of what is printed: with nothing else there are no pages. Pages are
// made when they are asked for, so that a document of any size costs little memory. The document must not change
// meanwhile.
class PrintLayout {
  public:
    struct Request {
        PrintArea area = PrintArea::Document;
        PageGrid page;  // HasRoomToPrint
        PrintOptions options;
        PrintHeading heading;
        bool highlighting = true;
    };

    PrintLayout(const TextDocument& document, Request request);

    std::int32_t pageCount() const { return static_cast<std::int32_t>(firstRows_.size()); }
    // A page by its number, which is counted from 1.
    PrintedPage page(std::int32_t number) const;
    // The column in which text begins: after the line numbers, where there are any.
    std::int32_t textColumn() const { return textColumn_; }
    std::int32_t numberDigits() const { return numberDigits_; }

  private:
    // A row of a line, counted from 0.
    struct RowPosition {
        LineIndex line;
        std::int32_t row = 0;
    };

    ColumnSpan printedColumns(LineIndex line) const;
    std::int32_t rowsOf(LineIndex line) const;
    void findLines();
    void reserveNumbers();
    void divide();
    RowPosition next(RowPosition position, std::int32_t rowsOfLine) const;
    PrintedRow printedRow(RowPosition position, ColumnSpan columns) const;

    const TextDocument& document_;
    Request request_;
    LineIndex first_;
    LineIndex last_{-1};  // none when it lies before the first
    std::int32_t textColumn_ = 0;
    std::int32_t numberDigits_ = 0;
    std::int32_t textColumns_ = 1;
    std::int32_t textRows_ = 1;
    std::vector<RowPosition> firstRows_;  // of each page
};

}  // namespace vexa
