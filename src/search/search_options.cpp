#include "search/search_options.h"

#include <algorithm>

#include "search/search_texts.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Searching";

struct OptionKey {
    const char* key;
    bool SearchOptions::Values::*option;
};
constexpr OptionKey kOptionKeys[] = {
    {"Forward", &SearchOptions::Values::forward},
    {"CaseCheck", &SearchOptions::Values::matchCase},
    {"WholeWord", &SearchOptions::Values::wholeWord},
    {"ReplaceAll", &SearchOptions::Values::replaceAll},
    {"RegExpress", &SearchOptions::Values::regularExpression},
};

std::string Limited(std::string_view text) {
    return std::string(text.substr(0, std::min(text.find('\0'), SearchOptions::kTextLimit)));
}

}  // namespace

void SearchOptions::Load(const ConfigStore& store) {
    setFindText(store.ReadGuarded(kSection, "FindText", "", kTextLimit), false);
    setReplaceText(store.ReadGuarded(kSection, "ReplaceText", "", kTextLimit));
    for (const OptionKey& row : kOptionKeys)
        values_.*row.option = store.ReadInt(kSection, row.key, values_.*row.option ? 1 : 0) != 0;
}

void SearchOptions::Save(ConfigStore& store) const {
    store.WriteGuarded(kSection, "FindText", findText());
    store.WriteGuarded(kSection, "ReplaceText", replaceText());
    for (const OptionKey& row : kOptionKeys)
        store.WriteInt(kSection, row.key, values_.*row.option ? 1 : 0);
}

void SearchOptions::setFindText(std::string_view text, bool pending) {
    std::string limited = Limited(text);
    if (limited == values_.findText) return;
    values_.findText = std::move(limited);
    values_.matchPending = pending;
}

void SearchOptions::setReplaceText(std::string_view text) {
    values_.replaceText = Limited(text);
}

std::string SearchOptions::searchedText() const {
    const bool lineEnds = habits_->replacementGroups;
    if (!regularExpression()) return WithoutEscapes(findText(), lineEnds);
    return lineEnds ? PatternWithLineEnds(findText()) : findText();
}

std::string SearchOptions::insertedText() const {
    return regularExpression() ? replaceText() : WithoutEscapes(replaceText(), habits_->replacementGroups);
}

}  // namespace vexa
