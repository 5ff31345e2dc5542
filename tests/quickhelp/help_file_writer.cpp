#include "quickhelp/help_file_writer.h"

#include <algorithm>

namespace vexa::test {

namespace {

constexpr std::size_t kNoPage = 0xFFFF;
constexpr std::size_t kLeafHeader = 8;
constexpr std::size_t kIndexHeader = 6;

std::string LittleEndian(std::size_t number, std::size_t size) {
    std::string bytes;
    for (std::size_t i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i));
    return bytes;
}

// An internal file with the header in front of it.
std::string InternalFile(const std::string& contents, char flags) {
    constexpr std::size_t kHeader = 9;
    return Bytes32(contents.size() + kHeader) + Bytes32(contents.size()) + flags + contents;
}

// Cuts entries into pages and builds one level of a tree upon another.
class TreeBuilder {
  public:
    TreeBuilder(const std::vector<TreeEntry>& entries, const TreeShape& shape) : entries_(entries), shape_(shape) {}

    Tree build() {
        std::vector<Child> level = addLeaves();
        tree_.levels = 1;
        while (level.size() > 1) {
            level = addIndexPages(level);
            ++tree_.levels;
        }
        tree_.bytes = header() + pages_;
        return tree_;
    }

  private:
    struct Child {
        std::string key;
        std::size_t page;
    };

    // Where the page that begins with this item ends.
    template <class Size>
    std::size_t endOfPage(std::size_t first, std::size_t count, std::size_t pageHeader, Size sizeOf) const {
        std::size_t room = shape_.pageSize - pageHeader;
        std::size_t end = first;
        while (end < count && end - first < shape_.entriesPerPage && sizeOf(end) <= room)
            room -= sizeOf(end++);
        return end;
    }

    std::vector<Child> addLeaves() {
        const auto sizeOf = [this](std::size_t i) { return entries_[i].key.size() + entries_[i].rest.size(); };
        std::vector<Child> level;
        std::size_t first = 0;
        do {
            const std::size_t end = endOfPage(first, entries_.size(), kLeafHeader, sizeOf);
            level.push_back({first < entries_.size() ? entries_[first].key : std::string(), level.size()});
            tree_.firstEntries.push_back(first);
            addLeaf(first, end);
            first = end;
        } while (first < entries_.size());
        return level;
    }

    void addLeaf(std::size_t first, std::size_t end) {
        const std::size_t page = tree_.firstEntries.size() - 1;
        std::string body = Bytes16(page == 0 ? kNoPage : page - 1);
        body += Bytes16(end < entries_.size() ? page + 1 : kNoPage);
        for (std::size_t i = first; i < end; ++i)
            body += entries_[i].key + entries_[i].rest;
        addPage(end - first, body);
    }

    std::vector<Child> addIndexPages(const std::vector<Child>& below) {
        const auto sizeOf = [&below](std::size_t i) { return below[i].key.size() + 2; };
        std::vector<Child> level;
        for (std::size_t first = 0; first < below.size();) {
            const std::size_t end = endOfPage(first + 1, below.size(), kIndexHeader, sizeOf);
            std::string body = Bytes16(below[first].page);
            for (std::size_t i = first + 1; i < end; ++i)
                body += below[i].key + Bytes16(below[i].page);
            level.push_back({below[first].key, pageCount_});
            addPage(end - first - 1, body);
            first = end;
        }
        return level;
    }

    void addPage(std::size_t entryCount, const std::string& body) {
        const std::size_t unused = shape_.pageSize - 4 - body.size();
        pages_ += Bytes16(unused) + Bytes16(entryCount) + body + std::string(unused, '\0');
        ++pageCount_;
    }

    std::string header() const {
        constexpr std::size_t kMagic = 0x293B;
        std::string structure = shape_.structure;
        structure.resize(16);
        return Bytes16(kMagic) + Bytes16(2) + Bytes16(shape_.pageSize) + structure + Bytes16(0) + Bytes16(0) +
               Bytes16(pageCount_ - 1) + Bytes16(kNoPage) + Bytes16(pageCount_) + Bytes16(tree_.levels) +
               Bytes32(entries_.size());
    }

    const std::vector<TreeEntry>& entries_;
    const TreeShape& shape_;
    Tree tree_;
    std::string pages_;
    std::size_t pageCount_ = 0;
};

}  // namespace

std::string Bytes16(std::size_t number) {
    return LittleEndian(number, 2);
}

std::string Bytes32(std::size_t number) {
    return LittleEndian(number, 4);
}

std::string TextZ(std::string_view text) {
    return std::string(text) + '\0';
}

Tree MakeTree(const std::vector<TreeEntry>& entries, const TreeShape& shape) {
    return TreeBuilder(entries, shape).build();
}

std::vector<HelpKeyword> Keywords(const std::vector<std::string>& texts) {
    std::vector<HelpKeyword> keywords;
    for (const std::string& text : texts)
        keywords.push_back({text});
    return keywords;
}

void HelpFileWriter::addSystem(std::uint16_t minor, const std::vector<SystemRecord>& records) {
    constexpr std::size_t kMagic = 0x036C;
    constexpr std::size_t kDate = 0x30000000;
    std::string contents = Bytes16(kMagic) + Bytes16(minor) + Bytes16(1) + Bytes32(kDate) + Bytes16(0);
    for (const SystemRecord& record : records)
        contents += Bytes16(record.type) + Bytes16(record.data.size()) + record.data;
    addFile("|SYSTEM", contents);
}

void HelpFileWriter::addSystem15(std::string_view title) {
    addSystem(15, {});
    files_["|SYSTEM"] += TextZ(title);
}

void HelpFileWriter::addKeywords(const std::vector<HelpKeyword>& keywords, const TreeShape& shape) {
    std::vector<TreeEntry> entries;
    std::string topics;
    for (const HelpKeyword& keyword : keywords) {
        entries.push_back({TextZ(keyword.text), Bytes16(keyword.topics.size()) + Bytes32(topics.size())});
        for (const std::uint32_t topic : keyword.topics)
            topics += Bytes32(topic);
    }
    const Tree tree = MakeTree(entries, shape);
    std::string map = Bytes16(tree.firstEntries.size());
    for (std::size_t page = 0; page < tree.firstEntries.size(); ++page)
        map += Bytes32(tree.firstEntries[page]) + Bytes16(page);
    addFile("|KWBTREE", tree.bytes);
    addFile("|KWDATA", topics);
    addFile("|KWMAP", map);
}

std::string HelpFileWriter::bytes() const {
    constexpr std::size_t kHeader = 16;
    constexpr char kDirectoryFlags = 4;
    std::string body;
    std::vector<TreeEntry> entries;
    for (const auto& [name, contents] : files_) {
        entries.push_back({TextZ(name), Bytes32(kHeader + body.size())});
        body += InternalFile(contents, 0);
    }
    const std::size_t directoryStart = kHeader + body.size();
    body += InternalFile(MakeTree(entries, directoryShape_).bytes, kDirectoryFlags);
    constexpr std::size_t kMagic = 0x00035F3F;
    return Bytes32(kMagic) + Bytes32(directoryStart) + Bytes32(0xFFFFFFFF) + Bytes32(kHeader + body.size()) + body;
}

}  // namespace vexa::test
