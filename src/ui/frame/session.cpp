#include "ui/frame/session.h"

#include <windows.h>

#include "base/directories.h"
#include "base/platform.h"
#include "base/strings.h"
#include "framework/menu.h"

namespace vexa {
namespace {

constexpr WORD kRecentFilesSeparator = 100;

WORD NumberOf(CommandId id) {
    return static_cast<WORD>(id);
}

}  // namespace

void Session::registerCommands(CommandDispatcher& dispatcher) {
    for (const CommandId id : {CommandId::FirstRecentFile, CommandId::SecondRecentFile})
        dispatcher.RegisterCommand(id, [this](CommandId chosen) { openRecentFile(chosen); });
}

void Session::restorePlacement(int showCommand) {
    placement_.restore(application_.store, application_.options.RestoreSize, showCommand);
}

void Session::openFirstFiles(std::span<const FileAtLine> files) {
    recentFiles_.LoadRecentFiles(application_.store, application_.options.RestoreFiles);
    showRecentFiles();
    startupFiles_.RestoreStartupFiles(application_.options.RestoreFiles,
                                      [this](const std::string& path, std::int32_t line) { restoreFile(path, line); });
    const DrawingPause pause = documents_.pauseFor(files.size());
    documents_.opening().OpenCommandLineFiles(files);
}

// A new document under the name of a file that has gone since is not what the user asked for.
void Session::restoreFile(const std::string& path, std::int32_t line) {
    if (platform::PathExists(path)) {
        documents_.opening().OpenFileAtLine(path, line);
    } else {
        const std::string name = path.substr(DirectoryOf(path).size());
        notices_.box(FillText(TextId::CannotOpenFile, {name}), TextId::ErrorCaption, BoxButtons::Ok);
    }
}

void Session::openRecentFile(CommandId id) {
    const std::string path = recentFiles_.path(id);
    if (!path.empty()) documents_.opening().OpenFileAtLine(path, 0);
}

void Session::showRecentFiles() {
    std::vector<MenuItem> items;
    for (const RecentFileRow& row : recentFiles_.menuRows())
        items.push_back({NumberOf(row.id), row.text});
    ReplaceItemsBefore(fileMenu_, NumberOf(CommandId::Exit),
                       {NumberOf(CommandId::FirstRecentFile), NumberOf(CommandId::SecondRecentFile)}, items,
                       kRecentFilesSeparator);
    DrawMenuBar(documents_.frame().window());
}

// ---- closing -----------------------------------------------------------------------------------------------------

void Session::documentCloses(const TextDocument& document) {
    if (!document.isNamed()) return;
    if (documents_.isClosing()) {
        recordStartupFile(document);
    } else {
        recentFiles_.RecordRecentFile(document.fullPath());
        showRecentFiles();
    }
}

void Session::recordStartupFile(const TextDocument& document) {
    startupFiles_.RecordStartupFile(document.fullPath(), document.currentLine().value + 1);
}

void Session::save() {
    placement_.save(application_.store);
    recentFiles_.SaveRecentFiles(application_.store);
    application_.options.Save(application_.store);
    application_.searchOptions.Save(application_.store);
    application_.coloursInEffect.save(application_.store);
    application_.font.Save(application_.store);
    application_.printOptions.Save(application_.store);
    application_.compilerSetup.Save(application_.store);
}

// Windows may end the process at any time after it has asked. Nothing is closed: another program may still refuse the
// end.
void Session::prepareEnd() {
    startupFiles_.keep();
    for (MDIchildCL* child : documents_.inSessionOrder()) {
        const DocumentWindow* shown = OpenDocuments::DocumentOf(child);
        if (shown && shown->document().isNamed()) recordStartupFile(shown->document());
    }
    save();
}

void Session::end(bool ends) {
    if (ends) {
        save();
    } else {
        takeBackEnd();
    }
}

}  // namespace vexa
