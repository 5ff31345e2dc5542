#include "shell/outside_opens.h"

#include <utility>

#include "base/scoped_flag.h"

namespace vexa {

namespace {

constexpr std::string_view kDdeOpen = "[open(\"";

}  // namespace

void OutsideOpens::receiveHandOff(std::uint32_t postedAt) {
    if (const std::optional<FileAtLine> handedOff = inbox_.take()) {
        add(*handedOff);
    } else if (!isTelling_ && !inbox_.wasTaken(postedAt)) {
        isFileMissing_ = true;
        frame_.openWaitingSoon();
    }
}

bool OutsideOpens::executeDde(std::string_view text) {
    const std::optional<std::string> file = FileOfDdeExecute(text);
    if (file) add({*file, 0});
    return file.has_value();
}

void OutsideOpens::add(FileAtLine file) {
    waiting_.push_back(std::move(file));
    frame_.openWaitingSoon();
}

// The front is asked for also when nothing can be opened yet: the user has to find the dialog that is in the way.
void OutsideOpens::openWaiting() {
    if (!waiting_.empty()) {
        frame_.bringToFront();
        frame_.restoreIfMinimised();
    }
    if (!frame_.isFree()) return;
    tellMissing();
    while (hasNext())
        openNext();
}

void OutsideOpens::tellMissing() {
    if (!std::exchange(isFileMissing_, false)) return;
    const ScopedFlag telling(isTelling_);
    TellMissingHandOff(notices_);
}

void OutsideOpens::openNext() {
    const FileAtLine next = std::move(waiting_.front());
    waiting_.pop_front();
    const bool isShown = !next.file.empty() && opening_.OpenFileAtLine(next.file, next.line, next.column);
    if (next.wait != 0) inbox_.waited().opened(next.wait, isShown ? frame_.documentOf(next.file) : nullptr);
}

std::optional<std::string> FileOfDdeExecute(std::string_view text) {
    if (!text.starts_with(kDdeOpen)) return std::nullopt;
    text.remove_prefix(kDdeOpen.size());
    const std::size_t end = text.find('"');
    if (end == std::string_view::npos) return std::nullopt;
    return std::string(text.substr(0, end));
}

}  // namespace vexa
