// What a file holds, as far as it takes to tell whether it is the same as before, or as another file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vexa {

struct FileContents {
    std::uint64_t size = 0;
    std::uint64_t checksum = 0;

    bool operator==(const FileContents&) const = default;
};

// Reads the whole file; none when that cannot be done.
std::optional<FileContents> ContentsOf(const std::string& path);

}  // namespace vexa
