// What a search shows in the text, and one that is stopped on its way.
#include <gtest/gtest.h>

#include <algorithm>

#include "ui/editor.h"
#include "ui/pixels.h"

namespace vexa::test {
namespace {

class SearchTest : public ::testing::Test {
  protected:
    HWND openDialog(const Editor& editor, const std::string& key, const std::string& caption) {
        editor.keys(key);
        const HWND dialog = editor.dialog(caption);
        EXPECT_TRUE(WaitUntil([&] { return dialog && GetForegroundWindow() == dialog; })) << caption;
        return dialog;
    }

    TestFolder folder;
};

TEST_F(SearchTest, TheDialogLeavesTheMatchInSightAndEscInTheTextClosesIt) {
    constexpr std::uint32_t kMarkingBackground = 0x008080;
    std::string text;
    for (int line = 0; line < 60; ++line)
        text += std::string(60, '.') + (line % 7 == 6 ? "needle" : "......") + std::string(30, '.') + "\r\n";
    folder.put("a.txt", text);
    const Editor editor(folder, {"a.txt"});
    const HWND dialog = openDialog(editor, "{Alt+S}", "Find");
    editor.keys("needle{Enter}");
    ASSERT_TRUE(editor.showsPosition(7, 61));
    const auto marked = [&] { return std::ranges::count(PixelsOf(editor.activePane()), kMarkingBackground); };
    ASSERT_TRUE(WaitUntil([&] { return marked() > 0; }));
    const auto whole = marked();
    for (const int line : {14, 21, 28, 35, 42, 49, 56}) {
        editor.keys("{Enter}");
        ASSERT_TRUE(editor.showsPosition(line, 61));
        EXPECT_TRUE(WaitUntil([&] { return marked() == whole; })) << line;
        if (line == 28) editor.takePicture("find-clear-of-match");
    }
    SetForegroundWindow(editor.frame());
    ASSERT_TRUE(WaitUntil([&] { return GetForegroundWindow() == editor.frame(); }));
    editor.keys("{Esc}");
    EXPECT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
}

TEST_F(SearchTest, EscStopsALongReplacementThatOneUndoTakesBack) {
    std::string text;
    for (int line = 0; line < 60000; ++line)
        text += std::string(290, 'a') + "\r\n";
    folder.put("a.txt", text);
    const Editor editor(folder, {"a.txt"});
    const HWND dialog = openDialog(editor, "{Alt+T}", "Replace");
    // Esc waits in the queue, where the replacement looks for it: no machine is done before it is pressed.
    editor.keys("a{Tab}b{Alt+A}{Alt+R}{Esc}");
    ASSERT_TRUE(WaitUntil([&] { return editor.message().starts_with("Replacement stopped with "); }));
    EXPECT_TRUE(IsWindow(dialog));
    editor.keys("{Esc}");
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    ASSERT_TRUE(editor.hasCaption("*"));
    editor.keys("{Ctrl+Z}");
    EXPECT_TRUE(editor.hasCaption("a.txt]"));
    editor.keys("x{Backspace}{Alt+W}");
    EXPECT_TRUE(editor.showsMessage("Write successful."));
    EXPECT_TRUE(folder.get("a.txt") == text);
}

}  // namespace
}  // namespace vexa::test
