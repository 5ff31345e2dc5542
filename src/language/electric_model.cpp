#include "language/electric_model.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/directories.h"
#include "base/strings.h"

namespace vexa {

namespace {

std::optional<std::string> RefusalOf(ElectricSet result) {
    switch (result) {
        case ElectricSet::NoKeyword:
            return std::string(LoadText(TextId::NoKeyword));
        case ElectricSet::NoExpansion:
            return std::string(LoadText(TextId::NoExpansion));
        case ElectricSet::Full:
            return FillText(TextId::ElectricListFull, {std::to_string(kElectricEntryLimit)});
        case ElectricSet::Done:
            break;
    }
    return std::nullopt;
}

}  // namespace

ElectricModel::ElectricModel(ElectricWords& words) : words_(words), list_(words.list()) {
    choose(0);
}

std::vector<std::string> ElectricModel::keywords() const {
    std::vector<std::string> texts;
    for (const ElectricEntry& entry : list_.entries())
        texts.push_back(entry.keyword);
    return texts;
}

void ElectricModel::choose(std::size_t row) {
    const ElectricEntry none;
    const ElectricEntry& entry = row < list_.entries().size() ? list_.entries()[row] : none;
    keyword = entry.keyword;
    expansion = entry.expansion;
}

std::optional<std::string> ElectricModel::set() {
    const auto refusal = RefusalOf(list_.set(keyword, expansion));
    if (refusal) return refusal;
    choose(list_.find(ElectricKeywordOf(keyword)).value_or(0));
    return std::nullopt;
}

std::optional<std::string> ElectricModel::update() {
    const bool isFilledIn = !TrimBlanks(keyword).empty() || !expansion.empty();
    if (isFilledIn) {
        if (const auto refusal = set()) return refusal;
    }
    if (words_.replace(list_)) return std::nullopt;
    const std::string& path = words_.path();
    return FillText(TextId::CannotWriteFile, {path.substr(DirectoryOf(path).size())});
}

void ElectricModel::remove() {
    const auto row = chosen();
    if (!row) return;
    list_.remove(keyword);
    choose(std::min(*row, std::max<std::size_t>(list_.entries().size(), 1) - 1));
}

}  // namespace vexa
