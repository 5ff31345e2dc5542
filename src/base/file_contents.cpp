#include "base/file_contents.h"

#include "base/checksum.h"
#include "base/file.h"

namespace vexa {

std::optional<FileContents> ContentsOf(const std::string& path) {
    File file(path, platform::OpenMode::Read);
    std::string block(std::size_t{1} << 18, '\0');
    Checksum checksum;
    for (std::uint64_t size = 0;;) {
        const std::optional<std::size_t> count = file.isOpen() ? file.read(block.data(), block.size()) : std::nullopt;
        if (!count) return std::nullopt;
        checksum.add({block.data(), *count});
        size += *count;
        if (*count < block.size()) return FileContents{size, checksum.value()};
    }
}

}  // namespace vexa
