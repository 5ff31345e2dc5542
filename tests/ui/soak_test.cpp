// Commands, keys and mouse at random, thousands a minute, and now and then an external program or the help.
// VEXA_SOAK_SECONDS says for how long, VEXA_SOAK_SEED which. With VEXA_SOAK_COMMANDS the memory is looked at over so
// many commands, too.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/editor_state.h"
#include "ui/soak.h"
#include "ui/ui_stage.h"

namespace vexa::test {
namespace {

// Commands that ask nothing, close nothing and write no file.
std::vector<std::string> CommandNames() {
    std::istringstream names(
        "Undo Undo Redo Cut Copy Paste Clear SelectAll FindNext FindPrevious PlayMacro RecordMacro "
        "ToggleToolBar ToggleStatusBar ArrangeIcons Cascade Tile TileVertically TileHorizontally NextWindow "
        "PreviousWindow ToggleCase LowerCase UpperCase MatchingBracket WindowStart WindowEnd DocumentStart "
        "DocumentEnd");
    return {std::istream_iterator<std::string>(names), {}};
}

// So many actions at most wait in the editor's queue.
constexpr unsigned kMostWaiting = 50;

// External programs and help are used as often as this in a soak that is longer than the usual one, and take no time
// from the other actions.
constexpr DWORD kFirstGuest = 30'000;   // milliseconds
constexpr DWORD kBetweenGuests = 5000;  // milliseconds

// What the process has taken for itself, as its own counters are not told of everywhere.
SIZE_T PrivateBytesOf(const Editor& editor) {
    SIZE_T bytes = 0;
    MEMORY_BASIC_INFORMATION region{};
    for (char* at = nullptr; VirtualQueryEx(editor.process(), at, &region, sizeof region) == sizeof region;
         at = static_cast<char*>(region.BaseAddress) + region.RegionSize) {
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) bytes += region.RegionSize;
    }
    return bytes;
}

// More than any soak leaves to be undone.
constexpr int kMostSteps = 1'000'000;

class Soak : public ::testing::Test {
  protected:
    Soak() { PutSoakFiles(folder); }
    std::size_t below(std::size_t bound) { return random_() % bound; }
    bool doSomething(const Editor& editor) {
        switch (below(10)) {
            case 0:
                editor.drag(somePlaces(editor));
                return true;
            case 1:
            case 2:
                return editor.runCommand(CommandNamed(commands_[below(commands_.size())]));
            default:
                editor.keys(AnyKeys(random_));
                return true;
        }
    }
    // Well inside the active pane, so that what moves meanwhile does not come under the mouse.
    std::vector<POINT> somePlaces(const Editor& editor) {
        RECT room{};
        GetClientRect(editor.activePane(), &room);
        std::vector<POINT> places(1 + below(3));
        for (POINT& place : places)
            place = {20 + static_cast<LONG>(below(200)), room.bottom / 2 + static_cast<LONG>(below(20))};
        return places;
    }
    // Waits until the editor has used every key: a dialog opens that no other key opens, and no macro.
    static bool hasUsedKeys(const Editor& editor) {
        editor.keys("{Ctrl+R}");
        if (!editor.dialog("Macro Repeat")) return false;
        editor.keys("{Esc}");
        return WaitUntil([&] { return !editor.hasDialog(); });
    }
    // Waits for the end of a macro, which goes on while keys are used: until it ends, another play does and says
    // nothing.
    static bool hasEndedPlaying(const Editor& editor) {
        static const std::set<std::string> kAnswers = {"Macro playback complete", "No macro recorded!",
                                                       "Can't playback macro while recording!"};
        return WaitUntil(
            [&] { return editor.runCommand(CommandId::PlayMacro) && kAnswers.contains(editor.message()); });
    }
    // Nothing is recorded or played any more, so that what follows is done once and now.
    static bool isAtRest(const Editor& editor) {
        editor.keys("{Esc}");
        const bool isQuiet = hasUsedKeys(editor) && hasEndedPlaying(editor);
        if (!editor.recording().empty()) editor.keys("{F7}");
        return isQuiet && WaitUntil([&] { return editor.recording().empty(); });
    }
    static bool isActive(const Editor& editor, const std::string& name) {
        return NameShownBy(editor.activeDocument()).starts_with(name);
    }
    static bool activate(const Editor& editor, const std::string& name) {
        return WaitUntil([&] { return isActive(editor, name) || !editor.runCommand(CommandId::NextWindow); }) &&
               isActive(editor, name);
    }
    // Waits for a list, which comes up by itself, and closes it.
    static bool closesList(const Editor& editor, const std::string& name) {
        if (!WaitUntil([&] { return isActive(editor, name); })) return false;
        editor.keys("{Ctrl+F4}");
        return WaitUntil([&] { return !isActive(editor, name); });
    }

