#include <gtest/gtest.h>

#include "document/document_session.h"
#include "document/text/cursor_actions.h"
#include "document/text/line_actions.h"
#include "document/text/text_document.h"
#include "document/view/line_editor.h"

namespace vexa {
namespace {

class Undo : public testing::Test, protected test::DocumentSession {
  protected:
    Undo() { fill({"alpha", "beta", "gamma"}); }

    LineEditor editor_{document_};
};

TEST_F(Undo, TheColumnHasAnUnevenLimit) {
    const struct {
        int wanted;
        int reached;
    } cases[] = {{299, 299}, {300, 300}, {301, 299}, {100000, 299}, {-1, 0}};
    for (const auto& c : cases) {
        editor_.run<MoveToColumn>(CharColumn(c.wanted));
        EXPECT_EQ(document_.column(), CharColumn(c.reached)) << c.wanted;
    }
}

TEST_F(Undo, JoiningTheLastLineChangesNothingButCounts) {
    JoinLines join(document_);
    document_.setCurrentLine(LineIndex(200));
    EXPECT_FALSE(join.perform());
    EXPECT_TRUE(document_.isModified());
    join.undo();
    EXPECT_FALSE(document_.isModified());
}

TEST_F(Undo, ADeletedLineComesBackAtTheCursor) {
    class DeleteLine deletion(document_, LineIndex(2));  // the step, not the key
    deletion.perform();
    EXPECT_EQ(text(2), "");
    document_.setCurrentLine(LineIndex(1));
    deletion.undo();
    EXPECT_EQ(text(1), "gamma");
    EXPECT_EQ(text(2), "beta");
}

TEST_F(Undo, MarkingStepsRestoreWhatTheyFound) {
    const MarkPoint a{LineIndex(1), DisplayColumn(2)};
    const MarkPoint b{LineIndex(2), DisplayColumn(4)};
    editor_.run<SetMarkMode>(MarkMode::Stream);
    editor_.run<StartMark>(a);
    EXPECT_FALSE(document_.marked().active);
    editor_.run<SetMark>(a, b);
    EXPECT_EQ(document_.marked(), (MarkedArea{MarkMode::Stream, true, a, b}));
    document_.history().nextGroup();
    editor_.run<ShiftMark>(1, -2);
    EXPECT_EQ(document_.marked().start, (MarkPoint{LineIndex(2), DisplayColumn(0)}));
    EXPECT_EQ(document_.marked().end, (MarkPoint{LineIndex(3), DisplayColumn(2)}));
    editor_.run<ClearMark>();
    EXPECT_FALSE(document_.marked().active);
    document_.history().undo();
    EXPECT_EQ(document_.marked(), (MarkedArea{MarkMode::Stream, true, a, b}));
    document_.history().undo();
    EXPECT_EQ(document_.marked(), MarkedArea{});
}

TEST_F(Undo, FiftyStepsInOneGoShowTheBusyCursorOnce) {
    for (const auto& [steps, shown] : {std::pair{49, 0}, std::pair{50, 1}, std::pair{200, 1}}) {
        notices_.busyCount = 0;
        for (int i = 0; i < steps; ++i)
            editor_.run<MoveToColumn>(CharColumn(i));
        document_.history().nextGroup();
        document_.history().undo();
        EXPECT_EQ(notices_.busyCount, shown) << steps;
        EXPECT_EQ(notices_.busyDepth, 0);
    }
}

TEST_F(Undo, ClearingForgetsWhatCouldBeDoneAgainToo) {
    editor_.type('x', 1);
    document_.history().undo();
    document_.history().clear();
    EXPECT_FALSE(document_.history().redo());
}

TEST_F(Undo, AVacantLineCanBeEditedAndReadsEmptyAfterwards) {
    document_.setCurrentLine(LineIndex(100));
    editor_.type('x', 3);
    EXPECT_EQ(text(100), "xxx");
    EXPECT_EQ(text(101), "") << "other vacant slots are not touched";
    document_.history().undo();
    EXPECT_EQ(text(100), "");
    EXPECT_FALSE(document_.isModified());
}

}  // namespace
}  // namespace vexa
