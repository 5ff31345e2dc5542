#include "quickhelp/quick_help_model.h"

#include "base/strings.h"

namespace vexa {

QuickHelpModel::QuickHelpModel(HelpLookup& lookup, HistoryList& history, Notices& notices)
    : keyword(lookup.keyword()), lookup_(lookup), history_(history), notices_(notices) {}

std::vector<std::string> QuickHelpModel::rows() const {
    std::vector<std::string> titles;
    for (const HelpMatch& match : lookup_.matches())
        titles.push_back(match.title);
    return titles;
}

void QuickHelpModel::chooseRow(std::size_t row) {
    if (row < lookup_.matches().size()) chosenRow_ = row;
}

QuickHelpModel::Next QuickHelpModel::accept() {
    keyword.resize(std::min(keyword.size(), kKeywordLimit));
    if (keyword.empty()) {
        tell(LoadText(TextId::NoKeyword));
        return Next::FocusKeyword;
    }
    history_.Add(keyword);
    if (keyword != lookup_.keyword() || lookup_.matches().empty()) return lookUp();
    lookup_.choose(chosenRow_);
    return Next::Close;
}

QuickHelpModel::Next QuickHelpModel::lookUp() {
    const LookupResult result = lookup_.Lookup(keyword);
    chosenRow_ = 0;
    if (!lookup_.matches().empty()) return Next::FocusList;
    tell(TextOf(result, keyword));
    return Next::FocusKeyword;
}

}  // namespace vexa
