#include "shell/waiting_start.h"

#include <algorithm>
#include <memory>

#include "shell/document_wait.h"
#include "shell/hand_off.h"

namespace vexa {

namespace {

constexpr std::uint32_t kStartingPause = 20;  // milliseconds
constexpr std::uint16_t kShowNormal = 1;

using IsEditorOpen = bool (*)();

// With an argument that names no file, so that there is no new document either. The editor decides at its own turn.
bool StartEditor(IsEditorOpen isEditorOpen) {
    const auto started = platform::StartProcess("\"" + platform::ProgramPath() + "\" \"\"", {}, kShowNormal);
    if (started.process == platform::kNoProcess) return false;
    while (!isEditorOpen() && !platform::ExitCodeOf(started.process))
        platform::Pause(kStartingPause);
    platform::CloseProcess(started.process);
    return isEditorOpen();
}

bool HasEditor(IsEditorOpen isEditorOpen, StartTurn& turn) {
    if (isEditorOpen()) return true;
    turn.reset();
    const bool isStarted = StartEditor(isEditorOpen);
    turn.emplace(kStartTurn, kStartPatience);
    return isStarted;
}

// An editor that is busy reads the file later, one that has ended never.
bool HandedOff(const FileAtLine& file, IsEditorOpen isEditorOpen, Notices& notices) {
    if (!HandOffFile(file, notices)) return false;
    while (!AwaitReading()) {
        if (isEditorOpen()) continue;
        WithdrawHandOff();
        return false;
    }
    return true;
}

}  // namespace

bool HandedOff(std::span<const FileAtLine> files, bool (*isEditorOpen)(), Notices& notices) {
    const auto isHandedOff = [&](const FileAtLine& file) { return HandedOff(file, isEditorOpen, notices); };
    return !files.empty() && std::ranges::all_of(files, isHandedOff);
}

bool WaitedFor(std::vector<FileAtLine> files, bool (*isEditorOpen)(), StartTurn& turn, Notices& notices) {
    if (!HasEditor(isEditorOpen, turn)) return false;
    std::vector<std::unique_ptr<DocumentWait>> waits;
    for (FileAtLine& file : files) {
        waits.push_back(std::make_unique<DocumentWait>());
        file.wait = waits.back()->number();
    }
    if (!HandedOff(files, isEditorOpen, notices)) return false;
    turn.reset();
    bool areClosed = true;
    for (const auto& wait : waits)
        areClosed &= wait->awaitEnd();
    return areClosed;
}

}  // namespace vexa
