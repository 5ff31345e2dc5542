#include "quickhelp/help_lookup.h"

#include <algorithm>

#include "base/file.h"
#include "base/strings.h"
#include "quickhelp/help_index.h"
#include "quickhelp/help_index_reader.h"

namespace vexa {

namespace {

// The most keywords that are written, each as long as can be, have fewer bytes.
constexpr std::size_t kLargestIndex = std::size_t{32} << 20;
constexpr std::size_t kMostKept = kLargestIndex;

}  // namespace

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

// An index is kept for the next look-up, as opening so many files takes longer than all else.
const std::string* HelpLookup::textOf(const std::string& path) {
    const std::optional<platform::FileStamp> stamp = platform::StampOf(path);
    const auto known = std::ranges::find(read_, path, &Index::path);
    if (known != read_.end() && known->stamp == stamp) return &known->text;
    if (known != read_.end()) read_.erase(known);
    std::optional<std::string> text = File(path, platform::OpenMode::Read).readAll(kLargestIndex);
    if (!text || !stamp) return nullptr;
    if (keptBytes() + text->size() > kMostKept) read_.clear();
    read_.push_back({path, *stamp, *std::move(text)});
    return &read_.back().text;
}

std::size_t HelpLookup::keptBytes() const {
    std::size_t bytes = 0;
    for (const Index& index : read_)
        bytes += index.text.size();
    return bytes;
}

bool HelpLookup::readIndex(const std::string& path) {
    const std::string* text = textOf(path);
    if (!text) return true;
    HelpIndexReader index(*text);
    index.nextLine();  // the number of keywords
    const std::string helpFile(index.nextLine().value_or(std::string_view()));
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
