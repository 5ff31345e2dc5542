#include "shell/file_opening.h"

#include <algorithm>

#include "shell/hand_off.h"
#include "shell/open_path.h"

namespace vexa {

namespace {

constexpr std::string_view kDdeOpen = "[open(\"";

}  // namespace

bool FileOpening::OpenFileAtLine(const std::optional<std::string>& name, std::int32_t line) {
    const BusyCursor busy(notices_);
    const LineIndex target(std::max(line, 1) - 1);
    if (!name) return frame_.openWindow(std::nullopt, target);
    const std::string path = OpenPathOf(*name);
    const bool isShown = !options_.MultipleCopies && frame_.activateShowing(path, target);
    return isShown || frame_.openWindow(path, target);
}

int FileOpening::OpenCommandLineFiles(std::span<const FileAtLine> files) {
    int opened = 0;
    for (const FileAtLine& file : files)
        opened += OpenFileAtLine(file.file, file.line) ? 1 : 0;
    return opened;
}

void FileOpening::ReceiveHandOff() {
    const std::optional<FileAtLine> handedOff = ReadHandOff(notices_);
    if (!handedOff) return;
    frame_.bringToFront();
    if (!handedOff->file.empty()) OpenFileAtLine(handedOff->file, handedOff->line);
    DeleteHandOff();
    frame_.restoreIfMinimised();
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

bool FileOpening::ExecuteDde(std::string_view text) {
    const std::optional<std::string> file = FileOfDdeExecute(text);
    if (file) OpenFileAtLine(*file, 0);
    return file.has_value();
}

std::optional<std::string> FileOfDdeExecute(std::string_view text) {
    if (!text.starts_with(kDdeOpen)) return std::nullopt;
    text.remove_prefix(kDdeOpen.size());
    const std::size_t end = text.find('"');
    if (end == std::string_view::npos) return std::nullopt;
    return std::string(text.substr(0, end));
}

}  // namespace vexa
