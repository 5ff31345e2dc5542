#include "ui/frame/session.h"

#include <windows.h>

#include <algorithm>
#include <utility>

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

std::vector<WORD> RecentFileNumbers() {
    std::vector<WORD> numbers;
    for (std::size_t n = 0; n < RecentFiles::kLongest; ++n)
        numbers.push_back(static_cast<WORD>(NumberOf(CommandId::FirstRecentFile) + n));
    return numbers;
}

}  // namespace

void Session::registerCommands(CommandDispatcher& dispatcher) {
    for (const WORD number : RecentFileNumbers())
        dispatcher.RegisterCommand(CommandId{number}, [this](CommandId chosen) { openRecentFile(chosen); });
}

void Session::restorePlacement(int showCommand) {
    placement_.restore(application_.store, application_.options.RestoreSize, showCommand);
}

void Session::openFirstFiles(std::span<const FileAtLine> files) {
    const EditorOptions& options = application_.options;
    recentFiles_.LoadRecentFiles(application_.store, options.RestoreFiles, options.habits.wholeSession);
    showRecentFiles();
    startupFiles_.RestoreStartupFiles(options.RestoreFiles,
                                      [this](const std::string& path, std::int32_t line) { restoreFile(path, line); });
    if (options.RestoreFiles) restoreAll();
    const DrawingPause pause = documents_.pauseFor(files.size());
    documents_.opening().OpenCommandLineFiles(files);
}

// A new document under the name of a file that has gone since is not what the user asked for.
void Session::restoreFile(const std::string& path, std::int32_t line) {
    if (platform::PathExists(path)) {
        documents_.opening().OpenFileAtLine(path, line);
    } else {
        tellMissing({&path, 1});
    }
}

void Session::tellMissing(std::span<const std::string> paths) {
    if (!paths.empty()) notices_.box(TextOfMissing(paths), TextId::ErrorCaption, BoxButtons::Ok);
}

void Session::restoreAll() {
    std::vector<SessionDocument> present;
    std::vector<std::string> missing;
    for (SessionDocument& document : sessionFile_.take()) {
        if (platform::PathExists(document.path)) {
            present.push_back(std::move(document));
        } else {
            missing.push_back(document.path);
        }
    }
    restoreAll(present);
    tellMissing(missing);
}

void Session::restoreAll(std::span<const SessionDocument> all) {
    const DrawingPause pause = documents_.pauseFor(all.size());
    DocumentWindow* active = nullptr;
    for (const SessionDocument& document : all) {
        DocumentWindow* shown = restore(document);
        if (document.isActive && shown) active = shown;
    }
    if (active) documents_.frame().activate(*active);
}

// None when it could not be opened.
DocumentWindow* Session::restore(const SessionDocument& kept) {
    if (!documents_.opening().OpenFileAtLine(kept.path, 0)) return nullptr;
    DocumentWindow* shown = documents_.active();
    if (!shown) return nullptr;
    shown->document().setBookmarks(kept.bookmarks);
    shown->view().goTo(kept.caret.line, kept.caret.column);
    shown->refresh();
    return shown;
}

void Session::openRecentFile(CommandId id) {
    const std::string path = recentFiles_.path(id);
    if (!path.empty()) documents_.opening().OpenFileAtLine(path, 0);
}

void Session::showRecentFiles() {
    std::vector<MenuItem> items;
    for (const RecentFileRow& row : recentFiles_.menuRows())
        items.push_back({NumberOf(row.id), row.text});
    ReplaceItemsBefore(fileMenu_, NumberOf(CommandId::Exit), RecentFileNumbers(), items, kRecentFilesSeparator);
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

void Session::recordAll() {
    if (isRecorded_) return;
    isRecorded_ = true;
    std::vector<SessionDocument> all;
    documents_.each([&](const DocumentWindow& window) {
        if (window.document().isNamed())
            all.push_back(DescribeForSession(window.document(), &window == documents_.active()));
    });
    sessionFile_.keep(all);
}

void Session::recordStartupFile(const TextDocument& document) {
    if (application_.options.habits.wholeSession) {
        recordAll();
    } else {
        startupFiles_.RecordStartupFile(document.fullPath(), document.currentLine().value + 1);
    }
}

void Session::takeBackEnd() {
    startupFiles_.takeBack();
    if (isRecorded_) sessionFile_.takeBack();
    isRecorded_ = false;
}

void Session::save() {
    const ConfigStore::Batch batch(application_.store);
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
    isRecorded_ = false;
    const ConfigStore::Batch batch(application_.store);
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
