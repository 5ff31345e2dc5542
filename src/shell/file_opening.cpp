#include "shell/file_opening.h"

#include <algorithm>

#include "shell/file_name_check.h"
#include "shell/left_copies.h"
#include "shell/open_path.h"

namespace vexa {

bool FileOpening::OpenFileAtLine(const std::optional<std::string>& name, std::int32_t line, std::int32_t column) {
    const BusyCursor busy(notices_);
    const TextPosition target{LineIndex(std::max(line, 1) - 1), CharColumn(std::max(column, 1) - 1)};
    if (!name) return frame_.openWindow(std::nullopt, target);
    const std::string path = OpenPathOf(*name);
    if (!IsUsableName(path, notices_)) return false;
    const bool isShown = !options_.MultipleCopies && frame_.activateShowing(path, target);
    if (isShown) return true;
    if (!frame_.openWindow(path, target)) return false;
    OfferLeftCopies(path, notices_, [this](const std::string& copy) { frame_.openWindow(copy, {}); });
    return true;
}

int FileOpening::OpenCommandLineFiles(std::span<const FileAtLine> files) {
    int opened = 0;
    for (const FileAtLine& file : files)
        opened += OpenFileAtLine(file.file, file.line, file.column) ? 1 : 0;
    return opened;
}

void FileOpening::OpenDroppedFiles(std::span<const std::string> names) {
    frame_.bringToFront();
    for (const std::string& name : names) {
        frame_.bringToFront();
        if (notices_.pumpMessages()) break;
        OpenFileAtLine(name, 0);
    }
    frame_.restoreIfMinimised();
}

}  // namespace vexa
