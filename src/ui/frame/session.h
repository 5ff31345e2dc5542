// What the editor brings over from one session to the next: its files, its options, its position on the screen.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "shell/command_dispatcher.h"
#include "shell/command_line.h"
#include "shell/recent_files.h"
#include "shell/session_documents.h"
#include "shell/startup_files.h"
#include "ui/frame/open_documents.h"
#include "ui/frame/window_placement.h"

namespace vexa {

class Session {
  public:
    Session(OpenDocuments& documents, Application& application, Notices& notices)
        : documents_(documents),
          application_(application),
          notices_(notices),
          startupFiles_(application.store),
          sessionFile_(application.directories.GetDirectory(kConfigDirectory) + "\\VexaSes.txt"),
          placement_(documents.frame()) {}

    void registerCommands(CommandDispatcher& dispatcher);
    // The menu that shows the recent files; the menu bar owns it.
    void setFileMenu(HMENU menu) { fileMenu_ = menu; }
    void restorePlacement(int showCommand);
    WindowPlacement& placement() { return placement_; }
    // Opens the files of the last session and then those of the command line.
    void openFirstFiles(std::span<const FileAtLine> files);

    // Remembers a document whose window is going to be closed.
    void documentCloses(const TextDocument& document);
    void save();
    // Windows is going to end, so the session is noted before the user is asked; and has ended, or goes on.
    void prepareEnd();
    void end(bool ends);
    // The user, or another program, has refused the end.
    void takeBackEnd();

  private:
    void openRecentFile(CommandId id);
    void showRecentFiles();
    void restoreFile(const std::string& path, std::int32_t line);
    void tellMissing(std::span<const std::string> paths);
    void recordStartupFile(const TextDocument& document);
    // All documents, for the habit of the whole session.
    void restoreAll();
    void restoreAll(std::span<const SessionDocument> all);
    DocumentWindow* restore(const SessionDocument& document);
    void recordAll();

    OpenDocuments& documents_;
    Application& application_;
    Notices& notices_;
    RecentFiles recentFiles_;
    StartupFiles startupFiles_;
    SessionFile sessionFile_;
    WindowPlacement placement_;
    HMENU fileMenu_ = nullptr;
    bool isRecorded_ = false;  // all documents, before the first of them is closed
};

}  // namespace vexa
