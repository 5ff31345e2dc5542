#include "shell/file_commands.h"

#include "base/platform.h"
#include "base/strings.h"
#include "document/text/file_identity.h"
#include "shell/file_name_check.h"
#include "shell/opened_notice.h"

namespace vexa {

namespace {

constexpr const char* kUntitled = "untitled.txt";

// The part of a name from its last "."; none when it has no ".".
std::optional<std::string_view> SuffixOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos) return std::nullopt;
    return name.substr(dot);
}

bool SuffixDiffers(std::string_view a, std::string_view b) {
    const auto suffixA = SuffixOf(a);
    const auto suffixB = SuffixOf(b);
    return suffixA && suffixB && *suffixA != *suffixB;
}

}  // namespace

FileCommands::FileCommands(Notices& notices, FileQuestions& questions, ProfileList& profiles)
    : notices_(notices), saving_(notices), questions_(questions), profiles_(profiles) {}

bool FileCommands::open(TextDocument& document, const std::optional<std::string>& path) {
    document.setName(path.value_or(kUntitled));
    const bool opened = path && platform::PathExists(*path) ? document.load() : document.newEmpty();
    takeProfile(document);
    if (!opened) {
        notices_.status(FillText(TextId::UnexpectedError, {"VXEPAN01", "2562"}), true, true);
        notices_.box(FillText(document.loadFailure(), {document.baseName()}), TextId::ErrorCaption, BoxButtons::Ok);
        return false;
    }
    const std::string notice = OpenedNotice(document);
    if (!notice.empty()) notices_.status(notice, false, false);
    return true;
}

void FileCommands::refuseTruncated(const TextDocument& document) {
    notices_.box(FillText(TextId::FileTruncated, {document.baseName()}), TextId::ErrorCaption, BoxButtons::Ok);
}

// An unmodified document is written only when its file is no longer there.
bool FileCommands::save(TextDocument& document) {
    if (document.isTruncated()) {
        refuseTruncated(document);
        return false;
    }
    if (!document.isNamed()) return saveAs(document);
    const bool isNeeded = document.isModified() || !platform::FactsOf(document.fullPath());
    if (isNeeded && !(saving_.mayChangeBytes(document) && saving_.write(document))) return false;
    notices_.status(LoadText(TextId::WriteSuccessful), false, false);
    return true;
}

bool FileCommands::saveAs(TextDocument& document) {
    const std::optional<std::string> answer = questions_.askSaveName(document);
    if (!answer || !IsUsableName(*answer, notices_)) return false;
    const std::string path = platform::LongPath(*answer);
    if (document.isTruncated() && FileIdentity(path).isFileOf(document)) {
        refuseTruncated(document);
        return false;
    }
    return saving_.mayChangeBytes(document) && writeUnder(document, path);
}

bool FileCommands::writeUnder(TextDocument& document, const std::string& path) {
    const std::string oldPath = document.fullPath();
    const bool wasNamed = document.isNamed();
    const DiskState oldState = document.disk();
    document.setName(path);
    if (!saving_.write(document)) {
        document.setName(oldPath);
        document.disk() = oldState;
        if (!wasNamed) document.forgetFile();
        return false;
    }
    if (SuffixDiffers(oldPath, path)) takeProfile(document);
    questions_.nameChanged(document);
    notices_.status(LoadText(TextId::WriteSuccessful), false, false);
    return true;
}

bool FileCommands::queryClose(TextDocument& document) {
    if (!document.isModified()) return true;
    switch (notices_.box(FillText(TextId::SaveChanges, {document.fullPath()}), TextId::ProgramCaption,
                         BoxButtons::YesNoCancel)) {
        case BoxAnswer::Yes:
            save(document);
            return !document.isModified();
        case BoxAnswer::No:
            return true;
        default:
            return false;
    }
}

}  // namespace vexa
