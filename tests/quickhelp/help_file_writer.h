// Writes small help files (.HLP) for tests: a header, a directory, and internal files put into it by name.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::test {

// The number's bytes, the lowest first.
inline std::string Number(std::int64_t number, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i));
    return bytes;
}

inline std::string Bytes16(std::size_t number) {
    return Number(static_cast<std::int64_t>(number), 2);
}

inline std::string Bytes32(std::size_t number) {
    return Number(static_cast<std::int64_t>(number), 4);
}

// The text and a zero byte.
inline std::string TextZ(std::string_view text) {
    return std::string(text) + '\0';
}

// An entry of a B-tree's leaf as it stands in the page; index pages repeat the key.
struct TreeEntry {
    std::string key;
    std::string rest;
};

struct TreeShape {
    std::uint16_t pageSize = 2048;
    std::string structure = "z4";
    std::size_t entriesPerPage = SIZE_MAX;  // fewer make more pages, and of index pages more levels
};

struct Tree {
    std::string bytes;                      // the contents of an internal file
    std::vector<std::size_t> firstEntries;  // of each leaf page, in the order of the pages
    std::size_t levels = 0;
};

inline constexpr std::size_t kNoPage = 0xFFFF;
inline constexpr std::size_t kLeafHeader = 8;
inline constexpr std::size_t kIndexHeader = 6;

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

// A B-tree of entries that are in their order already. The leaves are pages 0 and following, the root is the last page.
inline Tree MakeTree(const std::vector<TreeEntry>& entries, const TreeShape& shape) {
    return TreeBuilder(entries, shape).build();
}

struct SystemRecord {
    std::uint16_t type;
    std::string data;
};
inline constexpr std::uint16_t kTitleRecord = 1;

struct HelpKeyword {
    std::string text;
    std::vector<std::uint32_t> topics = {0};
};
inline std::vector<HelpKeyword> Keywords(const std::vector<std::string>& texts) {
    std::vector<HelpKeyword> keywords;
    for (const std::string& text : texts)
        keywords.push_back({text});
    return keywords;
}

class HelpFileWriter {
  public:
    // An internal file of any name and contents; the last of a name counts.
    void addFile(const std::string& name, std::string contents) { files_[name] = std::move(contents); }
    // |SYSTEM, with records (minor 21 and above) or with a title alone (minor 15).
    void addSystem(std::uint16_t minor, const std::vector<SystemRecord>& records) {
        constexpr std::size_t kMagic = 0x036C;
        constexpr std::size_t kDate = 0x30000000;
        std::string contents = Bytes16(kMagic) + Bytes16(minor) + Bytes16(1) + Bytes32(kDate) + Bytes16(0);
        for (const SystemRecord& record : records)
            contents += Bytes16(record.type) + Bytes16(record.data.size()) + record.data;
        addFile("|SYSTEM", contents);
    }
    void addSystem15(std::string_view title) {
        addSystem(15, {});
        files_["|SYSTEM"] += TextZ(title);
    }
    // |KWBTREE, |KWDATA and |KWMAP for keywords in their order.
    void addKeywords(const std::vector<HelpKeyword>& keywords, const TreeShape& shape = {2048, "F24"}) {
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
    // How many files a page of the directory holds at most.
    void setDirectoryEntriesPerPage(std::size_t count) { directoryShape_.entriesPerPage = count; }

    // The whole help file. The directory comes behind the internal files.
    std::string bytes() const {
        constexpr std::size_t kHeader = 16;
        constexpr char kDirectoryFlags = 4;
        std::string body;
        std::vector<TreeEntry> entries;
        for (const auto& [name, contents] : files_) {
            entries.push_back({TextZ(name), Bytes32(kHeader + body.size())});
            body += internalFile(contents, 0);
        }
        const std::size_t directoryStart = kHeader + body.size();
        body += internalFile(MakeTree(entries, directoryShape_).bytes, kDirectoryFlags);
        constexpr std::size_t kMagic = 0x00035F3F;
        return Bytes32(kMagic) + Bytes32(directoryStart) + Bytes32(0xFFFFFFFF) + Bytes32(kHeader + body.size()) + body;
    }

  private:
    // An internal file with the header in front of it.
    static std::string internalFile(const std::string& contents, char flags) {
        constexpr std::size_t kHeader = 9;
        return Bytes32(contents.size() + kHeader) + Bytes32(contents.size()) + flags + contents;
    }

    std::map<std::string, std::string> files_;
    TreeShape directoryShape_{1024, "z4"};
};

}  // namespace vexa::test
