#include "quickhelp/help_index.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/file.h"
#include "base/strings.h"
#include "quickhelp/help_directory.h"
#include "quickhelp/help_keywords.h"

namespace vexa {

namespace {

constexpr std::uint32_t kMagic = 0x00035F3F;

std::string UpperCase(std::string text) {
    std::ranges::transform(text, text.begin(), UpperAscii);
    return text;
}

// The line of each title in the internal file at an offset; none when it is not what it should be.
std::optional<std::string> ReadTitleLines(HelpFileReader& reader, std::uint32_t offset) {
    constexpr std::uint8_t kLowByteOfMagic = 0x6C;
    constexpr std::uint16_t kOldestMinor = 15;
    constexpr std::size_t kOldTitleLimit = 32;
    constexpr std::uint64_t kHeader = 12;
    constexpr std::uint16_t kTitleRecord = 1;
    reader.allow(reader.size());
    reader.seek(offset);
    reader.number32();  // reserved space
    const std::uint64_t end = offset + kInternalFileHeader + reader.number32();
    reader.number8();  // flags
    const bool isSystem = (reader.number16() & 0xFF) == kLowByteOfMagic;
    const std::uint16_t minor = reader.number16();
    if (!isSystem || reader.failed()) return std::nullopt;
    reader.seek(offset + kInternalFileHeader + kHeader);
    if (minor == kOldestMinor) return reader.textIn(kOldTitleLimit) + "\r\n";
    std::string lines;
    while (reader.position() < end) {
        const std::uint16_t type = reader.number16();
        const std::uint16_t size = reader.number16();
        if (reader.failed()) break;
        const std::uint64_t next = reader.position() + size;
        if (type == kTitleRecord) lines += reader.textIn(size) + "\r\n";
        reader.seek(next);
    }
    return lines;
}

// The file that an internal file's absence, or a name before it that is too long, makes impossible.
IndexResult Without(const HelpFileEntry& entry, IndexResult missing) {
    return entry.outcome == HelpFileEntry::Outcome::NameTooLong ? IndexResult::NameTooLong : missing;
}

bool IsFound(const HelpFileEntry& entry) {
    return entry.outcome == HelpFileEntry::Outcome::Found;
}

struct IndexParts {
    std::string titleLines;
    KeywordLines keywords;
};

IndexResult ReadParts(HelpFileReader& reader, std::uint32_t directory, IndexParts& parts) {
    const HelpFileEntry system = FindInternalFile(reader, directory, {"SYSTEM", "|SYSTEM"});
    if (!IsFound(system)) return Without(system, IndexResult::UnknownFormat);
    std::optional<std::string> titles = ReadTitleLines(reader, system.offset);
    if (!titles) return IndexResult::UnknownFormat;
    const HelpFileEntry tree = FindInternalFile(reader, directory, {"|KWBTREE"});
    if (!IsFound(tree)) return Without(tree, IndexResult::NoKeywords);
    std::optional<KeywordLines> keywords = ReadKeywords(reader, tree.offset);
    if (!keywords) return IndexResult::UnknownFormat;
    parts = {std::move(*titles), std::move(*keywords)};
    return IndexResult::Written;
}

IndexResult WriteIndex(HelpFileReader& reader, const std::string& helpFile, std::uint32_t directory, File& index) {
    IndexParts parts;
    const IndexResult result = ReadParts(reader, directory, parts);
    if (result != IndexResult::Written) return result;
    constexpr std::size_t kDigits = 5;
    const std::string count = std::to_string(parts.keywords.count);
    std::string head = std::string(kDigits - count.size(), '0') + count + "\r\n";
    head += UpperCase(platform::CurrentDirectory() + "\\" + helpFile) + "\r\n" + parts.titleLines;
    return index.write(head) && index.write(parts.keywords.text) ? IndexResult::Written : IndexResult::CannotWrite;
}

IndexResult Build(const std::string& helpFile, const std::string& indexFile) {
    HelpFileReader reader(helpFile);
    if (!reader.isOpen()) return IndexResult::CannotOpen;
    if (reader.number32() != kMagic) return IndexResult::UnknownFormat;
    const std::uint32_t directory = reader.number32();
    IndexResult result = IndexResult::CannotWrite;
    const bool written = RewriteFile(indexFile, [&](File& index) {
        result = WriteIndex(reader, helpFile, directory, index);
        return result == IndexResult::Written;
    });
    return result == IndexResult::Written && !written ? IndexResult::CannotWrite : result;
}

}  // namespace

std::string_view TextOf(IndexResult result) {
    if (result == IndexResult::Written) return {};
    constexpr TextId kTexts[] = {TextId::HelpFileCannotOpen, TextId::HelpIndexCannotWrite, TextId::HelpFormatUnknown,
                                 TextId::HelpKeywordsMissing, TextId::HelpNameTooLong};
    return LoadText(kTexts[static_cast<std::size_t>(result) - 1]);
}

IndexResult BuildHelpIndex(const std::string& helpFile, const std::string& indexFile) {
    const bool hasExtension = helpFile.find('.') != std::string::npos;
    const IndexResult result = Build(hasExtension ? helpFile : helpFile + ".HLP", indexFile);
    if (result != IndexResult::Written) DeleteHelpIndex(indexFile);
    return result;
}

// A search for files may find names with a longer suffix, too.
std::vector<std::string> FindHelpIndexes(const std::string& directory) {
    constexpr std::string_view kSuffix = ".ZIX";
    std::vector<std::string> names = platform::FindFiles(directory + "\\*" + std::string(kSuffix));
    const auto isOther = [kSuffix](std::string_view name) {
        return !EqualIgnoringCase(name.substr(name.size() - std::min(name.size(), kSuffix.size())), kSuffix);
    };
    std::erase_if(names, isOther);
    return names;
}

bool DeleteHelpIndex(const std::string& indexFile) {
    if (!File(indexFile, platform::OpenMode::ReadWrite).isOpen()) return false;
    return platform::RemoveFile(indexFile);
}

}  // namespace vexa
