#include "shell/left_copies.h"

#include <optional>

#include "base/directories.h"
#include "base/file_contents.h"
#include "base/platform.h"
#include "base/strings.h"
#include "document/text/safety_copy.h"

namespace vexa {

namespace {

bool AreEqual(const std::string& a, const std::string& b) {
    const std::optional<FileContents> contents = ContentsOf(a);
    return contents && contents == ContentsOf(b);
}

}  // namespace

void OfferLeftCopies(const std::string& path, Notices& notices, const Callback<void(const std::string&)>& open) {
    const auto isYes = [&notices](const std::string& question) {
        return notices.box(question, TextId::ProgramCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
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
            if (!platform::RemoveFile(copy))
                notices.box(FillText(TextId::CannotWriteFile, {copy}), TextId::ErrorCaption, BoxButtons::Ok);
        } else if (!kept.empty()) {
            platform::RenameFile(copy, kept);
        }
    }
}

}  // namespace vexa
