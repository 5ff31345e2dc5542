#include <algorithm>
#include <vector>

#include "base/ascii.h"
#include "base/platform.h"

// The grammar that Windows reads: "[section]" and "key=value" lines, ";" comments, letter case and blanks around names
// and values ignored, the first of several equal names counts.

namespace vexa::platform {

namespace {

constexpr std::size_t kLargestSettingsFile = 16 << 20;
constexpr const char* kLineEnd = "\r\n";

struct Entry {
    std::string_view key;
    std::string_view value;
};

std::string_view WithoutLineEnd(std::string_view line) {
    return line.substr(0, line.find_last_not_of("\r\n") + 1);
}

std::optional<std::string_view> SectionName(std::string_view line) {
    line = TrimBlanks(WithoutLineEnd(line));
    const std::size_t end = line.rfind(']');
    if (!line.starts_with('[') || end == std::string_view::npos) return std::nullopt;
    return TrimBlanks(line.substr(1, end - 1));
}

std::optional<Entry> EntryOf(std::string_view line) {
    line = TrimBlanks(WithoutLineEnd(line));
    const std::size_t equals = line.find('=');
    if (line.starts_with(';') || equals == std::string_view::npos) return std::nullopt;
    return Entry{TrimBlanks(line.substr(0, equals)), TrimBlanks(line.substr(equals + 1))};
}

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() && (value[0] == '"' || value[0] == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// The lines of a settings file, each with its end, so that what is not changed is written back byte for byte.
class SettingsLines {
  public:
    explicit SettingsLines(std::string_view text) {
        while (!text.empty()) {
            const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
            lines_.emplace_back(text.substr(0, size));
            text.remove_prefix(size);
        }
    }

    std::optional<std::string> value(std::string_view section, std::string_view key) const {
        const std::size_t line = findKey(findSection(section), key);
        if (line == lines_.size() || SectionName(lines_[line])) return std::nullopt;
        return std::string(WithoutQuotes(EntryOf(lines_[line])->value));
    }

    void set(std::string_view section, std::string_view key, std::string_view value) {
        if (!lines_.empty() && !lines_.back().ends_with('\n')) lines_.back() += kLineEnd;
        std::size_t first = findSection(section);
        if (first == 0) {
            lines_.push_back("[" + std::string(section) + "]" + kLineEnd);
            first = lines_.size();
        }
        const std::size_t line = findKey(first, key);
        const bool present = line < lines_.size() && !SectionName(lines_[line]);
        const std::string_view name = present ? EntryOf(lines_[line])->key : key;
        std::string changed = std::string(name) + "=" + std::string(value) + kLineEnd;
        if (present)
            lines_[line] = std::move(changed);
        else
            lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(lastUsedLine(first, line)), std::move(changed));
    }

    std::string text() const {
        std::string joined;
        for (const std::string& line : lines_)
            joined += line;
        return joined;
    }

  private:
    // The line after the section's heading; 0 when there is none.
    std::size_t findSection(std::string_view name) const {
        for (std::size_t i = 0; i < lines_.size(); ++i)
            if (const auto found = SectionName(lines_[i]); found && EqualIgnoringCase(*found, name)) return i + 1;
        return 0;
    }

    // The key's line; the next section's heading or the end of the file when the section has no such key.
    std::size_t findKey(std::size_t first, std::string_view key) const {
        if (first == 0) return lines_.size();
        for (std::size_t i = first; i < lines_.size(); ++i) {
            const auto entry = EntryOf(lines_[i]);
            if (SectionName(lines_[i]) || (entry && EqualIgnoringCase(entry->key, key))) return i;
        }
        return lines_.size();
    }

    // The blank lines that part two sections stay below what is added to the first.
    std::size_t lastUsedLine(std::size_t first, std::size_t end) const {
        while (end > first && TrimBlanks(WithoutLineEnd(lines_[end - 1])).empty())
            --end;
        return end;
    }

    std::vector<std::string> lines_;
};

// Empty for a missing file; none for one that cannot be read.
std::optional<std::string> ReadText(const std::string& file) {
    const FileHandle handle = OpenFile(file, OpenMode::Read);
    if (handle == kNoFile) return PathExists(file) ? std::nullopt : std::optional<std::string>("");
    const std::optional<std::uint64_t> size = FileSize(handle);
    std::string text(static_cast<std::size_t>(std::min<std::uint64_t>(size.value_or(0), kLargestSettingsFile)), '\0');
    const std::optional<std::size_t> count = ReadFile(handle, text.data(), text.size());
    CloseFile(handle);
    if (!size || !count) return std::nullopt;
    text.resize(*count);
    return text;
}

bool ReplaceText(const std::string& file, std::string_view text) {
    const std::string temporary = file + ".~";
    const FileHandle handle = OpenFile(temporary, OpenMode::CreateAlways);
    if (handle == kNoFile) return false;
    const bool written = WriteFile(handle, text);
    const bool done = CloseFile(handle) && written && RenameFile(temporary, file);
    if (!done) RemoveFile(temporary);
    return done;
}

}  // namespace

std::optional<std::string> ReadSetting(const std::string& file, const std::string& section, const std::string& key,
                                       const std::string& fallback, std::size_t size) {
    const std::optional<std::string> text = ReadText(file);
    if (!text) return std::nullopt;
    return SettingsLines(*text).value(section, key).value_or(fallback).substr(0, size == 0 ? 0 : size - 1);
}

std::optional<std::int32_t> ReadIntSetting(const std::string& file, const std::string& section, const std::string& key,
                                           std::int32_t fallback) {
    constexpr std::size_t kLongestNumber = 30;
    const std::optional<std::string> value = ReadSetting(file, section, key, "", kLongestNumber);
    if (!value) return std::nullopt;
    return value->empty() ? fallback : LeadingInteger(*value);
}

bool WriteSettings(const std::string& file, std::span<const Setting> settings) {
    const std::optional<std::string> text = ReadText(file);
    if (!text) return false;
    SettingsLines lines(*text);
    for (const Setting& setting : settings)
        lines.set(setting.section, setting.key, setting.value);
    return ReplaceText(file, lines.text());
}

}  // namespace vexa::platform
