// What a list window shows, whatever the list is about, and what the list may ask of its window.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vexa {

// What a row's colour tells.
enum class RowKind : std::uint8_t { Plain, Error, Warning };

// A part of a row's text, in characters.
struct RowPart {
    std::size_t start = 0;
    std::size_t length = 0;
};

// The model of a list window. Rows are counted from 0.
class ListRows {
  public:
    virtual ~ListRows() = default;

    virtual std::size_t rowCount() const = 0;
    // Valid until the rows are cleared.
    virtual std::string_view rowText(std::size_t row) const = 0;
    virtual RowKind rowKind(std::size_t row) const = 0;
    // What stands out from the rest of the row.
    virtual RowPart highlight(std::size_t /*row*/) const { return {}; }
    // The characters of the longest row.
    virtual std::size_t longestRow() const = 0;
    virtual std::optional<std::size_t> selectedRow() const = 0;
    // The user has moved the selection to a row.
    virtual void selectRow(std::size_t row) = 0;
    // Enter or a double click on the selected row.
    virtual void activateRow() = 0;
    virtual void clearRows() = 0;
    // The user wants no more rows than there are.
    virtual void stopFilling() {}
    // The window was closed by its user. The rows stay.
    virtual void closed() {}
};

// The window of a list. It may not have been made yet, or be closed; the calls then wait for it.
class ListView {
  public:
    virtual ~ListView() = default;
    // Rows have come or gone.
    virtual void rowsChanged() = 0;
    // Another row is selected, or none; it is to be seen.
    virtual void selectionChanged() = 0;
    // Makes the window if there is none, and brings it to the top.
    virtual void show() = 0;
    virtual bool isActive() const = 0;
};

}  // namespace vexa
