// All commands at random, and keys in between; what their dialogs ask is answered with Enter or Esc, at random too.
// VEXA_SOAK_SECONDS says for how long, VEXA_SOAK_SEED which.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "ui/editor.h"
#include "ui/editor_state.h"
#include "ui/key_script.h"
#include "ui/soak.h"
#include "ui/ui_stage.h"

namespace vexa::test {
namespace {

constexpr CommandId kLeftOut[] = {
    CommandId::Exit,                  // the editor would end
    CommandId::Print,                 // Enter prints
    CommandId::DosShell,              // a console would stay, which waits for its user
    CommandId::OpenContainingFolder,  // a window of the system would stay
};

// For whoever looks why it fails.
constexpr std::size_t kShownActions = 20;

std::vector<CommandId> CommandsToTake() {
    std::vector<CommandId> commands = AllCommands();
    std::erase_if(commands, [](CommandId id) { return std::ranges::count(kLeftOut, id) != 0; });
    return commands;
}

// Looks for a second, for what need not come.
void LookFor(const std::function<bool()>& condition) {
    for (int looks = 0; looks < 100 && !condition(); ++looks)
        Sleep(10);
}

// The uppermost one that takes keys: neither hidden nor behind a dialog of its own.
HWND OpenDialog(const Editor& editor) {
    for (const HWND window : editor.program().topWindows()) {
        if (ClassOf(window) == "#32770" && IsWindowEnabled(window)) return window;
    }
    return nullptr;
}

bool IsGone(HWND dialog) {
    return !IsWindowVisible(dialog) || !IsWindowEnabled(dialog);
}

// A command that is sent, for a dialog that it opens lets others go on.
class SentCommand {
  public:
    void send(const Editor& editor, CommandId id) {
        hasEnded_ = false;
        SendMessageCallbackA(editor.frame(), WM_COMMAND, static_cast<WPARAM>(id), 0, &End,
                             reinterpret_cast<ULONG_PTR>(&hasEnded_));
    }
    // The system tells of the end when this thread looks for messages.
    bool hasEnded() const {
        MSG message{};
        PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
        return hasEnded_;
    }

  private:
    static void CALLBACK End(HWND, UINT, ULONG_PTR hasEnded, LRESULT) { *reinterpret_cast<bool*>(hasEnded) = true; }

    bool hasEnded_ = true;
};

class CommandSoak : public ::testing::Test {
  protected:
    CommandSoak() { PutSoakFiles(folder); }

    std::size_t below(std::size_t bound) { return random_() % bound; }
    void note(const std::string& action) {
        actions_.push_back(action);
        if (actions_.size() > kShownActions) actions_.erase(actions_.begin());
    }
    std::string report(const Editor& editor) const {
        std::string text = "after";
        for (const std::string& action : actions_)
            text += " " + action;
        return text + StateOf(editor, "command-soak");
    }

    // What a dialog does with either key is as good: it closes, asks something or stays.
    void answer(HWND dialog) {
        if (GetForegroundWindow() != dialog) {
            SetForegroundWindow(dialog);
            return;  // it is looked at again when that has been done
        }
        const char* const key = below(2) == 0 ? "{Enter}" : "{Esc}";
        note("[" + TextOf(dialog) + "]" + key);
        PressKeys(key);
        LookFor([&] { return IsGone(dialog); });
        answered_ += IsGone(dialog) ? 1 : 0;
    }
    // A macro may bring one dialog after another: as long as they go, there is more to wait for.
    bool comesTrue(const std::function<bool()>& condition) {
        for (int before = -1; before != answered_;) {
            before = answered_;
            if (WaitUntil(condition)) return true;
        }
        return false;
    }
    // Whether nothing has the keyboard but the frame; takes it from what has it.
    bool hasFreed(const Editor& editor) {
        if (const HWND dialog = OpenDialog(editor)) {
            answer(dialog);
        } else if (!IsWindowEnabled(editor.frame())) {
            return false;  // a dialog is coming up
        } else if (GetForegroundWindow() != editor.frame()) {
            SetForegroundWindow(editor.frame());  // the help is in front
        } else if (IsInMode(editor)) {
            PressKeys("{Esc}");
        } else {
            return true;
        }
        return false;
    }
    bool becomesFree(const Editor& editor) {
        return comesTrue([&] { return hasFreed(editor); });
    }
    // A dialog comes that no other key opens, and no macro. It does not come where a key has opened a menu, while a
    // macro plays or where the display lets go of a key that belongs to a chord.
    bool usesKeys(const Editor& editor) {
        return comesTrue([&] {
            if (!hasFreed(editor)) return false;
            PressKeys("{Ctrl+R}");
            LookFor([&] { return OpenDialog(editor) != nullptr; });
            return TextOf(OpenDialog(editor)) == "Macro Repeat";
        });
    }
    bool press(const Editor& editor, const std::string& keys) {
        note(keys);
        PressKeys(keys);
        return usesKeys(editor) && becomesFree(editor);
    }
    bool take(const Editor& editor, CommandId id) {
        note(std::to_string(static_cast<int>(id)));
        command_.send(editor, id);
        return comesTrue([&] {
                   const HWND dialog = command_.hasEnded() ? nullptr : OpenDialog(editor);
                   if (dialog) answer(dialog);
                   return command_.hasEnded();
               }) &&
               becomesFree(editor);
    }
    bool doAnything(const Editor& editor) {
        if (below(3) == 0) return press(editor, AnyKeys(random_));
        return take(editor, commands_[below(commands_.size())]);
    }
    // Whatever it is asked on the way, it ends.
    static bool closes(const Editor& editor) {
        return WaitUntil([&] {
            editor.requestClose();  // refused while a question is open
            const HWND question = OpenDialog(editor);
            if (question) PostMessageA(question, WM_COMMAND, GetDlgItem(question, IDNO) ? IDNO : IDCANCEL, 0);
            return !editor.isRunning();
        });
    }

    TestFolder folder;
    const std::vector<CommandId> commands_ = CommandsToTake();
    SentCommand command_;
    int answered_ = 0;  // dialogs that have gone
    std::vector<std::string> actions_;
    std::mt19937 random_{FromEnvironment("VEXA_SOAK_SEED", 1)};
};

TEST_F(CommandSoak, EveryCommandIsTakenWhateverItsDialogsAreAnswered) {
    const DWORD duration = 1000 * FromEnvironment("VEXA_SOAK_SECONDS", 0);
    if (duration == 0) GTEST_SKIP() << "takes minutes";
    const Editor editor(folder, {"a.c", "b.c", "c.c"});
    ASSERT_TRUE(editor.hasCaption("c.c]") && becomesFree(editor));
    const DWORD start = GetTickCount();
    int done = 0;
    for (; GetTickCount() - start < duration; ++done)
        ASSERT_TRUE(doAnything(editor) && editor.isRunning()) << report(editor);
    RecordProperty("actions", done);
    EXPECT_TRUE(usesKeys(editor) && becomesFree(editor) && closes(editor)) << report(editor);
    EXPECT_TRUE(HasReturned(editor.program(), 0));
    EXPECT_FALSE(folder.has("vbackup\\unsaved-1-1.vxr")) << "nothing is lost";
}

}  // namespace
}  // namespace vexa::test
