// The rules of the Find and the Replace dialog, and what the settings file keeps of them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "search/find_session.h"
#include "search/replace_dialog_model.h"
#include "support/test_disk.h"

namespace vexa::test {
namespace {

class FindDialogs : public testing::Test, protected FindSession {
  protected:
    FindDialogs() {
        document.newEmpty();
        document.lines().put(document.makeLine("foo bar foo"), 0);
        options.setFindText("foo", false);
    }
    std::string text() const { return std::string(document.text(LineIndex(0))); }

    TestDisk disk;
    HistoryList findHistory{disk.path(), FindDialogModel::kFindHistoryFile};
    HistoryList replaceHistory{disk.path(), ReplaceDialogModel::kReplaceHistoryFile};
};

TEST_F(FindDialogs, TheFieldsStartFromTheOptions) {
    options.setForward(false);
    options.setMatchCase(true);
    options.setReplaceText("baz");
    options.setReplaceAll(true);
    const ReplaceDialogModel model(commands, findHistory, replaceHistory);
    EXPECT_EQ(model.findText, "foo");
    EXPECT_EQ(model.replaceText, "baz");
    EXPECT_FALSE(model.forward);
    EXPECT_TRUE(model.matchCase);
    EXPECT_FALSE(model.wholeWord);
    EXPECT_FALSE(model.regularExpression);
    EXPECT_TRUE(model.replaceAll);
}

TEST_F(FindDialogs, NothingIsSearchedWithoutAText) {
    ReplaceDialogModel model(commands, findHistory, replaceHistory);
    EXPECT_TRUE(model.canSearch());
    model.findText.clear();
    EXPECT_FALSE(model.canSearch());
    model.findNext(&view);
    model.replace(&view);
    EXPECT_TRUE(notices.statuses.empty());
    EXPECT_EQ(options.findText(), "foo");
}

TEST_F(FindDialogs, ATabEscapeIsExplainedInRegularExpressionsAlone) {
    struct Row {
        const char* text;
        bool regular;
        bool explained;
    };
    for (const Row& row : {Row{"[ \\t]+$", true, true}, Row{"a\\t", true, true}, Row{"a\\t", false, false},
                           Row{"a\\\\t", true, false}, Row{"t\\", true, false}}) {
        notices.statuses.clear();
        FindDialogModel model(commands, findHistory);
        model.findText = row.text;
        model.regularExpression = row.regular;
        model.patternChanged();
        EXPECT_EQ(!notices.statuses.empty(), row.explained) << row.text;
    }
}

TEST_F(FindDialogs, FindNextTakesTheFieldsOverAndNotesTheText) {
    FindDialogModel model(commands, findHistory);
    model.findText = "BAR|x";
    model.regularExpression = true;
    model.wholeWord = true;
    model.findNext(&view);
    EXPECT_EQ(document.column(), CharColumn(4));
    EXPECT_EQ(notices.lastStatus(), "Search completed.");
    EXPECT_TRUE(options.regularExpression());
    EXPECT_TRUE(options.wholeWord());
    EXPECT_EQ(findHistory.entries(), std::vector<std::string>{"BAR|x"});

    model.matchCase = true;
    model.forward = false;
    model.findNext(&view);
    EXPECT_EQ(notices.statuses.back(), (StatusNotice{"Reached start of file. String 'BAR|x' not found.", true, true}));
}

TEST_F(FindDialogs, AnotherTextInFindStepsOverTheMatchUnderTheCursor) {
    FindDialogModel model(commands, findHistory);
    model.findNext(&view);
    EXPECT_EQ(document.column(), CharColumn(0));
    options.setMatchPending(false);
    model.findText = "fo";
    model.findNext(&view);
    EXPECT_EQ(document.column(), CharColumn(8)) << "the match at column 0 was of another text";
}

TEST_F(FindDialogs, AnotherTextInReplaceLeavesTheOldMatchAlone) {
    ReplaceDialogModel model(commands, findHistory, replaceHistory);
    model.findNext(&view);
    model.findText = "bar";
    model.replaceText = "x";
    model.replace(&view);
    EXPECT_EQ(text(), "foo x foo");
    EXPECT_EQ(replaceHistory.entries(), std::vector<std::string>{"x"});
    EXPECT_EQ(findHistory.entries(), (std::vector<std::string>{"foo", "bar"}));

    model.findText = "foo";
    model.replaceAll = true;
    view.goTo(LineIndex(0), CharColumn(0));
    model.replace(&view);
    EXPECT_EQ(text(), "x x x");
    EXPECT_EQ(notices.lastStatus(), "Replacement completed with 2 occurrences changed.");
}

TEST_F(FindDialogs, FieldsFollowASearchFromOutside) {
    FindDialogModel model(commands, findHistory);
    model.findText = "typed";
    model.regularExpression = true;
    view.goTo(LineIndex(0), CharColumn(5));
    EXPECT_TRUE(commands.findAtCaret(&view));
    model.takeSearch();
    EXPECT_EQ(model.findText, "bar");
    EXPECT_FALSE(model.regularExpression);
    model.cancel();
    EXPECT_EQ(options.findText(), "bar") << "what was searched for stays";
}

TEST_F(FindDialogs, CancelRestoresWhatWasBeforeOnlyWithoutASearch) {
    ReplaceDialogModel changed(commands, findHistory, replaceHistory);
    commands.toggleMatchCase();
    options.setReplaceText("other");
    changed.findText = "bar";
    changed.findNext(nullptr);
    EXPECT_EQ(options.findText(), "bar");
    changed.cancel();
    EXPECT_EQ(options.findText(), "foo") << "without a document there was no search";
    EXPECT_EQ(options.replaceText(), "");
    EXPECT_FALSE(options.matchCase());

    ReplaceDialogModel searched(commands, findHistory, replaceHistory);
    searched.findText = "nowhere";
    searched.findNext(&view);
    searched.cancel();
    EXPECT_EQ(options.findText(), "nowhere");

    ReplaceDialogModel replaced(commands, findHistory, replaceHistory);
    replaced.findText = "bar";
    replaced.replace(&view);
    replaced.cancel();
    EXPECT_EQ(options.findText(), "bar");
}

TEST(SearchOptions, TextsAreCutAtTheirLimit) {
    SearchOptions options;
    options.setFindText(std::string(61, 'a'), true);
    EXPECT_EQ(options.findText(), std::string(60, 'a'));
    EXPECT_TRUE(options.matchPending());
    options.setFindText(std::string(70, 'a'), false);
    EXPECT_TRUE(options.matchPending()) << "the same text, once cut";
    options.setReplaceText(std::string(61, '\\'));
    EXPECT_EQ(options.replaceText(), std::string(60, '\\'));
    EXPECT_EQ(options.insertedText(), std::string(30, '\\'));
}

TEST(SearchOptions, StartAsTheyWereAtTheLastExit) {
    const TestDisk disk;
    ConfigStore store(disk.path("VEXA.INI"));
    SearchOptions options;
    options.Load(store);
    EXPECT_EQ(options.findText(), "");
    EXPECT_TRUE(options.forward());
    EXPECT_FALSE(options.matchCase() || options.wholeWord() || options.replaceAll() || options.regularExpression());

    options.setFindText("a\\tb", false);
    options.setReplaceText("x y");
    options.setForward(false);
    options.setMatchCase(true);
    options.setRegularExpression(true);
    options.Save(store);
    for (const char* line : {"[Searching]", "FindText=a\\tb", "ReplaceText=x y", "Forward=0", "CaseCheck=1",
                             "WholeWord=0", "ReplaceAll=0", "RegExpress=1"})
        EXPECT_NE(disk.get("VEXA.INI").find(std::string(line) + "\r\n"), std::string::npos) << line;

    SearchOptions next;
    next.Load(store);
    EXPECT_EQ(next.findText(), "a\\tb");
    EXPECT_EQ(next.replaceText(), "x y");
    EXPECT_TRUE(!next.forward() && next.matchCase() && !next.wholeWord() && next.regularExpression());
    EXPECT_FALSE(next.matchPending());
    EXPECT_EQ(next.lastMatch.line, LineIndex(-1));
}

TEST(SearchOptions, TextsKeepTheirBlanksAndQuotesInTheSettingsFile) {
    const TestDisk disk;
    ConfigStore store(disk.path("VEXA.INI"));
    const std::vector<std::string> texts = {" a ", "\"a\"", "'a'", "\"", "", " ", "\" a", std::string(60, ' ')};
    for (const std::string& text : texts) {
        SearchOptions options;
        options.setFindText(text, false);
        options.Save(store);
        SearchOptions next;
        next.Load(store);
        EXPECT_EQ(next.findText(), text);
    }
}

}  // namespace
}  // namespace vexa::test
