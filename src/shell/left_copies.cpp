#include "shell/left_copies.h"

#include <optional>

#include "base/checksum.h"
#include "base/directories.h"
#include "base/file.h"
#include "base/strings.h"
#include "document/text/safety_copy.h"

namespace vexa {

namespace {

struct Contents {
    std::uint64_t size;
    std::uint64_t checksum;

    bool operator==(const Contents&) const = default;
};

std::optional<Contents> ContentsOf(const std::string& path) {
    File file(path, platform::OpenMode::Read);
    std::string block(std::size_t{1} << 18, '\0');
    Checksum checksum;
    for (std::uint64_t size = 0;;) {
        const std::optional<std::size_t> count = file.isOpen() ? file.read(block.data(), block.size()) : std::nullopt;
        if (!count) return std::nullopt;
        checksum.add({block.data(), *count});
        size += *count;
        if (*count < block.size()) return Contents{size, checksum.value()};
    }
}

bool AreEqual(const std::string& a, const std::string& b) {
    const std::optional<Contents> contents = ContentsOf(a);
    return contents && contents == ContentsOf(b);
}

}  // namespace

void OfferLeftCopies(const std::string& path, Notices& notices, const std::function<void(const std::string&)>& open) {
    const auto isYes = [&notices](const std::string& question) {
        return notices.box(question, kProgramCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
    };
    const std::string name = path.substr(DirectoryOf(path).size());
    for (const std::string& copy : LeftSafetyCopies(path)) {
        const bool isEqual = AreEqual(path, copy);
        if (!isEqual && isYes(FillText(TextId::LeftCopyDiffers, {name, copy}))) {
            open(copy);
            continue;
        }
        const std::string kept = KeptCopyName(copy);
        const bool isDeleted = isYes(isEqual ? FillText(TextId::LeftCopyIsEqual, {name, copy})
                                             : FillText(TextId::DeleteLeftCopy, {copy, kept}));
        if (isDeleted) {
            platform::RemoveFile(copy);
        } else if (!kept.empty()) {
            platform::RenameFile(copy, kept);
        }
    }
}

}  // namespace vexa
