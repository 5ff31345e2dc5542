// The rules of the "Functions" dialog.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "search/function_list.h"

namespace vexa {

// Shows those of the functions whose names contain the filter, letter case ignored.
class FunctionListModel {
  public:
    // The function that the line is in is chosen: the last that begins at or before it.
    FunctionListModel(std::vector<FunctionEntry> functions, LineIndex line);

    // The chosen function stays chosen while it is shown; else the first that is shown is.
    void setFilter(std::string_view filter);
    // One text a shown function: its line, counted from 1, a tab, its name.
    std::vector<std::string> rows() const;
    // The chosen row; none when no function is shown.
    std::optional<std::size_t> chosenRow() const;
    void chooseRow(std::size_t row);
    // The line of the chosen function.
    std::optional<LineIndex> chosenLine() const;

  private:
    const std::vector<FunctionEntry> functions_;
    std::vector<std::size_t> shown_;  // indexes into the functions
    std::size_t chosen_ = 0;          // one of them, shown or not
};

}  // namespace vexa
