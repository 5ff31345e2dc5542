// The ways by which files reach the running editor: its commands, its command line, dropped files. Those by which other
// programs hand it files end here, too.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/editor_options.h"
#include "base/notices.h"
#include "document/text/text_position.h"
#include "shell/command_line.h"

namespace vexa {

// What opening files asks of the main window.
class DocumentFrame {
  public:
    virtual ~DocumentFrame() = default;
    // Activates the first window that shows the file of this path, by whatever name, with its caret at a position;
    // false when there is none.
    virtual bool activateShowing(const std::string& path, TextPosition position) = 0;
    // Makes a window with the file's text, the caret at a position, or with a new document when there is no path. False
    // when it could not be loaded, which the user has then been told.
    virtual bool openWindow(const std::optional<std::string>& path, TextPosition position) = 0;
    virtual void bringToFront() = 0;
    virtual void restoreIfMinimised() = 0;
};

class FileOpening {
  public:
    FileOpening(DocumentFrame& frame, const EditorOptions& options, Notices& notices)
        : frame_(frame), options_(options), notices_(notices) {}

    // The one way to show a file in a window: a new one, or the one that shows the file already unless several are
    // wanted. A new document without a name. The line and the column are counted from 1; 0 or less means the first.
    // True when shown.
    bool OpenFileAtLine(const std::optional<std::string>& name, std::int32_t line, std::int32_t column = 0);
    // Opens what FilesOf has made of the arguments; the number of files opened.
    int OpenCommandLineFiles(std::span<const FileAtLine> files);
    void OpenDroppedFiles(std::span<const std::string> names);

  private:
    DocumentFrame& frame_;
    const EditorOptions& options_;
    Notices& notices_;
};

}  // namespace vexa
