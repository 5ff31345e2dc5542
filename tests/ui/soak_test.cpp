// Commands, keys and mouse at random, thousands a minute. VEXA_SOAK_SECONDS says for how long, VEXA_SOAK_SEED which.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iterator>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/ui_stage.h"

namespace vexa::test {
namespace {

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* given = std::getenv(name);
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : otherwise;
}

// Commands that ask nothing, close nothing and write no file.
std::vector<std::string> CommandNames() {
    std::istringstream names(
        "Undo Undo Redo Cut Copy Paste Clear SelectAll FindNext FindPrevious PlayMacro RecordMacro "
        "ToggleToolBar ToggleStatusBar ArrangeIcons Cascade Tile TileVertically TileHorizontally NextWindow "
        "PreviousWindow ToggleCase LowerCase UpperCase MatchingBracket WindowStart WindowEnd DocumentStart "
        "DocumentEnd");
    return {std::istream_iterator<std::string>(names), {}};
}

constexpr const char* kKeys[] = {
    "word ",       "{Enter}",      "x",        "{Backspace}",      "{Del}",
    "{Tab}",       "{Shift+Tab}",  "{Up}",     "{Down}",           "{Left}",
    "{Right}",     "{Home}",       "{End}",    "{PgUp}",           "{PgDn}",
    "{Ctrl+Left}", "{Ctrl+Right}", "{Alt+A}",  "{Alt+L}",          "{Alt+C}",
    "{Alt+D}",     "{Alt+K}",      "{Ctrl+K}", "{Alt+I}",          "{Alt+3}",
    "{Esc}",       "{Ctrl+Z}",     "{Ctrl+A}", "{Ctrl+Backspace}", "{F7}",
    "{F8}",        "{Alt+N}",      "a = 1;",   "{Ctrl+Home}",      "{Ctrl+End}",
};

// So many actions at most wait in the editor's queue.
constexpr unsigned kMostWaiting = 50;

// More than any soak leaves to be undone.
constexpr int kMostSteps = 1'000'000;

class Soak : public ::testing::Test {
  protected:
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
                editor.keys(kKeys[below(std::size(kKeys))]);
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
    // Undoes everything in the active document, writes it and gives back what was written.
    std::string undone(const Editor& editor, const std::string& name) {
        editor.keys("{Esc}");
        EXPECT_TRUE(hasUsedKeys(editor));
        for (int i = 0; i < kMostSteps && editor.message() != "Nothing to undo!"; ++i)
            editor.runCommand(CommandId::Undo);
        // What is read at the end has been written by this save, into a new file.
        DeleteFileA(folder.path(name).c_str());
        // Nothing is recorded any more, which would warn instead of telling of the save.
        if (!editor.recording().empty()) editor.keys("{F7}");
        if (editor.mode() == "OVR") editor.keys("{Alt+I}");
        editor.keys("{Ctrl+Home}z{Backspace}");
        EXPECT_TRUE(hasUsedKeys(editor));
        EXPECT_TRUE(NameShownBy(editor.activeDocument()).ends_with(" *"));
        editor.command(CommandId::FileSave);
        EXPECT_TRUE(editor.showsMessage("Write successful.")) << editor.message();
        return folder.get(name);
    }

    TestFolder folder;
    const std::vector<std::string> commands_ = CommandNames();
    std::mt19937 random_{FromEnvironment("VEXA_SOAK_SEED", 1)};
};

TEST_F(Soak, EditorAnswersAndUndoGivesTheLoadedTextBack) {
    std::string text;
    for (int i = 0; i < 200; ++i)
        text += "int f" + std::to_string(i) + "(int x) { return g(x, {1, 2}); }  // a line of text\r\n";
    folder.put("a.c", text);
    folder.put("b.c", text);
    folder.put("vexa.INI", "[Editor Options]\r\nAutoBackup=0\r\n");
    const Editor editor(folder, {"a.c", "b.c"});
    ASSERT_TRUE(editor.hasCaption("b.c]"));
    const DWORD start = GetTickCount();
    const DWORD duration = 1000 * FromEnvironment("VEXA_SOAK_SECONDS", 30);
    unsigned done = 0;
    for (; GetTickCount() - start < duration; ++done) {
        ASSERT_TRUE(doSomething(editor) && editor.answers()) << "after " << done;
        ASSERT_TRUE(editor.isRunning()) << "after " << done;
        ASSERT_FALSE(editor.hasDialog()) << "after " << done;
        const bool isTimeToWait = done % kMostWaiting == 0;
        ASSERT_TRUE(!isTimeToWait || hasUsedKeys(editor)) << "after " << done;
    }
    ASSERT_TRUE(hasUsedKeys(editor));
    ASSERT_TRUE(hasEndedPlaying(editor));
    RecordProperty("actions", static_cast<int>(done));
    for (int i = 0; i < 2; ++i) {
        const std::string name = TextOf(editor.activeDocument()).find("a.c") != std::string::npos ? "a.c" : "b.c";
        EXPECT_EQ(undone(editor, name), text) << name;
        editor.runCommand(CommandId::NextWindow);
    }
    EXPECT_EQ(folder.get("a.c") + folder.get("b.c"), text + text);
    EXPECT_GT(done, duration / 1000 * 10);
}

}  // namespace
}  // namespace vexa::test
