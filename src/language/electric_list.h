// The electric words: keywords, each with the text that replaces it when a blank is typed after it, and their
// file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexa {

// Limits in bytes, and of the number of entries.
inline constexpr std::size_t kElectricKeywordLimit = 10;
inline constexpr std::size_t kElectricExpansionLimit = 300;
inline constexpr std::size_t kElectricEntryLimit = 200;

struct ElectricEntry {
    std::string keyword;
    // On one line: \n is a new line, \t a tab stop, \c where the caret ends, \\ a backslash.
    std::string expansion;

    bool operator==(const ElectricEntry&) const = default;
};

enum class ElectricSet { Done, NoKeyword, NoExpansion, Full };

// What the list keeps of a keyword: it ends at its first blank or control character, and at the limit.
std::string_view ElectricKeywordOf(std::string_view text);

// Sorted by keyword; no two entries have the same one, and neither text of an entry is empty.
class ElectricList {
  public:
    const std::vector<ElectricEntry>& entries() const { return entries_; }
    // Adds an entry or gives the keyword a new expansion. Line ends, tabs and other control characters of the expansion
    // become \n, \t and blanks; blanks at its end, which the file cannot hold, are kept by a \c after them. What goes
    // beyond the limit is cut off.
    ElectricSet set(std::string_view keyword, std::string_view expansion);
    // False when there is no such keyword.
    bool remove(std::string_view keyword);
    // None when there is no such keyword, in exactly that letter case.
    std::optional<std::size_t> find(std::string_view keyword) const;

    bool operator==(const ElectricList&) const = default;

  private:
    std::size_t positionOf(std::string_view keyword) const;

    std::vector<ElectricEntry> entries_;
};

// The file: a line with the number of entries, then a line for each: the keyword filled up with blanks to 10 bytes, a
// tab, the keyword's length filled up to 2, a tab, the expansion filled up to 300. Lines end in CR LF.
//
// Any bytes give a list. Lines that are not of that shape are passed over, and so are those beyond the 200th entry and
// later ones of a keyword that is there already. The numbers are not relied upon, so that lines can be added by hand,
// nor are the widths; line ends may be LF.
std::string EncodeElectricList(const ElectricList& list);
ElectricList DecodeElectricList(std::string_view bytes);

// The list in use. It is read when it is first asked for; without a file it is empty, and also while the file cannot be
// read, which is tried again whenever the list is asked for.
class ElectricWords {
  public:
    // The directory of the file, without a "\" at its end.
    explicit ElectricWords(const std::string& configDirectory) : path_(configDirectory + "\\vexa.elc") {}

    const std::string& path() const { return path_; }
    const ElectricList& list();
    // Writes the file whole and uses the list from now on; false leaves both as they were. A file that could not be
    // read is not written over.
    bool replace(const ElectricList& list);

  private:
    const std::string path_;
    std::optional<ElectricList> list_;
    bool isUnreadable_ = false;
};

}  // namespace vexa
