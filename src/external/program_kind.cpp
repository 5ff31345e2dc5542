#include "external/program_kind.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/file.h"
#include "base/file_name.h"

namespace vexa {

namespace {

constexpr std::size_t kHeaderSize = 64;
constexpr std::size_t kRelocationOffset = 24;
// The header of a DOS program proper ends before this; a longer one belongs to a program of Windows.
constexpr int kLongestDosHeader = 64;

constexpr std::string_view kExtensions[] = {"", ".COM", ".EXE", ".BAT", ".CMD"};

int ByteAt(std::string_view bytes, std::size_t index) {
    return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0;
}

bool EndsIgnoringCase(std::string_view text, std::string_view end) {
    return text.size() >= end.size() && EqualIgnoringCase(text.substr(text.size() - end.size()), end);
}

bool IsFile(const std::string& path) {
    return platform::PathExists(path) && !platform::DirectoryExists(path);
}

std::string Upper(std::string text) {
    std::ranges::transform(text, text.begin(), UpperAscii);
    return text;
}

std::optional<std::string> WithExtension(const std::string& path) {
    const bool hasExtension = path.find('.', path.find_last_of("\\:") + 1) != std::string::npos;
    for (const std::string_view extension : kExtensions) {
        if (hasExtension && !extension.empty()) break;
        if (std::string tried = path + std::string(extension); IsFile(tried)) return Upper(tried);
    }
    return std::nullopt;
}

}  // namespace

ProgramKind KindOfProgram(const std::string& path) {
    const std::string header = File(path, platform::OpenMode::Read).readUpTo(kHeaderSize).value_or(std::string());
    if (header.starts_with("MZ")) {
        const int relocations = ByteAt(header, kRelocationOffset) | ByteAt(header, kRelocationOffset + 1) << 8;
        return relocations < kLongestDosHeader ? ProgramKind::Dos : ProgramKind::Windows;
    }
    const auto has = [&path](std::string_view extension) { return EndsIgnoringCase(path, extension); };
    return has(".BAT") || has(".COM") || has(".CMD") ? ProgramKind::Dos : ProgramKind::Windows;
}

std::optional<std::string> FindProgram(const std::string& name, const std::string& searchPath) {
    if (name.empty()) return std::nullopt;
    if (name.find_first_of("\\/:") != std::string::npos) return WithExtension(platform::FullPath(name));
    for (std::size_t begin = 0; begin < searchPath.size();) {
        const std::size_t end = std::min(searchPath.find(';', begin), searchPath.size());
        std::string_view directory = std::string_view(searchPath).substr(begin, end - begin);
        begin = end + 1;
        if (directory.size() > 1 && directory.front() == '"') directory = directory.substr(1, directory.size() - 2);
        if (directory.empty()) continue;
        if (auto found = WithExtension(PrefixOf(directory) + name)) return found;
    }
    return std::nullopt;
}

}  // namespace vexa
