// The "Color Setup" dialog, and the colours on the screen.
#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/pixels.h"

namespace vexa::test {
namespace {

constexpr const char* kSource =
    "while (true)  // for ever\r\n"
    "#include <vector>\r\n"
    "/* A comment */\r\n"
    "int main(int count, char** texts) {\r\n"
    "    const double limit = 4095.5;\r\n"
    "    return print(\"text\", limit, count + 1) ? 0 : -1;\r\n"
    "}\r\n";

class ColourSetup : public ::testing::Test {
  protected:
    ColourSetup() { folder.put("a.cpp", kSource); }

    static HWND open(const Editor& editor) {
        editor.command(CommandId::ChangeColours);
        return editor.dialog("Color Setup");
    }
    static std::string preset(HWND dialog) { return TextOf(ChildrenOf(dialog, "ComboBox").at(0)); }
    static bool closes(HWND dialog) {
        return WaitUntil([&] { return !IsWindow(dialog); });
    }
    bool hasSetting(const std::string& line) const {
        return WaitUntil([&] { return folder.get("vexa.INI").find("\r\n" + line + "\r\n") != std::string::npos; });
    }

    TestFolder folder;
};

TEST_F(ColourSetup, PresetsShowAtOnceAndCancelPutsTheOldColoursBack) {
    const Editor editor(folder, {"a.cpp"});
    editor.keys("{Down*2}{Shift+End}");
    EXPECT_TRUE(ShowsBackground(editor.activePane(), kDarkBlue));
    const HWND dialog = open(editor);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(preset(dialog), "Classic Vexa");
    editor.takePicture("color-setup");
    struct Step {
        const char* key;
        const char* preset;
        COLORREF background;
        const char* picture;
    };
    const Step steps[] = {
        {"{Home}", "Black Vexa", kBlack, "preset-black"},
        {"{Down}", "Classic Vexa", kDarkBlue, "preset-classic"},
        {"{Down}", "Gray Vexa", kGray, "preset-gray"},
        {"{Down}", "Monochrome Vexa", kWhite, "preset-monochrome"},
        {"{Down}", "Standard Vexa", kWhite, "preset-standard"},
        {"{Down}", "User Defined", kDarkBlue, "preset-user"},
        {"{Home}", "Black Vexa", kBlack, "preset-black-again"},
    };
    for (const Step& step : steps) {
        editor.keys(step.key);
        EXPECT_TRUE(WaitUntil([&] { return preset(dialog) == step.preset; })) << step.preset;
        EXPECT_TRUE(ShowsBackground(editor.activePane(), step.background)) << step.preset;
        editor.takePicture(step.picture);
    }
    editor.keys("{Esc}");
    EXPECT_TRUE(closes(dialog));
    EXPECT_TRUE(ShowsBackground(editor.activePane(), kDarkBlue));
    editor.requestClose();
    ASSERT_TRUE(editor.ends());
    EXPECT_TRUE(hasSetting("Background=14"));
}

TEST_F(ColourSetup, UpdateKeepsTheColoursForThisSessionAndTheNext) {
    {
        const Editor editor(folder, {"a.cpp"});
        const HWND dialog = open(editor);
        ASSERT_TRUE(dialog);
        editor.keys("{Home}{Enter}");
        EXPECT_TRUE(closes(dialog));
        EXPECT_TRUE(hasSetting("Background=8")) << "without waiting for the end of the session";
        EXPECT_TRUE(ShowsBackground(editor.activePane(), kBlack));
        const HWND again = open(editor);
        ASSERT_TRUE(again);
        EXPECT_EQ(preset(again), "Black Vexa");
        ASSERT_TRUE(Press(again, IDCANCEL));
        editor.command(CommandId::FileNew);
        ASSERT_TRUE(editor.hasCaption("untitled.txt"));
        EXPECT_TRUE(ShowsBackground(editor.activePane(), kBlack)) << "in a new document, too";
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    const Editor editor(folder, {"a.cpp"});
    EXPECT_TRUE(ShowsBackground(editor.activePane(), kBlack));
}

TEST_F(ColourSetup, ColoursOfElementsAreChosenOneByOne) {
    const Editor editor(folder, {"a.cpp"});
    const HWND dialog = open(editor);
    ASSERT_TRUE(dialog);
    editor.keys("{Alt+O}{End}");  // the background is the element that is chosen first
    EXPECT_TRUE(ShowsBackground(editor.activePane(), kDarkPurple));
    EXPECT_EQ(preset(dialog), "User Defined");
    editor.takePicture("color-setup-list");
    editor.keys("{Alt+E}k");  // Keywords; their colour is chosen, but nothing has changed
    const auto lists = ChildrenOf(dialog, "ListBox");
    EXPECT_TRUE(WaitUntil([&] { return SendMessageA(lists.at(1), LB_GETCURSEL, 0, 0) == 0; }));
    EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kWhite));
    editor.keys("{Alt+O}{Down}");
    EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kGray));
    editor.keys("{Enter}");
    EXPECT_TRUE(closes(dialog));
    EXPECT_TRUE(hasSetting("Keyword=1"));
    EXPECT_TRUE(hasSetting("Background=15"));
}

TEST_F(ColourSetup, ColouringCanBeSwitchedOff) {
    {
        const Editor editor(folder, {"a.cpp"});
        EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kWhite)) << "a keyword";
        const HWND dialog = open(editor);
        ASSERT_TRUE(dialog);
        editor.keys("{Alt+O}{Tab}{ }");
        EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kYellow));
        editor.takePicture("color-setup-off");
        editor.keys("{Enter}");
        EXPECT_TRUE(closes(dialog));
        EXPECT_TRUE(hasSetting("Highlighting=0"));
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    const Editor editor(folder, {"a.cpp"});
    EXPECT_TRUE(ShowsInFirstLine(editor.activePane(), kYellow));
}

}  // namespace
}  // namespace vexa::test