    // ---- external programs and help: each leaves the editor as it was ----

    static bool runTool(const Editor& editor) {
        return editor.runCommand(CommandId::Tool1) && closesList(editor, "Output Window");
    }
    static bool runCommandLine(const Editor& editor) {
        editor.keys("{F10}");
        if (!editor.dialog("DOS Command Line")) return false;
        editor.keys("type errors.txt{Enter}");
        return closesList(editor, "Output Window");
    }
    // Saves a document, so it is one of its own.
    static bool compile(const Editor& editor) {
        return activate(editor, "c.c") && editor.runCommand(CommandId::Compile) &&
               WaitUntil([&] { return isActive(editor, "Message Window"); }) &&
               editor.runCommand(CommandId::NextError) && editor.showsMessage("c.c:3:5: error: wrong") &&
               closesList(editor, "Message Window") && WaitUntil([&] { return isActive(editor, "c.c"); });
    }
    static bool readHelp(const Editor& editor) {
        const auto viewer = [] { return FindWindowA("VexaHelp", nullptr); };
        editor.runCommand(CommandId::HelpIndex);
        if (!WaitUntil([&] { return viewer() && GetForegroundWindow() == viewer(); })) return false;
        editor.keys("{Esc}");
        if (!WaitUntil([&] { return !viewer(); })) return false;
        SetForegroundWindow(editor.frame());
        return WaitUntil([&] { return GetForegroundWindow() == editor.frame(); });
    }
    static constexpr bool (*kGuests[])(const Editor&) = {&runTool, &runCommandLine, &compile, &readHelp};
    bool useGuest(const Editor& editor) {
        return isAtRest(editor) && kGuests[guests_++ % std::size(kGuests)](editor) && hasUsedKeys(editor);
    }

    // ---- the end ----

    // Undoes everything in the active document, writes it and gives back what was written.
    std::string undone(const Editor& editor, const std::string& name) {
        EXPECT_TRUE(hasUsedKeys(editor));
        for (int i = 0; i < kMostSteps && editor.message() != "Nothing to undo!"; ++i)
            editor.runCommand(CommandId::Undo);
        // What is read at the end has been written by this save, into a new file.
        DeleteFileA(folder.path(name).c_str());
        if (editor.mode() == "OVR") editor.keys("{Alt+I}");
        editor.keys("{Ctrl+Home}z{Backspace}");
        EXPECT_TRUE(hasUsedKeys(editor));
        EXPECT_TRUE(NameShownBy(editor.activeDocument()).ends_with(" *"));
        editor.command(CommandId::FileSave);
        EXPECT_TRUE(editor.showsMessage("Write successful.")) << editor.message();
        return folder.get(name);
    }
    // What a compiler has been given was saved with its changes.
    void undoAll(const Editor& editor) {
        ASSERT_TRUE(isAtRest(editor)) << "a macro may go to another window";
        for (const char* name : {"a.c", "b.c", "c.c"}) {
            ASSERT_TRUE(activate(editor, name)) << name;
            const std::string text = undone(editor, name);
            EXPECT_TRUE(text == loaded_ || name == std::string("c.c")) << name << ":\n" << text;
        }
    }
    // In kilobytes, with everything undone and saved, which empties the histories.
    int memoryOf(const Editor& editor, unsigned commands) {
        undoAll(editor);
        const int memory = static_cast<int>(PrivateBytesOf(editor) / 1024);
        std::printf("%u commands: %d KB of its own\n", commands, memory);
        return memory;
    }

