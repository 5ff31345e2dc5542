#include "base/history_list.h"

#include <algorithm>

#include "base/file.h"

namespace vexa {

namespace {

constexpr std::size_t kLargestCount = 255;
constexpr std::size_t kLargestFile = 2 + kLargestCount * (1 + HistoryList::kEntryLimit + 1);

// A control shows a text up to its first zero byte.
std::string_view Shown(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

std::size_t TakeByte(std::string_view& bytes) {
    const auto value = static_cast<unsigned char>(bytes.front());
    bytes.remove_prefix(1);
    return value;
}

std::string_view Take(std::string_view& bytes, std::size_t count) {
    const std::string_view taken = bytes.substr(0, count);
    bytes.remove_prefix(taken.size());
    return taken;
}

}  // namespace

HistoryList::HistoryList(const std::string& directory, const std::string& fileName)
    : path_(directory + "\\" + fileName) {
    const std::optional<std::string> bytes = ReadKeptFile(path_, kLargestFile);
    isRead_ = bytes.has_value();
    if (isRead_) read(*bytes);
}

void HistoryList::read(std::string_view bytes) {
    if (bytes.size() < 2) return;
    nextSlot_ = TakeByte(bytes);
    for (std::size_t left = TakeByte(bytes); left > 0 && !bytes.empty(); --left) {
        const std::size_t length = TakeByte(bytes);
        const std::string_view text = Shown(Take(bytes, length));
        Take(bytes, 1);
        if (!text.empty()) entries_.emplace_back(text);
    }
}

void HistoryList::Add(std::string_view text) {
    text = Shown(text).substr(0, kEntryLimit);
    selection_.reset();
    if (text.empty()) return;
    auto entry = std::ranges::find(entries_, text);
    if (entry == entries_.end()) {
        const std::size_t slot = nextSlot_ < kEntries ? nextSlot_ : 0;
        if (entries_.size() < kEntries) {
            entry = entries_.emplace(entries_.end(), text);
        } else {
            entry = entries_.begin() + static_cast<std::ptrdiff_t>(slot);
            *entry = text;
        }
        nextSlot_ = static_cast<std::size_t>(entry - entries_.begin()) + 1;
    }
    selection_ = static_cast<std::size_t>(entry - entries_.begin());
}

void HistoryList::Save() const {
    if (!isRead_) return;
    std::string bytes{static_cast<char>(nextSlot_), static_cast<char>(entries_.size())};
    for (const std::string& entry : entries_) {
        bytes += static_cast<char>(entry.size());
        bytes += entry;
        bytes += '\0';
    }
    WriteWholeFile(path_, bytes);
}

}  // namespace vexa
