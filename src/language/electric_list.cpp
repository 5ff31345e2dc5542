#include "language/electric_list.h"

#include <algorithm>
#include <cstdio>

#include "base/ascii.h"
#include "base/file.h"
#include "base/take_text.h"

namespace vexa {

namespace {

constexpr std::size_t kLengthWidth = 2;
// Twice what a full list takes, for files that somebody has written by hand.
constexpr std::size_t kLargestFile = 2 * kElectricEntryLimit * (kElectricKeywordLimit + kElectricExpansionLimit + 8);
constexpr std::string_view kCaretEscape = "\\c";

bool IsControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

std::string OnOneLine(std::string_view text) {
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' || text[i] == '\r') {
            if (text.substr(i, 2) == "\r\n") ++i;
            line += "\\n";
        } else if (text[i] == '\t') {
            line += "\\t";
        } else {
            line += IsControl(text[i]) ? ' ' : text[i];
        }
    }
    return line;
}

std::string CleanExpansion(std::string_view text) {
    std::string line = OnOneLine(text).substr(0, kElectricExpansionLimit);
    if (!line.ends_with(' ')) return line;
    line.resize(std::min(line.size(), kElectricExpansionLimit - kCaretEscape.size()));
    return line.ends_with(' ') ? line.append(kCaretEscape) : line;
}

std::string FilledUp(std::string text, std::size_t width) {
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

std::string_view WithoutFilling(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

void TakeEntry(ElectricList& list, std::string_view line) {
    const std::string_view keyword = ElectricKeywordOf(TakeUpTo(line, '\t'));
    TakeUpTo(line, '\t');
    if (!list.find(keyword)) list.set(keyword, WithoutFilling(line));
}

}  // namespace

std::string_view ElectricKeywordOf(std::string_view text) {
    text = TrimBlanks(text);
    const auto end = std::ranges::find_if(text, [](char c) { return c == ' ' || IsControl(c); });
    return text.substr(0, static_cast<std::size_t>(end - text.begin())).substr(0, kElectricKeywordLimit);
}

std::size_t ElectricList::positionOf(std::string_view keyword) const {
    const auto position = std::ranges::lower_bound(entries_, keyword, {}, &ElectricEntry::keyword);
    return static_cast<std::size_t>(position - entries_.begin());
}

std::optional<std::size_t> ElectricList::find(std::string_view keyword) const {
    const std::size_t position = positionOf(keyword);
    if (position == entries_.size() || entries_[position].keyword != keyword) return std::nullopt;
    return position;
}

ElectricSet ElectricList::set(std::string_view keyword, std::string_view expansion) {
    ElectricEntry entry{std::string(ElectricKeywordOf(keyword)), CleanExpansion(expansion)};
    if (entry.keyword.empty()) return ElectricSet::NoKeyword;
    if (entry.expansion.empty()) return ElectricSet::NoExpansion;
    if (const auto known = find(entry.keyword)) {
        entries_[*known] = std::move(entry);
        return ElectricSet::Done;
    }
    if (entries_.size() >= kElectricEntryLimit) return ElectricSet::Full;
    const std::size_t position = positionOf(entry.keyword);
    entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(position), std::move(entry));
    return ElectricSet::Done;
}

bool ElectricList::remove(std::string_view keyword) {
    const auto known = find(keyword);
    if (known) entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(*known));
    return known.has_value();
}

std::string EncodeElectricList(const ElectricList& list) {
    std::string bytes = std::to_string(list.entries().size()) + "\r\n";
    for (const ElectricEntry& entry : list.entries()) {
        bytes += FilledUp(entry.keyword, kElectricKeywordLimit) + '\t';
        bytes += FilledUp(std::to_string(entry.keyword.size()), kLengthWidth) + '\t';
        bytes += FilledUp(entry.expansion, kElectricExpansionLimit) + "\r\n";
    }
    return bytes;
}

ElectricList DecodeElectricList(std::string_view bytes) {
    ElectricList list;
    while (!bytes.empty())
        TakeEntry(list, TakeLine(bytes));
    return list;
}

const ElectricList& ElectricWords::list() {
    static const ElectricList kNone;
    if (list_) return *list_;
    const auto bytes = ReadKeptFile(path_, kLargestFile);
    isUnreadable_ = !bytes;
    if (isUnreadable_) return kNone;
    return list_.emplace(DecodeElectricList(*bytes));
}

bool ElectricWords::replace(const ElectricList& list) {
    const bool written = !isUnreadable_ && WriteWholeFile(path_, EncodeElectricList(list));
    if (written) list_ = list;
    return written;
}

}  // namespace vexa