    const std::string loaded_ = SoakText();
    TestFolder folder;
    const std::vector<std::string> commands_ = CommandNames();
    unsigned guests_ = 0;
    std::mt19937 random_{FromEnvironment("VEXA_SOAK_SEED", 1)};
};

TEST_F(Soak, EditorAnswersAndUndoGivesTheLoadedTextBack) {
    const Editor editor(folder, {"a.c", "b.c", "c.c"});
    ASSERT_TRUE(editor.hasCaption("c.c]"));
    const DWORD duration = 1000 * FromEnvironment("VEXA_SOAK_SECONDS", 30);
    DWORD start = GetTickCount();
    unsigned done = 0;
    for (; GetTickCount() - start < duration; ++done) {
        const DWORD present = GetTickCount();
        const bool isTimeForGuest = present - start >= kFirstGuest + guests_ * kBetweenGuests;
        ASSERT_TRUE(!isTimeForGuest || useGuest(editor))
            << "guest " << guests_ << " after " << done << ": " << StateOf(editor, "soak");
        start += GetTickCount() - present;
        ASSERT_TRUE(doSomething(editor) && editor.answers()) << "after " << done;
        ASSERT_TRUE(editor.isRunning()) << "after " << done;
        ASSERT_FALSE(editor.hasDialog()) << "after " << done;
        const bool isTimeToWait = done % kMostWaiting == 0;
        ASSERT_TRUE(!isTimeToWait || hasUsedKeys(editor)) << "after " << done;
    }
    RecordProperty("actions", static_cast<int>(done));
    undoAll(editor);
    EXPECT_GT(done, duration / 1000 * 10);
}

// The heap takes what its fullest moment needs, in a few large steps, and keeps it: only the second half of the
// commands counts.
TEST_F(Soak, MemoryDoesNotGrowWithTheNumberOfCommands) {
    static constexpr CommandId kRound[] = {
        CommandId::DocumentEnd, CommandId::ToggleCase,      CommandId::Undo,          CommandId::Redo,
        CommandId::Undo,        CommandId::WindowStart,     CommandId::UpperCase,     CommandId::Undo,
        CommandId::WindowEnd,   CommandId::FindNext,        CommandId::SelectAll,     CommandId::Clear,
        CommandId::Undo,        CommandId::RecordMacro,     CommandId::WindowStart,   CommandId::RecordMacro,
        CommandId::PlayMacro,   CommandId::MatchingBracket, CommandId::DocumentStart,
    };
    constexpr unsigned kBetweenLooks = 5000;
    constexpr int kBearable = 512;  // kilobytes
    const unsigned commands = FromEnvironment("VEXA_SOAK_COMMANDS", 0);
    if (commands == 0) GTEST_SKIP() << "takes minutes";
    const Editor editor(folder, {"a.c", "b.c", "c.c"});
    ASSERT_TRUE(editor.hasCaption("c.c]"));
    // What is used for the first time takes memory that it keeps.
    while (guests_ < std::size(kGuests))
        ASSERT_TRUE(useGuest(editor)) << "guest " << guests_ << ": " << StateOf(editor, "soak");
    int first = 0;
    int last = 0;
    for (unsigned done = 0; done <= commands && !HasFailure(); ++done) {
        if (done % kBetweenLooks == 0) {
            ASSERT_TRUE(useGuest(editor))
                << "guest " << guests_ << " after " << done << ": " << StateOf(editor, "soak");
            last = memoryOf(editor, done);
            if (done <= commands / 2) first = last;
        }
        ASSERT_TRUE(editor.runCommand(kRound[done % std::size(kRound)])) << done;
    }
    EXPECT_LT(last - first, kBearable);
}

}  // namespace
}  // namespace vexa::test
