// The dialogs that go to a line and to a bookmark.
#include <gtest/gtest.h>

#include "base/strings.h"
#include "document/document_session.h"
#include "document/view/bookmark_model.h"
#include "document/view/goto_line_model.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using test::StatusNotice;

class JumpModels : public testing::Test, protected test::DocumentSession {
  protected:
    JumpModels() {
        document_.newEmpty();
        view_.resize(20, 80);
    }
    bool jump(const std::string& number) {
        BookmarkModel model(store_);
        model.number = number;
        return model.jump(view_, store_, notices_);
    }
    int go(const std::string& line) {
        GotoLineModel model(store_);
        model.line = line;
        model.go(view_, store_);
        return document_.currentLine().value;
    }

    test::TestDisk disk_;
    ConfigStore store_{disk_.path("VEXA.INI")};
};

TEST_F(JumpModels, AJumpIsCentredToldAndRemembered) {
    EXPECT_EQ(BookmarkModel(store_).number, "");
    view_.goTo(LineIndex(100), CharColumn(7));
    document_.dropBookmark(3);
    view_.goTo(LineIndex(0), CharColumn(0));
    EXPECT_TRUE(jump(" 3x"));
    EXPECT_EQ(document_.currentLine(), LineIndex(100));
    EXPECT_EQ(document_.column(), CharColumn(0));
    EXPECT_EQ(view_.topLine(), LineIndex(90));
    EXPECT_EQ(notices_.statuses.back(), (StatusNotice{"At bookmark '3'", true, false}));
    EXPECT_EQ(store_.ReadString("Bookmark", "Number", "", 50), "3x") << "the text as typed";
}

TEST_F(JumpModels, ARefusedJumpTellsWhyAndChangesNothing) {
    EXPECT_FALSE(jump("5"));
    EXPECT_EQ(notices_.statuses.back(), (StatusNotice{"No bookmark set at this location.", true, true}));
    for (const char* number : {"12", "10", "-1"}) {
        EXPECT_FALSE(jump(number));
        EXPECT_EQ(notices_.statuses.back(), (StatusNotice{"Vexa only supports bookmarks '0' thru '9'.", true, true}));
    }
    EXPECT_EQ(store_.ReadString("Bookmark", "Number", "none", 50), "none");
    EXPECT_TRUE(document_.history().isEmpty());
}

TEST_F(JumpModels, DroppingTellsTheNumber) {
    Editing editing(document_, options_, notices_);
    DropBookmark(editing, 9);
    EXPECT_EQ(notices_.statuses.back(), (StatusNotice{"Bookmark '9' dropped", true, false}));
    DropBookmark(editing, 10);
    EXPECT_EQ(notices_.lastStatus(), std::string(LoadText(TextId::BadBookmark)));
}

TEST_F(JumpModels, BookmarksAreGoneWithTheTextTheyWereIn) {
    disk_.put("A.TXT", "abc");
    document_.dropBookmark(1);
    document_.setName(disk_.path("A.TXT"));
    ASSERT_TRUE(document_.load());
    EXPECT_FALSE(jump("1"));
}

TEST_F(JumpModels, ALineIsLimitedToTheRoomThereIs) {
    const int last = document_.lines().capacity() - 1;
    EXPECT_EQ(go("151"), 150);
    EXPECT_EQ(view_.topLine(), LineIndex(140));
    EXPECT_EQ(GotoLineModel(store_).line, "151");
    EXPECT_EQ(go("999999999999"), last) << "a line that is not in use";
    EXPECT_EQ(GotoLineModel(store_).line, std::to_string(last + 1)) << "the number reached";
    for (const char* line : {"0", "-4", "", "abc"})
        EXPECT_EQ(go(line), 0) << line;
    EXPECT_EQ(GotoLineModel(store_).line, "1");
}

}  // namespace
}  // namespace vexa
