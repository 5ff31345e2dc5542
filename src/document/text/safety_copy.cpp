#include "document/text/safety_copy.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/ascii.h"
#include "base/checksum.h"
#include "base/directories.h"

namespace vexa {

namespace {

using platform::OpenMode;

constexpr std::size_t kBlock = std::size_t{1} << 18;
constexpr std::size_t kLongestPath = 259;
constexpr std::size_t kLargestInMemory = std::size_t{1} << 28;
// What follows the stem in a copy's name, and while it is being written.
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kTemporaryMarks = "~abcdefghij";

// Names of one base name in several directories are told apart by a mark of the path.
std::string StemInBackups(const std::string& path) {
    constexpr std::size_t kLongestBase = 60;
    std::string upper = platform::LongPath(path);
    std::ranges::transform(upper, upper.begin(), UpperAscii);
    const std::string base = path.substr(DirectoryOf(path).size()).substr(0, kLongestBase);
    return DirectoryOf(platform::ProgramPath()) + "vbackup\\" + base + "~" + std::to_string(ChecksumOf(upper)) + ".vx";
}

// What the names of a file's copies begin with, before the digit.
std::array<std::string, 2> StemsOf(const std::string& path) {
    return {path + ".vx", StemInBackups(path)};
}

// The first name that is free in the eyes of a function; empty when none is.
template <class IsFree>
std::string FirstName(const std::string& stem, std::string_view marks, IsFree isFree) {
    const auto mark = std::ranges::find_if(marks, [&](char c) { return isFree(stem + c); });
    return mark == marks.end() ? std::string() : stem + *mark;
}

std::string FreeName(const std::string& stem) {
    return FirstName(stem, kDigits, [](const std::string& name) { return !platform::PathExists(name); });
}

// Whether a file holds nothing but the beginning of another one, or all of it.
bool IsPartOf(const std::string& name, File& file) {
    File part(name, OpenMode::Read);
    std::string block(kBlock, '\0');
    std::string expected(kBlock, '\0');
    if (!part.isOpen() || !file.seek(0)) return false;
    for (std::optional<std::size_t> count = kBlock; *count == kBlock;) {
        count = part.read(block.data(), kBlock);
        if (!count || file.read(expected.data(), *count) != count) return false;
        if (block.compare(0, *count, expected, 0, *count) != 0) return false;
    }
    return true;
}

}  // namespace

// What an interruption left of a copy is written over. Another file of such a name is somebody's own.
std::string SafetyCopy::temporaryName(const std::string& stem, File& file) {
    return FirstName(stem, kTemporaryMarks,
                     [&file](const std::string& name) { return !platform::PathExists(name) || IsPartOf(name, file); });
}

SafetyCopy::SafetyCopy(const std::string& path, File& file) {
    for (const std::string& stem : StemsOf(path)) {
        const CopyFault fault = copyTo(stem, file);
        if (fault_ == CopyFault::None || fault == CopyFault::None) fault_ = fault;
        if (fault == CopyFault::None || fault == CopyFault::Unreadable) return;
    }
}

CopyFault SafetyCopy::copyTo(const std::string& stem, File& file) {
    if (stem.size() + 1 > kLongestPath) return CopyFault::NameTooLong;
    name_ = FreeName(stem);
    const std::string temporary = temporaryName(stem, file);
    if (name_.empty() || temporary.empty()) return CopyFault::AllNamesTaken;
    CopyFault fault = copyAs(temporary, file);
    if (fault == CopyFault::None && !platform::RenameFile(temporary, name_)) fault = CopyFault::NoRoom;
    if (fault != CopyFault::None) platform::RemoveFile(temporary);
    return fault;
}

CopyFault SafetyCopy::copyAs(const std::string& temporary, File& file) {
    File copy(temporary, OpenMode::CreateAlways);
    if (!copy.isOpen()) return CopyFault::NoNewFile;
    Checksum checksum;
    std::string block(kBlock, '\0');
    std::optional<std::size_t> count = kBlock;
    if (!file.seek(0)) return CopyFault::Unreadable;
    while (*count == kBlock) {
        count = file.read(block.data(), kBlock);
        if (!count) return CopyFault::Unreadable;
        if (!copy.write({block.data(), *count})) return CopyFault::NoRoom;
        checksum.add({block.data(), *count});
    }
    checksum_ = checksum.value();
    return copy.endHere() && copy.flush() && copy.close() ? CopyFault::None : CopyFault::NoRoom;
}

SafetyCopy SafetyCopy::inMemory(File& file) {
    SafetyCopy held;
    std::optional<std::string> contents = file.seek(0) ? file.readAll(kLargestInMemory) : std::nullopt;
    held.fault_ = contents ? CopyFault::None : CopyFault::Unreadable;
    held.contents_ = std::move(contents).value_or("");
    held.checksum_ = ChecksumOf(held.contents_);
    return held;
}

bool SafetyCopy::putBack(File& target) const {
    if (!target.seek(0)) return false;
    if (name_.empty()) return target.write(contents_) && target.endHere() && target.flush();
    File copy(name_, OpenMode::Read);
    std::string block(kBlock, '\0');
    if (!copy.isOpen()) return false;
    for (;;) {
        const std::optional<std::size_t> count = copy.read(block.data(), kBlock);
        if (!count || !target.write({block.data(), *count})) return false;
        if (*count < kBlock) return target.endHere() && target.flush();
    }
}

bool SafetyCopy::remove() const {
    return name_.empty() || platform::RemoveFile(name_);
}

std::vector<std::string> LeftSafetyCopies(const std::string& path) {
    std::vector<std::uint64_t> times;
    std::vector<std::string> names;
    for (const std::string& stem : StemsOf(path)) {
        for (const char digit : kDigits) {
            const auto facts = platform::FactsOf(stem + digit);
            if (!facts) continue;
            const auto older =
                std::ranges::find_if(times, [&](std::uint64_t time) { return time < facts->stamp.writeTime; });
            names.insert(names.begin() + (older - times.begin()), stem + digit);
            times.insert(older, facts->stamp.writeTime);
        }
    }
    return names;
}

std::string KeptCopyName(const std::string& copy) {
    return FreeName(copy + "k");
}

}  // namespace vexa
