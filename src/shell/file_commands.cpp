#include "shell/file_commands.h"

#include "base/platform.h"
#include "base/strings.h"
#include "document/text_writer.h"

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
    : notices_(notices), questions_(questions), profiles_(profiles) {}

bool FileCommands::open(TextDocument& document, const std::optional<std::string>& path) {
    document.setName(path.value_or(kUntitled));
    const bool opened = path && platform::PathExists(*path) ? document.load() : document.newEmpty();
    takeProfile(document);
    if (!opened) {
        notices_.status(FillText(TextId::UnexpectedError, {"VXEPAN01", "2562"}), true, true);
        notices_.box(FillText(TextId::CannotOpenFile, {document.baseName()}), kErrorCaption, BoxButtons::Ok);
    } else if (path) {
        tellOfSafetyCopy(document);
    }
    return opened;
}

void FileCommands::tellOfSafetyCopy(const TextDocument& document) {
    const std::string copy = LeftSafetyCopy(document.fullPath());
    if (!copy.empty())
        notices_.box(FillText(TextId::SaveInterrupted, {document.baseName(), copy}), kProgramCaption, BoxButtons::Ok);
}

bool FileCommands::save(TextDocument& document) {
    if (document.isTruncated()) {
        notices_.box(FillText(TextId::FileTruncated, {document.baseName()}), kErrorCaption, BoxButtons::Ok);
        return false;
    }
    if (!document.isNamed()) return saveAs(document);
    if (document.isModified() && !document.write()) {
        tellWriteFailed(document.baseName());
        return false;
    }
    notices_.status(LoadText(TextId::WriteSuccessful), false, false);
    return true;
}

bool FileCommands::saveAs(TextDocument& document) {
    const std::optional<std::string> path = questions_.askSaveName(document);
    return path && writeUnder(document, *path);
}

bool FileCommands::writeUnder(TextDocument& document, const std::string& path) {
    const std::string oldPath = document.fullPath();
    const bool wasNamed = document.isNamed();
    document.setName(path);
    if (!document.write()) {
        const std::string newName = document.baseName();
        document.setName(oldPath);
        if (!wasNamed) document.forgetFile();
        tellWriteFailed(newName);
        return false;
    }
    if (SuffixDiffers(oldPath, path)) takeProfile(document);
    questions_.nameChanged(document);
    notices_.status(LoadText(TextId::WriteSuccessful), false, false);
    return true;
}

void FileCommands::tellWriteFailed(const std::string& name) {
    notices_.box(FillText(TextId::CannotWriteFile, {name}), kErrorCaption, BoxButtons::Ok);
}

bool FileCommands::queryClose(TextDocument& document) {
    if (!document.isModified()) return true;
    switch (
        notices_.box(FillText(TextId::SaveChanges, {document.fullPath()}), kProgramCaption, BoxButtons::YesNoCancel)) {
        case BoxAnswer::Yes:
            save(document);
            return !document.isModified();
        case BoxAnswer::No:
            document.clearModified();
            return true;
        default:
            return false;
    }
}

}  // namespace vexa
