// The program's entry.
#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <string>
#include <vector>

#include "base/platform.h"
#include "base/strings.h"
#include "framework/message_box.h"
#include "framework/system_library.h"
#include "shell/command_line.h"
#include "shell/hand_off.h"
#include "shell/out_of_memory.h"
#include "shell/tool_request.h"
#include "shell/waiting_start.h"
#include "ui/frame/vexa_frame.h"

namespace {

// What the user is told before there is a frame to tell it.
class StartNotices : public vexa::Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    vexa::BoxAnswer box(std::string_view text, vexa::TextId caption, vexa::BoxButtons) override {
        vexa::ShowBox(nullptr, std::string(text), std::string(vexa::LoadText(caption)), MB_OK);
        return vexa::BoxAnswer::Ok;
    }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

// No window owns the box, but all of them wait for it: what the allocation was part of is not finished.
void ShowOutOfMemory(const char* text, const char* caption) {
    MessageBoxA(nullptr, text, caption, MB_OK | MB_ICONSTOP | MB_TASKMODAL);
}

void ShowCommandLineHelp() {
    vexa::ShowBox(nullptr, std::string(vexa::LoadText(vexa::TextId::CommandLineHelp)),
                  std::string(vexa::LoadText(vexa::TextId::ProgramCaption)), MB_OK);
}

// The marker of a program that was killed stays until the user logs off; a file handed over then would be read by
// nobody.
bool IsEditorOpen() {
    return FindWindowA(vexa::kFrameClassName, nullptr) != nullptr;
}

using Files = std::vector<vexa::FileAtLine>;

// Other starts wait until there is a window that takes their files.
int RunEditor(const Files& files, bool isBareStart, int showCommand, vexa::StartTurn& turn) {
    const vexa::OutOfMemoryHandler outOfMemory(&ShowOutOfMemory);
    vexa::platform::AddGlobalMarker(vexa::kActiveMarker);
    int exitCode = 1;
    {
        vexa::Application application(vexa::platform::ProgramPath());
        vexa::ApplyStartDirectory(application.options);
        const auto frame = std::make_unique<vexa::VexaFrame>(application);
        const bool isOpen = frame->open(showCommand);
        turn.reset();
        if (isOpen) {
            frame->openFirstFiles(files, isBareStart);
            exitCode = frame->run();
        }
    }
    vexa::platform::DeleteGlobalMarker(vexa::kActiveMarker);
    return exitCode;
}

// What names files is read before the editor's start directory may become the current one.
int Start(const vexa::CommandLine& commandLine, int showCommand) {
    StartNotices notices;
    const auto request = vexa::ToolRequestOf(commandLine.arguments);
    const Files files = request ? request->files : vexa::FilesOf(commandLine.arguments);
    vexa::StartTurn turn(std::in_place, vexa::kStartTurn, vexa::kStartPatience);
    if (request && request->waits && !files.empty())
        return vexa::WaitedFor(files, &IsEditorOpen, turn, notices) ? 0 : 1;
    if (turn->isMine() && IsEditorOpen()) {
        if (request && vexa::HandedOff(files, &IsEditorOpen, notices)) return 0;
        if (!request && vexa::HandedOff(commandLine, notices)) {
            vexa::AwaitReading();
            return 0;
        }
    }
    return RunEditor(files, commandLine.arguments.empty(), showCommand, turn);
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int showCommand) {
    SetErrorMode(SEM_FAILCRITICALERRORS);  // an empty drive is a file that cannot be opened, not a question to the user
    vexa::LoadSystemLibrariesAlone();
    InitCommonControls();
    const vexa::CommandLine commandLine = vexa::ParseCommandLine(GetCommandLineA());
    if (vexa::AsksForHelp(commandLine.arguments)) {
        ShowCommandLineHelp();
        return 0;
    }
    return Start(commandLine, showCommand);
}
