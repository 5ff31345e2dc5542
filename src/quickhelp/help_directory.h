// The directory inside a help file: where the internal files are.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "quickhelp/help_file_reader.h"

namespace vexa {

// In front of the contents of every internal file: reserved space, used space, flags.
inline constexpr std::uint64_t kInternalFileHeader = 9;
// In front of the pages of a B-tree.
inline constexpr std::uint64_t kTreeHeader = 38;
// The page after the last.
inline constexpr std::uint16_t kNoHelpPage = 0xFFFF;

struct LeafHeader {
    std::uint16_t entries;
    std::uint16_t nextPage;
};
// Of the leaf page at the reader's position, which goes to the first entry.
LeafHeader ReadLeafHeader(HelpFileReader& reader);

struct HelpFileEntry {
    enum class Outcome { Found, Missing, NameTooLong };
    Outcome outcome = Outcome::Missing;
    std::uint32_t offset = 0;  // of the internal file's header, when found
};

// Looks for the first internal file with one of the names in the directory that begins at an offset.
//
// Entries are asked for by number, and the number of the first entry of a page other than page 0 leads past the last
// entry of the page before it. That entry is therefore never found, and what follows the last one of a page is
// taken for an entry. A name of more than 50 characters before the wanted one ends the search.
HelpFileEntry FindInternalFile(HelpFileReader& reader, std::uint32_t directoryStart,
                               std::initializer_list<std::string_view> names);

}  // namespace vexa
