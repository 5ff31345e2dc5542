// The system's dialogs that ask for files to open and for a name to save under.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace vexa {

struct FileFilter {
    std::string label;
    std::string patterns;  // separated by ";"
};

struct FileDialogRequest {
    HWND owner = nullptr;
    std::string title;
    std::vector<FileFilter> filters;
    std::string fileName;       // what the name field begins with
    bool explorerStyle = true;  // the old style otherwise
};

// What the user picked, as the dialog gives it: one path; or, for several, the directory and the names, separated by
// zero bytes in the Explorer style and by blanks in the old one. None when cancelled. The dialog makes the directory it
// ends in the current one.
std::optional<std::string> AskOpenFiles(const FileDialogRequest& request);
// The path to save under; none when cancelled. The user has agreed to an existing file being written over.
std::optional<std::string> AskSaveFile(const FileDialogRequest& request);

}  // namespace vexa
