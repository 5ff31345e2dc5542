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
std::string Bytes16(std::size_t number);
std::string Bytes32(std::size_t number);
// The text and a zero byte.
std::string TextZ(std::string_view text);

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

// A B-tree of entries that are in their order already. The leaves are pages 0 and following, the root is the last page.
Tree MakeTree(const std::vector<TreeEntry>& entries, const TreeShape& shape);

struct SystemRecord {
    std::uint16_t type;
    std::string data;
};
inline constexpr std::uint16_t kTitleRecord = 1;

struct HelpKeyword {
    std::string text;
    std::vector<std::uint32_t> topics = {0};
};
std::vector<HelpKeyword> Keywords(const std::vector<std::string>& texts);

class HelpFileWriter {
  public:
    // An internal file of any name and contents; the last of a name counts.
    void addFile(const std::string& name, std::string contents) { files_[name] = std::move(contents); }
    // |SYSTEM, with records (minor 21 and above) or with a title alone (minor 15).
    void addSystem(std::uint16_t minor, const std::vector<SystemRecord>& records);
    void addSystem15(std::string_view title);
    // |KWBTREE, |KWDATA and |KWMAP for keywords in their order.
    void addKeywords(const std::vector<HelpKeyword>& keywords, const TreeShape& shape = {2048, "F24"});
    // How many files a page of the directory holds at most.
    void setDirectoryEntriesPerPage(std::size_t count) { directoryShape_.entriesPerPage = count; }

    // The whole help file. The directory comes behind the internal files.
    std::string bytes() const;

  private:
    std::map<std::string, std::string> files_;
    TreeShape directoryShape_{1024, "z4"};
};

}  // namespace vexa::test
