#include "search/function_list_model.h"

#include <algorithm>

#include "base/ascii.h"

namespace vexa {

namespace {

bool Contains(std::string_view text, std::string_view part) {
    const auto same = [](char a, char b) { return LowerAscii(a) == LowerAscii(b); };
    return part.empty() || std::search(text.begin(), text.end(), part.begin(), part.end(), same) != text.end();
}

}  // namespace

FunctionListModel::FunctionListModel(std::vector<FunctionEntry> functions, LineIndex line)
    : functions_(std::move(functions)) {
    const auto after = std::ranges::upper_bound(functions_, line, {}, &FunctionEntry::line);
    if (after != functions_.begin()) chosen_ = static_cast<std::size_t>(after - functions_.begin()) - 1;
    setFilter({});
}

void FunctionListModel::setFilter(std::string_view filter) {
    shown_.clear();
    for (std::size_t i = 0; i < functions_.size(); ++i) {
        if (Contains(functions_[i].name, filter)) shown_.push_back(i);
    }
    if (!shown_.empty() && !std::ranges::binary_search(shown_, chosen_)) chosen_ = shown_.front();
}

std::vector<std::string> FunctionListModel::rows() const {
    std::vector<std::string> rows;
    for (const std::size_t i : shown_)
        rows.push_back(std::to_string(functions_[i].line.value + 1) + "\t" + functions_[i].name);
    return rows;
}

std::optional<std::size_t> FunctionListModel::chosenRow() const {
    const auto row = std::ranges::lower_bound(shown_, chosen_);
    if (row == shown_.end()) return std::nullopt;
    return static_cast<std::size_t>(row - shown_.begin());
}

void FunctionListModel::chooseRow(std::size_t row) {
    if (row < shown_.size()) chosen_ = shown_[row];
}

std::optional<LineIndex> FunctionListModel::chosenLine() const {
    if (!chosenRow()) return std::nullopt;
    return functions_[chosen_].line;
}

}  // namespace vexa
