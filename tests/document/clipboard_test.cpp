// Limits, refusals and bad texts of the clipboard commands; what they do to texts is in the replay cases.
#include <gtest/gtest.h>

#include <string>

#include "document/document_session.h"
#include "document/memory_clipboard.h"

namespace vexa {
namespace {

class Clipboard : public testing::Test, protected test::DocumentSession {
  protected:
    Clipboard() {
        fill(std::vector<std::string>(1100, "line"));
        view_.setClipboard(clipboard_);
    }
    void markTo(int line, MarkMode mode = MarkMode::Lines) {
        document_.marked() = {mode, true, {LineIndex(0), DisplayColumn(0)}, {LineIndex(line), DisplayColumn(2)}};
    }

    test::MemoryClipboard clipboard_;
};

TEST_F(Clipboard, TakesBlocksWhoseEndIsAThousandLinesBelowTheirStart) {
    markTo(1000);
    view_.copy();
    EXPECT_TRUE(notices_.boxes.empty());
    EXPECT_EQ(clipboard_.text->size(), 1001 * std::string("line\r\n").size());
    EXPECT_FALSE(document_.marked().active);
    EXPECT_EQ(notices_.busyDepth, 0);
    EXPECT_EQ(notices_.busyCount, 1);
}

TEST_F(Clipboard, RefusesLargerBlocksAndChangesNothing) {
    markTo(1001);
    view_.copy();
    ASSERT_EQ(notices_.boxes.size(), 1u);
    EXPECT_EQ(notices_.boxes[0].text, "This version can not copy more that 1000 lines\n to clipboard.");
    EXPECT_EQ(notices_.boxes[0].caption, "Vexa Error");
    view_.cut();
    ASSERT_EQ(notices_.boxes.size(), 2u);
    EXPECT_EQ(notices_.boxes[1].text, "This version can not cut more that 1000 lines\n to clipboard.");
    EXPECT_FALSE(clipboard_.hasText());
    EXPECT_TRUE(document_.marked().active);
    EXPECT_FALSE(document_.isModified());
}

TEST_F(Clipboard, AsALargeOneTakesBlocksOfAnySizeWithTheirKind) {
    options_.habits.largeClipboard = true;
    markTo(1001, MarkMode::Column);
    view_.copy();
    EXPECT_TRUE(notices_.boxes.empty());
    EXPECT_EQ(clipboard_.text->size(), 1002 * std::string("li\r\n").size());
    EXPECT_EQ(clipboard_.kind, MarkMode::Column);
    markTo(1099);
    view_.cut();
    EXPECT_FALSE(view_.marker().isActive());
    EXPECT_EQ(text(0), "");
    view_.paste();
    EXPECT_EQ(lines(LastUsed::Text), std::vector<std::string>(1100, "line"));
}

TEST_F(Clipboard, ABlockThatReachesBeyondTheLastSlotEndsWithIt) {
    document_.marked() = {MarkMode::Lines, true, {LineIndex(1099), {}}, {LineIndex(2000), {}}};
    view_.key({.key = kKeyTab});
    view_.cut();
    EXPECT_EQ(clipboard_.text, "    line\r\n");
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(1098));
}

TEST_F(Clipboard, HeldByAnotherProgramLosesNothing) {
    clipboard_.isHeld = true;
    clipboard_.text = "x";
    markTo(3);
    view_.cut();
    EXPECT_EQ(notices_.lastStatus(), "The clipboard is in use by another program!");
    view_.paste();
    EXPECT_TRUE(document_.marked().active);
    EXPECT_FALSE(document_.isModified());
}

TEST_F(Clipboard, ACutOrPasteOfManyLinesIsOneUndoStep) {
    markTo(999);
    view_.cut();
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(99));
    view_.paste();
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(1099));
    view_.undo();
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(99));
    view_.undo();
    EXPECT_EQ(document_.lastLine(LastUsed::Plain), LineIndex(1099));
    EXPECT_FALSE(document_.isModified());
}

// The cursor cannot go behind column 300, the text can.
TEST_F(Clipboard, ALongPieceIsNotCutOrShuffled) {
    std::string longText;
    for (int i = 0; i < 200000; ++i)
        longText += static_cast<char>('a' + i % 26);
    clipboard_.kind = MarkMode::Stream;
    clipboard_.text = longText + "\r\n" + longText + "\r\n";
    view_.goTo(LineIndex(0), CharColumn(2));
    view_.paste();
    EXPECT_EQ(text(0), "li" + longText);
    EXPECT_EQ(text(1), longText + "ne");
    EXPECT_EQ(text(2), "line");
    view_.undo();
    EXPECT_EQ(text(0), "line");
    EXPECT_EQ(text(1), "line");
    EXPECT_FALSE(document_.isModified());
    view_.redo();
    EXPECT_EQ(text(1), longText + "ne");
}

}  // namespace
}  // namespace vexa
