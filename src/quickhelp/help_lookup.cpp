#include "quickhelp/help_lookup.h"

#include "base/platform.h"
#include "base/strings.h"
#include "quickhelp/help_index.h"
#include "quickhelp/help_index_reader.h"

namespace vexa {

LookupResult HelpLookup::Lookup(const std::string& keyword) {
    const BusyCursor busy(notices_);
    keyword_ = keyword;
    matches_.clear();
    chosen_.reset();
    const std::vector<std::string> indexes = FindHelpIndexes(directory_);
    if (indexes.empty()) return LookupResult::NoIndexes;
    for (auto name = indexes.begin(); name != indexes.end() && matches_.size() < kMostMatches; ++name) {
        const std::string path = directory_ + "\\" + *name;
        if (!readIndex(path)) DeleteHelpIndex(path);
    }
    if (matches_.empty()) return LookupResult::NoMatch;
    if (matches_.size() > 1) return LookupResult::SeveralMatches;
    choose(0);
    return LookupResult::OneMatch;
}

bool HelpLookup::readIndex(const std::string& path) {
    HelpIndexReader index(path);
    if (!index.isOpen()) return true;
    index.nextLine();  // the number of keywords
    const std::string helpFile(index.nextLine().value_or(std::string_view()));
    if (index.failed()) return true;
    if (!platform::PathExists(helpFile)) return false;
    std::string title(index.nextLine().value_or(std::string_view()));
    if (index.hasLineThatBeginsWith(keyword_)) matches_.push_back({helpFile, std::move(title)});
    return true;
}

std::string TextOf(LookupResult result, const std::string& keyword) {
    switch (result) {
        case LookupResult::OneMatch:
        case LookupResult::SeveralMatches:
            break;
        case LookupResult::NoMatch:
            return FillText(TextId::TopicNotFound, {keyword});
        case LookupResult::NoIndexes:
            return std::string(LoadText(TextId::NoHelpInstalled));
    }
    return {};
}

}  // namespace vexa
