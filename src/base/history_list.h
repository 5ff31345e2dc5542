// The texts last used in a dialog's field, as its drop-down list offers them, kept in a binary file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexa {

// A ring, not a list with the latest first: once full, new texts take the places of the oldest in turn.
//
// The file: a byte each for the next slot and the number of entries; of each entry, in order, its length in a byte, its
// characters and a zero byte. An entry of length 0 is passed over. A file of other bytes gives the entries that can be
// made out; more than a full list (a file may hold 255) are kept, but only the first slots are ever reused.
class HistoryList {
  public:
    static constexpr std::size_t kEntries = 4;
    static constexpr std::size_t kEntryLimit = 255;  // characters

    // Reads the file of that name in the configuration directory (without "\" at its end); empty when it cannot be
    // read.
    HistoryList(const std::string& directory, const std::string& fileName);

    // Notes a text that has been used and selects it; one that is there already keeps its place. An empty text takes
    // the selection away. What goes beyond the limit is cut off, as is what follows a zero byte.
    void Add(std::string_view text);
    // Writes the file whole; on failure it keeps what it held, as does one that could not be read.
    void Save() const;

    const std::vector<std::string>& entries() const { return entries_; }
    std::optional<std::size_t> selection() const { return selection_; }
    std::size_t nextSlot() const { return nextSlot_; }

  private:
    void read(std::string_view bytes);

    std::string path_;
    std::vector<std::string> entries_;
    std::optional<std::size_t> selection_;
    std::size_t nextSlot_ = 0;
    bool isRead_ = false;
};

}  // namespace vexa
