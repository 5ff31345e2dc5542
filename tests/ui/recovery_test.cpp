// The program is killed in the middle of typing, or Windows ends, or another program writes a file: nothing is lost.
// VEXA_KILLS says how often it is killed at random, VEXA_KILL_SEED at which moments.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <random>
#include <string>

#include "ui/clipboard.h"
#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

constexpr const char* kOffer = "Unsaved Changes";
constexpr DWORD kOldest = 5000;  // milliseconds; what was typed before comes back
constexpr int kSecondButton = 1803;
constexpr int kThirdButton = 1804;

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* given = std::getenv(name);
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : otherwise;
}

std::vector<std::string> RowsOf(HWND dialog) {
    std::vector<std::string> rows;
    const HWND list = ChildrenOf(dialog, "ListBox").at(0);
    for (LRESULT i = 0; i < SendMessageA(list, LB_GETCOUNT, 0, 0); ++i) {
        wchar_t row[500] = L"";  // between programs Wine passes on nothing else
        SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(row));
        rows.emplace_back(row, row + std::wcslen(row));
    }
    return rows;
}

// Of the active document, which is not empty. A question that is open refuses commands; it is put off.
std::string CopiedText(const Editor& editor) {
    std::string text;
    WaitUntil([&] {
        if (const HWND asks = editor.hasDialog() ? editor.dialog("") : nullptr) Press(asks, IDCANCEL);
        PutForeignText("-");
        editor.runCommand(CommandId::SelectAll);
        editor.runCommand(CommandId::Copy);
        return (text = ClipboardText()) != "-";
    });
    return text;
}

class RecoveryTest : public ::testing::Test {
  protected:
    RecoveryTest() {
        folder.put("a.txt", "a\r\n");
        folder.put("b.txt", "b\r\n");
    }
    std::string keptTexts() const {
        std::string all;
        for (const char* name : {"1-1", "1-2", "1-3"})
            all += folder.get("vbackup\\unsaved-" + std::string(name) + ".vxr");
        return all;
    }
    bool isKept(const std::string& text) const {
        return WaitUntil([&] { return keptTexts().find(text) != std::string::npos; });
    }
    void comeBackTo(const Editor& editor) const {
        SendMessageA(editor.frame(), WM_ACTIVATEAPP, FALSE, 0);
        SendMessageA(editor.frame(), WM_ACTIVATEAPP, TRUE, 0);
    }

    TestFolder folder;
};

TEST_F(RecoveryTest, WhatAKilledEditorHadNotSavedIsOfferedInOneDialog) {
    {
        Editor editor(folder, {"a.txt", "b.txt"});
        editor.keys("two {Alt+N}");
        ASSERT_TRUE(editor.hasCaption("a.txt]"));
        editor.keys("one ");
        ASSERT_TRUE(editor.showsPosition(1, 5));
        editor.runCommand(CommandId::FileNew);
        editor.keys("three");
        for (const char* text : {"one ", "two ", "three"})
            ASSERT_TRUE(isKept(text)) << text << " in " << keptTexts();
        editor.kill();
    }
    {
        Editor editor(folder);
        const HWND dialog = editor.dialog(kOffer);
        ASSERT_TRUE(dialog);
        EXPECT_EQ(RowsOf(dialog).size(), 3u);
        editor.takePicture("recovery");
        ASSERT_TRUE(Press(dialog, IDOK));
        EXPECT_TRUE(WaitUntil([&] { return editor.documents().size() == 3; }));
        editor.takePicture("recovered");
        EXPECT_EQ(folder.get("a.txt") + folder.get("b.txt"), "a\r\nb\r\n");
        std::string texts;
        for (int i = 0; i < 3; ++i) {
            texts += CopiedText(editor) + ";";
            editor.runCommand(CommandId::NextWindow);
        }
        for (const char* text : {"one a", "two b", "three"})
            EXPECT_NE(texts.find(text), std::string::npos) << texts;
        SendMessageA(editor.frame(), WM_ENDSESSION, TRUE, 0);
        editor.kill();
    }
    {
        Editor editor(folder);
        const HWND dialog = editor.dialog(kOffer);
        ASSERT_TRUE(dialog) << "the end of Windows asks nobody";
        EXPECT_EQ(RowsOf(dialog).size(), 3u);
        PostMessageA(dialog, WM_COMMAND, kSecondButton, 0);
        const HWND question = editor.dialog("Vexa 95");
        ASSERT_TRUE(question);
        ASSERT_TRUE(Press(question, IDYES));
        ASSERT_TRUE(WaitUntil([&] { return !editor.hasDialog(); }));
        editor.requestClose();
        EXPECT_TRUE(editor.ends());
    }
    const Editor editor(folder, {"a.txt"});
    EXPECT_TRUE(editor.hasCaption("a.txt]"));
    EXPECT_FALSE(editor.hasDialog());
}

