// What the mouse marks and turns: words, columns, lines in the margin, sideways scrolling and the font's size.
#include <gtest/gtest.h>

#include <cstdio>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

const std::string kProgram =
    "#include <stdio.h>\r\n"
    "/* a comment\r\n"
    "   on two lines */\r\n"
    "int main(void)\r\n"
    "{\r\n"
    "    const char* text = \"string\"; // rest\r\n"
    "    return 42 + text[0];\r\n"
    "}\r\n";

class MouseTest : public ::testing::Test {
  protected:
    MouseTest() { folder.put("a.cpp", kProgram); }

    // The middle of a character in the active pane, as the caret's own place tells it.
    static POINT placeOf(const Editor& editor, int line, int column) {
        editor.keys("{Ctrl+Home}{Right}{Down}");
        EXPECT_TRUE(editor.showsPosition(2, 2));
        GUITHREADINFO caret{};
        caret.cbSize = sizeof(caret);
        GetGUIThreadInfo(GetWindowThreadProcessId(editor.frame(), nullptr), &caret);
        const POINT cell = {caret.rcCaret.left, caret.rcCaret.top};
        return {cell.x * (column - 1) + 1, cell.y * (line - 1) + cell.y / 2};
    }
    // The file after what is marked has been deleted.
    std::string withoutMarked(const Editor& editor, const std::string& expected) const {
        editor.keys("{Del}{Alt+W}");
        return folder.getOnce("a.cpp", expected);
    }
    static std::string without(const std::string& part) {
        std::string text = kProgram;
        return text.erase(text.find(part), part.size());
    }

    TestFolder folder;
};

TEST_F(MouseTest, DoubleClickMarksTheWord) {
    const Editor editor(folder, {"a.cpp"});
    const POINT place = placeOf(editor, 6, 20);
    editor.doubleClick(place);
    EXPECT_TRUE(editor.showsPosition(6, 21));
    editor.takePicture("coloured-word-marked");
    const std::string expected = without("text");
    EXPECT_EQ(withoutMarked(editor, expected), expected);
}

TEST_F(MouseTest, TripleClickMarksTheLine) {
    const Editor editor(folder, {"a.cpp"});
    const POINT place = placeOf(editor, 6, 20);
    editor.doubleClick(place);
    editor.drag({place});
    EXPECT_TRUE(editor.answers());
    editor.takePicture("line-marked");
    const std::string expected = without("    const char* text = \"string\"; // rest\r\n");
    EXPECT_EQ(withoutMarked(editor, expected), expected);
}

TEST_F(MouseTest, PanesOfTheStatusBarDoWhatTheyShow) {
    folder.put("b.txt", "b\r\n");
    SetFileAttributesA((folder.path() + "\\b.txt").c_str(), FILE_ATTRIBUTE_READONLY);
    const Editor editor(folder, {"b.txt", "a.cpp"});
    const std::vector<HWND> panes = ChildrenOf(ChildrenOf(editor.frame(), "StatusBarCL").at(0), "CtrlWindowCL");
    const auto press = [&](std::size_t pane) { PostMessageA(panes.at(pane), WM_LBUTTONDOWN, 0, 0); };
    EXPECT_EQ(editor.readOnly(), "");
    EXPECT_EQ(editor.lineEnds(), "CRLF");
    press(3);
    EXPECT_TRUE(WaitUntil([&] { return editor.lineEnds() == "LF"; }));
    press(4);
    EXPECT_TRUE(editor.showsMode("OVR"));
    editor.command(CommandId::NextWindow);
    EXPECT_TRUE(WaitUntil([&] { return editor.readOnly() == "Read only"; }));
    editor.takePicture("status-panes");
    press(5);
    EXPECT_TRUE(editor.dialog("Goto Line"));
}

TEST_F(MouseTest, AltDragMarksAColumnAndOpensNoMenu) {
    const Editor editor(folder, {"a.cpp"});
    const POINT from = placeOf(editor, 6, 1);
    const POINT to = placeOf(editor, 7, 5);
    editor.dragWithAlt(from, to);
    EXPECT_TRUE(editor.showsPosition(7, 5));
    editor.takePicture("column-marked");
    std::string expected = without("    const");
    expected.insert(expected.find(" char"), "const");
    expected.erase(expected.find("    return"), 4);
    EXPECT_EQ(withoutMarked(editor, expected), expected);
}

TEST_F(MouseTest, DragInTheMarginMarksLines) {
    const Editor editor(folder, {"a.cpp"});
    POINT from = placeOf(editor, 2, 1);
    POINT to = placeOf(editor, 3, 1);
    from.x = to.x = -12;
    editor.drag({from, to});
    EXPECT_TRUE(editor.showsPosition(3, 1));
    editor.takePicture("lines-marked");
    const std::string expected = without("/* a comment\r\n   on two lines */\r\n");
    EXPECT_EQ(withoutMarked(editor, expected), expected);
}

TEST_F(MouseTest, WheelWithShiftScrollsSidewaysAndWithControlChangesTheFont) {
    {
        const Editor editor(folder, {"a.cpp"});
        const POINT first = placeOf(editor, 6, 2);
        PostMessageA(editor.activePane(), WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -120), 0);
        editor.click(first);
        int column = 0;
        EXPECT_TRUE(WaitUntil([&] {
            return std::sscanf(editor.position().c_str(), " L:00006 C:%d", &column) == 1 && column > 2;
        })) << editor.position();
        PostMessageA(editor.activePane(), WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, 4 * 120), 0);
        ASSERT_TRUE(editor.answers());
        editor.takePicture("larger-font");
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    EXPECT_NE(folder.get("vexa.INI").find("Height=-17\r\n"), std::string::npos);
}

TEST_F(MouseTest, RightClickMovesTheCaretUnlessItIsOverWhatIsMarked) {
    const Editor editor(folder, {"a.cpp"});
    const POINT place = placeOf(editor, 4, 7);
    editor.rightClick(place);
    EXPECT_TRUE(editor.hasPopupMenu());
    EXPECT_TRUE(editor.showsPosition(4, 7));
    editor.takePicture("context-menu");
    editor.keys("u");  // changes the word to upper case
    EXPECT_TRUE(editor.hasCaption("*"));
    editor.keys("{Alt+W}");
    std::string expected = kProgram;
    expected.replace(expected.find("main"), 4, "MAIN");
    EXPECT_EQ(folder.getOnce("a.cpp", expected), expected);
}

TEST_F(MouseTest, MarginShowsBookmarksAndChangedLines) {
    const Editor editor(folder, {"a.cpp"});
    editor.keys("{Down*3}{Alt+4}{Down*2}{End}x{Enter}");
    ASSERT_TRUE(editor.showsPosition(7, 5));
    editor.takePicture("margin");
    editor.command(CommandId::ChangeOptions);
    const HWND dialog = editor.dialog("Editor Options");
    ASSERT_TRUE(dialog);
    RECT before;
    GetClientRect(editor.activePane(), &before);
    SendMessageA(GetDlgItem(dialog, 228), BM_CLICK, 0, 0);  // the line numbers
    ASSERT_TRUE(Press(dialog, IDOK));
    EXPECT_TRUE(WaitUntil([&] {
        RECT after;
        GetClientRect(editor.activePane(), &after);
        return after.right > before.right;
    }));
}

}  // namespace
}  // namespace vexa::test
