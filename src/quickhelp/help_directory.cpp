#include "quickhelp/help_directory.h"

#include <algorithm>

namespace vexa {

namespace {

constexpr std::size_t kNameLimit = 50;
constexpr std::uint64_t kPageSize = 1024;
constexpr std::uint64_t kEntryCount = 34;  // in the tree's header

// The search for one name.
class DirectorySearch {
  public:
    DirectorySearch(HelpFileReader& reader, std::uint32_t start, std::initializer_list<std::string_view> names)
        : reader_(reader), tree_(start + kInternalFileHeader), names_(names) {}

    HelpFileEntry find() {
        reader_.allow(2 * reader_.size());
        reader_.seek(tree_ + kEntryCount);
        total_ = static_cast<std::int32_t>(reader_.number32());
        std::uint16_t page = 0;
        while (before_ < total_ && page != kNoHelpPage) {
            reader_.seek(tree_ + kTreeHeader + page * kPageSize);
            const LeafHeader leaf = ReadLeafHeader(reader_);
            if (reader_.failed()) break;
            const HelpFileEntry entry = findInPage(leaf.entries);
            if (entry.outcome != HelpFileEntry::Outcome::Missing) return entry;
            before_ += leaf.entries;
            page = leaf.nextPage;
        }
        return {};
    }

  private:
    HelpFileEntry findInPage(std::int64_t entries) {
        const std::int64_t last = std::min(before_ + entries, total_ - 1);
        for (std::int64_t i = before_; i <= last && !reader_.failed(); ++i) {
            const HelpFileEntry entry = readEntry();
            const bool isLookedUp = i > before_ || i == 0;
            if (isLookedUp && entry.outcome != HelpFileEntry::Outcome::Missing) return entry;
        }
        return {};
    }

    HelpFileEntry readEntry() {
        const std::string name = reader_.text(kNameLimit + 1);
        const std::uint32_t offset = reader_.number32();
        if (reader_.failed()) return {};
        if (name.size() > kNameLimit) return {HelpFileEntry::Outcome::NameTooLong};
        if (std::ranges::find(names_, name) == names_.end()) return {};
        return {HelpFileEntry::Outcome::Found, offset};
    }

    HelpFileReader& reader_;
    const std::uint64_t tree_;
    const std::initializer_list<std::string_view> names_;
    std::int64_t total_ = 0;
    std::int64_t before_ = 0;  // entries of the pages before
};

}  // namespace

LeafHeader ReadLeafHeader(HelpFileReader& reader) {
    reader.number16();
    const std::uint16_t entries = reader.number16();
    reader.number16();
    return {entries, reader.number16()};
}

HelpFileEntry FindInternalFile(HelpFileReader& reader, std::uint32_t directoryStart,
                               std::initializer_list<std::string_view> names) {
    return DirectorySearch(reader, directoryStart, names).find();
}

}  // namespace vexa
