#include "quickhelp/help_keywords.h"

#include "quickhelp/help_directory.h"

namespace vexa {

namespace {

constexpr std::size_t kKeptCharacters = 79;
constexpr std::uint16_t kUsualPageSize = 2048;

struct TreeHeader {
    std::uint16_t pageSize;
    std::uint16_t rootPage;
    std::uint16_t levels;
    std::int32_t entries;
};

TreeHeader ReadTreeHeader(HelpFileReader& reader, std::uint64_t tree) {
    constexpr std::uint64_t kPageSize = 4;
    constexpr std::uint64_t kRootPage = 26;
    constexpr std::uint64_t kLevels = 32;
    const auto numberAt = [&](std::uint64_t field) {
        reader.seek(tree + field);
        return reader.number16();
    };
    TreeHeader header{numberAt(kPageSize), numberAt(kRootPage), numberAt(kLevels), 0};
    header.entries = static_cast<std::int32_t>(reader.number32());
    return header;
}

// Goes through the leaves with pages of one size.
class KeywordWalk {
  public:
    KeywordWalk(HelpFileReader& reader, std::uint64_t tree, const TreeHeader& header, std::uint16_t pageSize)
        : reader_(reader), pages_(tree + kTreeHeader), header_(header), pageSize_(pageSize) {}

    std::optional<KeywordLines> run() {
        reader_.allow(reader_.size());
        reader_.seek(pages_);
        if (header_.levels > 0) {
            std::uint16_t page = firstLeaf();
            while (page != kNoHelpPage && !isFaulty())
                page = readLeaf(page);
        }
        if (isFaulty() || found_ != header_.entries) return std::nullopt;
        return std::move(lines_);
    }

  private:
    bool isFaulty() const { return reader_.failed() || found_ > header_.entries; }
    void goToPage(std::uint16_t page) { reader_.seek(pages_ + std::uint64_t{page} * pageSize_); }

    std::uint16_t firstLeaf() {
        if (header_.levels == 1) return 0;
        std::uint16_t page = header_.rootPage;
        for (int level = 1; level < header_.levels && !reader_.failed(); ++level) {
            goToPage(page);
            reader_.number32();  // free space and number of entries
            page = reader_.number16();
        }
        return page;
    }

    // The number of the next leaf.
    std::uint16_t readLeaf(std::uint16_t page) {
        goToPage(page);
        const LeafHeader leaf = ReadLeafHeader(reader_);
        for (int i = 0; i < leaf.entries && !isFaulty(); ++i)
            readKeyword();
        return leaf.nextPage;
    }

    void readKeyword() {
        const std::string keyword = reader_.text(kKeptCharacters);
        reader_.number16();  // how many topics it leads to
        reader_.number32();  // and where they are listed
        ++found_;
        if (lines_.count == kMostKeywords) return;
        lines_.text += keyword;
        lines_.text += "\r\n";
        ++lines_.count;
    }

    HelpFileReader& reader_;
    const std::uint64_t pages_;
    const TreeHeader& header_;
    const std::uint16_t pageSize_;
    KeywordLines lines_;
    std::int32_t found_ = 0;
};

}  // namespace

std::optional<KeywordLines> ReadKeywords(HelpFileReader& reader, std::uint32_t offset) {
    const std::uint64_t tree = offset + kInternalFileHeader;
    reader.allow(reader.size());
    const TreeHeader header = ReadTreeHeader(reader, tree);
    if (reader.failed()) return std::nullopt;
    auto keywords = KeywordWalk(reader, tree, header, kUsualPageSize).run();
    if (!keywords && header.pageSize != kUsualPageSize)
        keywords = KeywordWalk(reader, tree, header, header.pageSize).run();
    return keywords;
}

}  // namespace vexa
