#include "shell/unsaved/disk_changes.h"

#include <gtest/gtest.h>

#include "shell/open_texts.h"
#include "shell/unsaved/line_differences.h"

namespace vexa {
namespace {

class DiskChangesTest : public testing::Test, private DifferenceView {
  protected:
    TextDocument& opened(const std::string& name, const std::string& bytes) {
        texts_.disk.put(name, bytes);
        return texts_.add(texts_.disk.path(name));
    }
    // As another program writes it, at another time than ours.
    void change(TextDocument& document, const std::string& bytes) {
        texts_.disk.put(document.baseName(), bytes);
        document.disk().facts->stamp.writeTime -= 1;
    }
    std::size_t asked() {
        changes_.look(texts_.open);
        return changes_.rows().size();
    }

    test::OpenTexts texts_;
    DiskChanges changes_{*this, texts_.notices};
    std::vector<std::string> shown_;

  private:
    void showRows(TextDocument&, const std::vector<std::string>& rows) override { shown_ = rows; }
};

TEST_F(DiskChangesTest, AnUnmodifiedDocumentIsReadAnewAndKeepsItsLinesPositions) {
    TextDocument& document = opened("a.txt", "1\r\n2\r\n3\r\n4\r\n");
    document.setCurrentLine(LineIndex(2));
    document.dropBookmark(1);
    change(document, "1\r\ntwo\r\n3\r\n4\r\n5\r\n6\r\n");
    EXPECT_EQ(asked(), 0u);
    EXPECT_EQ(texts_.textOf(document), "1|two|3|4|5|6|");
    EXPECT_EQ(texts_.notices.lastStatus(),
              "'a.txt' was changed by another program and has been read anew. Undo brings the old text back.");
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(document.currentLine(), LineIndex(2));
    EXPECT_EQ(document.bookmarks().line(1), LineIndex(2));
    EXPECT_EQ(asked(), 0u);
    EXPECT_TRUE(document.history().undo());
    EXPECT_EQ(texts_.textOf(document), "1|2|3|4|");
    EXPECT_EQ(texts_.notices.lastStatus(), "This is the text of 'a.txt' from before it was read anew.");
    EXPECT_TRUE(document.isModified());
    EXPECT_TRUE(document.history().redo());
    EXPECT_FALSE(document.isModified());
    EXPECT_EQ(document.tryWrite(false).result, WriteResult::Written) << "the file is known as it is";
}

// Every text becomes every other, and undo brings it back.
TEST_F(DiskChangesTest, AnyTextCanBecomeAnyOther) {
    const char* const kTexts[] = {
        "", "a\r\n", "a\r\nb\r\n", "b\r\na\r\n", "x\r\na\r\n\r\nb\r\n", "a\r\na\r\na\r\na\r\n"};
    for (const char* from : kTexts) {
        for (const char* to : kTexts) {
            texts_.open.clear();
            TextDocument& document = opened("a.txt", from);
            const std::string before = texts_.textOf(document);
            change(document, to);
            asked();
            const std::string after = texts_.textOf(document);
            EXPECT_EQ(after, texts_.textOf(opened("b.txt", to))) << from << " to " << to;
            if (before == after) continue;
            EXPECT_TRUE(document.history().undo());
            EXPECT_EQ(texts_.textOf(document), before) << from << " to " << to;
        }
    }
}

TEST_F(DiskChangesTest, NothingIsAskedWithoutOtherContents) {
    TextDocument& document = opened("a.txt", "text\r\n");
    texts_.type(document, "my ");
    change(document, "text\r\n");
    EXPECT_EQ(asked(), 0u) << "a touched time stamp";
    EXPECT_EQ(document.tryWrite(false).result, WriteResult::Written);
    EXPECT_EQ(asked(), 0u) << "its own save";
    document.disk().facts->stamp.writeTime -= 2'000'000'000;
    EXPECT_EQ(asked(), 0u) << "a share with coarse times";
    texts_.type(document, "x");
    texts_.disk.remove("a.txt");
    EXPECT_EQ(asked(), 0u) << "while another program replaces it";
    texts_.disk.put("a.txt", "my text\r\n");
    EXPECT_EQ(asked(), 0u);
    texts_.add();
    texts_.type(*texts_.open.back(), "new");
    EXPECT_EQ(asked(), 0u) << "no file at all";
}

TEST_F(DiskChangesTest, AModifiedDocumentIsAskedAboutOnceAndTheAnswersHold) {
    for (const std::size_t button : {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{3}}) {
        texts_.open.clear();
        TextDocument& document = opened("a.txt", "text\r\n");
        texts_.type(document, "my ");
        change(document, "theirs\r\n");
        ASSERT_EQ(asked(), 1u);
        if (button < 3) changes_.act(button, 0);
        if (button == 3) changes_.putOff();
        EXPECT_TRUE(changes_.rows().empty());
        EXPECT_EQ(texts_.textOf(document), button == 1 ? "theirs|" : "my text|");
        EXPECT_EQ(asked(), button == 2 ? 1u : 0u) << "showing differences decides nothing";
        document.disk().facts->stamp.writeTime -= 1;
        EXPECT_EQ(asked(), button == 2 ? 1u : 0u) << "the same contents again";
        EXPECT_EQ(document.tryWrite(false).result, button < 2 ? WriteResult::Written : WriteResult::FileChanged);
        change(document, "other\r\n");
        texts_.type(document, "x");
        EXPECT_EQ(asked(), 1u) << "another change is another question";
    }
    EXPECT_EQ(shown_, (std::vector<std::string>{
                          texts_.disk.path("a.txt") + ": < is here, > is in the file as another program has changed it",
                          "Line 1 < my text", "Line 1 > theirs"}));
}

TEST(LineDifferencesTest, OnlyTheLinesThatDifferAreShown) {
    struct Case {
        LineViews mine;
        LineViews theirs;
        const char* rows;
    };
    static const Case kCases[] = {
        {{"a", "b"}, {"a", "b"}, ""},
        {{"a", "b", "c"}, {"a", "x", "c"}, "2<b 2>x "},
        {{"a", "b", "c"}, {"a", "c"}, "2<b "},
        {{"a", "c"}, {"a", "b", "c"}, "2>b "},
        {{"a"}, {"a", "b"}, "2>b "},
        {{"x", "a", "b", "y"}, {"a", "b"}, "1<x 4<y "},
        {{"a", "b", "c", "d"}, {"b", "c", "e", "d"}, "1<a 4>e "},
    };
    for (const Case& it : kCases) {
        std::string rows;
        for (const std::string& row : LineDifferences(it.mine, it.theirs, 10))
            rows += row.substr(5, 1) + row.substr(7, 1) + row.substr(9) + " ";
        EXPECT_EQ(rows, it.rows);
    }
    EXPECT_EQ(LineDifferences(LineViews(2000, "a"), LineViews(3000, "b"), 7).size(), 7u);
}

}  // namespace
}  // namespace vexa
