#include "ui/frame/path_commands.h"

#include <windows.h>

#include <shellapi.h>

#include "base/directories.h"
#include "base/strings.h"
#include "document/view/text_exchange.h"
#include "ui/frame/command_rows.h"

namespace vexa {

void PathCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<PathCommands> kRows[] = {
        {CommandId::OpenContainingFolder, &PathCommands::openContainingFolder},
        {CommandId::CopyFullPath, &PathCommands::copyFullPath},
        {CommandId::ReloadDocument, &PathCommands::reload},
    };
    RegisterRows(dispatcher, *this, kRows);
}

std::string PathCommands::activePath() {
    const TextDocument& document = documents_.active()->document();
    if (document.isNamed()) return document.fullPath();
    notices_.status(LoadText(TextId::NoFileYet), true, true);
    return {};
}

// With its "\" at the end and by a verb that programs do not have: a program that is named like the folder is not
// started.
void PathCommands::openContainingFolder() {
    const std::string folder = DirectoryOf(activePath());
    if (folder.empty()) return;
    constexpr INT_PTR kLastFailure = 32;
    const HINSTANCE answer =
        ShellExecuteA(documents_.frame().window(), "explore", folder.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    if (reinterpret_cast<INT_PTR>(answer) <= kLastFailure)
        notices_.box(FillText(TextId::CannotOpenFolder, {folder}), TextId::ErrorCaption, BoxButtons::Ok);
}

void PathCommands::copyFullPath() {
    const std::string path = activePath();
    if (path.empty()) return;
    const bool isCopied = application_.clipboard.put(path, MarkMode::Stream);
    notices_.status(isCopied ? FillText(TextId::PathCopied, {path}) : std::string(LoadText(TextId::ClipboardInUse)),
                    !isCopied, true);
}

bool PathCommands::mayLoseChanges(const TextDocument& document) {
    return !document.isModified() || notices_.box(FillText(TextId::ReloadQuestion, {document.baseName()}),
                                                  TextId::ProgramCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
}

void PathCommands::reload() {
    TextDocument& document = documents_.active()->document();
    if (activePath().empty() || !mayLoseChanges(document)) return;
    if (ReadAnew(document)) {
        notices_.status(FillText(TextId::Reloaded, {document.baseName()}), false, true);
    } else {
        notices_.box(FillText(TextId::CannotOpenFile, {document.baseName()}), TextId::ErrorCaption, BoxButtons::Ok);
    }
    documents_.refreshOptions();
}

}  // namespace vexa