TEST_F(RecoveryTest, WhatAnotherProgramWritesIsReadAnewOrAskedAbout) {
    const Editor editor(folder, {"b.txt", "a.txt"});
    editor.keys("{Alt+N}");
    ASSERT_TRUE(editor.hasCaption("b.txt]"));
    editor.keys("my ");
    ASSERT_TRUE(editor.showsPosition(1, 4));
    folder.put("a.txt", "another's a\r\n");
    folder.put("b.txt", "another's b\r\n");
    comeBackTo(editor);
    HWND dialog = editor.dialog("Changed by Another Program");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(RowsOf(dialog), std::vector{folder.path("b.txt")});
    editor.takePicture("changed-outside");
    PostMessageA(dialog, WM_COMMAND, kThirdButton, 0);
    ASSERT_TRUE(editor.hasCaption("Output Window"));
    editor.takePicture("differences");
    comeBackTo(editor);
    ASSERT_TRUE(dialog = editor.dialog("Changed by Another Program"));
    PostMessageA(dialog, WM_COMMAND, kSecondButton, 0);
    ASSERT_TRUE(WaitUntil([&] { return !editor.hasDialog(); }));
    for (const char* name : {"b", "a"}) {
        for (int i = 0; i < 3 && editor.caption().find(std::string(name) + ".txt]") == std::string::npos; ++i)
            editor.runCommand(CommandId::NextWindow);
        EXPECT_EQ(CopiedText(editor), "another's " + std::string(name) + "\r\n");
    }
}

// What one document is: its words as they were typed, and when.
struct Typed {
    std::string text;
    std::vector<std::pair<DWORD, std::size_t>> lengths;

    std::string atLeast(DWORD killed) const {
        std::size_t length = 0;
        for (const auto& [when, typed] : lengths) {
            if (killed - when >= kOldest) length = typed;
        }
        return text.substr(0, length);
    }
};

// One life of the editor that ends by force, and the next.
class KilledRun {
  public:
    KilledRun() {
        folder.put("a.txt", "a\r\n");
        folder.put("b.txt", "b\r\n");
    }
    void run() {
        {
            Editor editor(folder, {"a.txt", "b.txt"});
            typeUntilKilled(editor);
        }
        const Editor editor(folder);
        recoverAll(editor);
        check(editor);
    }

  private:
    void typeUntilKilled(Editor& editor) {
        editor.runCommand(CommandId::FileNew);
        const DWORD begin = GetTickCount();
        const DWORD life = random_() % 9000;
        for (int word = 0; GetTickCount() - begin < life; ++word) {
            Typed& typed = typed_[current_];
            const std::string text = std::string(1, "NST"[current_]) + std::to_string(word) + " ";
            editor.keys(text);
            typed.text += text;
            typed.lengths.emplace_back(GetTickCount(), typed.text.size());
            if (random_() % 12 == 0) editor.keys("{Enter}"), typed.text += "\r\n";
            if (random_() % 20 == 0 && current_ == 1) editor.keys("{Alt+W}");
            const DWORD pause = GetTickCount();
            const DWORD length = random_() % 8 == 0 ? random_() % 2000 : random_() % 60;
            WaitUntil([&] { return GetTickCount() - pause >= length; });
            if (random_() % 3 == 0) editor.keys("{Alt+N}"), current_ = (current_ + 1) % 3;
        }
        killed_ = GetTickCount();
        editor.kill();
    }
    void recoverAll(const Editor& editor) {
        const std::string least = typed_[0].atLeast(killed_) + typed_[1].atLeast(killed_) + typed_[2].atLeast(killed_);
        WaitUntil([&] { return editor.hasDialog() || least.empty() || !editor.documents().empty(); });
        if (const HWND dialog = editor.hasDialog() ? editor.dialog("") : nullptr) {
            wasOffered_ = true;
            EXPECT_EQ(TextOf(dialog), kOffer);
            EXPECT_TRUE(Press(dialog, IDOK));
            EXPECT_TRUE(WaitUntil([&] { return !editor.hasDialog() && !editor.documents().empty(); }));
        }
    }
    // All texts that the editor and the files have now, where each word that had to come back is looked for.
    void check(const Editor& editor) {
        std::string all = folder.get("a.txt") + folder.get("b.txt");
        for (const std::string name : {"a", "b"}) {
            const std::string file = folder.get(name + ".txt");
            const std::string last = name + "\r\n";
            const std::string_view typed =
                std::string_view(file).substr(0, file.size() - std::min(file.size(), last.size()));
            const bool isWhole = file.ends_with(last) && typed_[1].text.starts_with(typed);
            EXPECT_TRUE(isWhole || folder.get(name + ".txt.vx0").ends_with(last)) << file;
        }
        const std::size_t count = wasOffered_ ? editor.documents().size() : 0;
        for (std::size_t i = 0; i < count; ++i) {
            all += CopiedText(editor);
            editor.runCommand(CommandId::NextWindow);
        }
        for (const Typed& typed : typed_)
            EXPECT_NE(all.find(typed.atLeast(killed_)), std::string::npos) << all << "\n" << typed.atLeast(killed_);
    }

    TestFolder folder;
    // In the order in which the windows follow each other, the new one first. The second is saved now and then.
    Typed typed_[3];
    std::size_t current_ = 0;
    DWORD killed_ = 0;
    bool wasOffered_ = false;
    static inline std::mt19937 random_{FromEnvironment("VEXA_KILL_SEED", 1)};
};

TEST(KillTest, NothingIsLostAtAnyMoment) {
    for (unsigned round = 0; round < FromEnvironment("VEXA_KILLS", 10) && !testing::Test::HasFailure(); ++round) {
        SCOPED_TRACE(round);
        KilledRun().run();
    }
}

}  // namespace
}  // namespace vexa::test
