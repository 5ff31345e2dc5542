// The Output window's and the Message window's rules.
#include <gtest/gtest.h>

#include "external/captured_lines.h"
#include "external_session.h"

namespace vexa {
namespace {

using test::OpenedFile;
using test::RowsOf;
using Texts = std::vector<std::string>;

struct Lists : testing::Test, test::ExternalSession {
    Texts linesOf(const std::string& bytes) {
        disk.put("lines.txt", bytes);
        Texts lines;
        EXPECT_TRUE(ReadCapturedLines(disk.path("lines.txt"), [&lines](std::string_view line) {
            lines.emplace_back(line);
            return true;
        }));
        return lines;
    }
    // A compilation of main.cpp has written this.
    void load(const std::string& errors, const std::string& moreErrors = {}) {
        disk.put("main.err", errors);
        disk.put("more.err", moreErrors);
        messages.attach(&view);
        messages.Reset(&document);
        messages.Load(disk.path("main.err"), disk.path("more.err"), disk.path());
    }
    std::string lastRow() const { return std::string(messages.rowText(messages.rowCount() - 1)); }
    void activate(LineList& list, std::size_t row) {
        list.selectRow(row);
        list.activateRow();
    }

    test::FakeDocument document{disk.path("Main.cpp")};
    test::RecordingView view;
};

TEST_F(Lists, LinesAreCutAtTheirEndsAndAtTheirLimit) {
    EXPECT_EQ(linesOf(""), Texts{});
    EXPECT_EQ(linesOf("a\r\n\nb\rc\nd"), (Texts{"a", "", "b", "d"}));
    EXPECT_EQ(linesOf(std::string("x\0y\n", 4)), Texts{std::string("x\0y", 3)});
    const std::string full(kCapturedLineLimit, 'x');
    EXPECT_EQ(linesOf(full + "\r\n" + full + "\n" + full), (Texts{full, full, full}));
    EXPECT_EQ(linesOf(full + "yz\n"), (Texts{full, "yz"}));
    const std::string quote = "\xE2\x80\x98";
    EXPECT_EQ(linesOf(quote + "\xFC\n" + quote + "\xC3\xBC\n"), (Texts{quote + "\xFC", "'\xFC"}));
    const std::string almostFull(kCapturedLineLimit - 2, 'x');
    EXPECT_EQ(linesOf(almostFull + quote + "y\n"), (Texts{almostFull, "'y"})) << "no character is cut apart";
    const Texts many = linesOf(std::string(1 << 20, 'x'));
    EXPECT_EQ(many.size(), (1u << 20) / kCapturedLineLimit + 1);
    EXPECT_FALSE(ReadCapturedLines(disk.path(), [](std::string_view) { return true; })) << "a directory";
}

TEST_F(Lists, AListTakesAMillionLinesAndItsClosingWords) {
    disk.put("big.txt", std::string(ListLines::kMostLines + 5, '\n'));
    EXPECT_TRUE(output.LoadCapture(disk.path("big.txt"), {}, {}));
    EXPECT_EQ(output.rowCount(), ListLines::kMostLines + 2);
    EXPECT_EQ(output.rowText(output.rowCount() - 1), "Command has completed.");
    EXPECT_EQ(notices.statuses.size(), 1u);
    EXPECT_EQ(notices.lastStatus(), "Maximum listbox count reached.");
}

TEST_F(Lists, TheLastMessageTellsHowACompilationWent) {
    load("main.cpp(3): warning one\nmain.cpp(4): error two\n");
    EXPECT_EQ(messages.rowText(1), "     Vexa for Windows Programmers Editor");
    EXPECT_EQ(messages.rowText(0), std::string(80, '-'));
    EXPECT_EQ(messages.rowText(5), "main.cpp(3): warning one");
    EXPECT_EQ(messages.rowKind(5), RowKind::Warning);
    EXPECT_EQ(messages.rowKind(6), RowKind::Error);
    EXPECT_EQ(messages.rowKind(0), RowKind::Plain);
    EXPECT_EQ(lastRow(), "Compilation completed with errors.");
    EXPECT_EQ(view.shows, 1);
    load("", "main.cpp(3): warning: of the second file\n");
    EXPECT_EQ(lastRow(), "Compilation completed with warnings.");
    load("all is well\n");
    EXPECT_EQ(lastRow(), "Compilation completed successfully.");
    messages.Reset(nullptr);
    EXPECT_EQ(messages.rowCount(), 0u);
    messages.Load(disk.path("main.err"), {}, disk.path());
    EXPECT_EQ(messages.rowCount(), 0u) << "without a document";
}

TEST_F(Lists, AMissingErrorFileIsExplained) {
    messages.Reset(&document);
    messages.Load(disk.path("none.err"), {}, disk.path());
    EXPECT_EQ(messages.rowText(5), "Can't open error file '" + disk.path("none.err") + "'.");
    EXPECT_EQ(lastRow(), "Check the compiler setup, the PATH or check if the file is write protected.");
    EXPECT_FALSE(messages.ErrorsSeen() || messages.WarningsSeen());
}

TEST_F(Lists, SteppingVisitsErrorsAndEndsAtTheLastLine) {
    disk.put("a.h", "");
    load("main.cpp(3): warning one\nplain\na.h(9): error two\nx\n");
    messages.NextError();
    EXPECT_EQ(messages.selectedRow(), 5u);
    EXPECT_EQ(document.caretLine, 2);
    EXPECT_EQ(document.activations, 1);
    EXPECT_EQ(notices.lastStatus(), "main.cpp(3): warning one");
    messages.NextError();
    EXPECT_EQ(messages.selectedRow(), 7u);
    EXPECT_EQ(opener.opened, (std::vector<OpenedFile>{{disk.path("a.h"), 9}}));
    messages.NextError();
    EXPECT_EQ(messages.selectedRow(), messages.rowCount() - 1);
    EXPECT_EQ(notices.lastStatus(), "No more errors.");
    messages.PreviousError();
    EXPECT_EQ(messages.selectedRow(), 7u);
    messages.PreviousError();
    messages.PreviousError();
    EXPECT_EQ(messages.selectedRow(), 0u);
    EXPECT_EQ(notices.lastStatus(), "No more errors.");
}

TEST_F(Lists, SteppingWithoutRowsOrSelection) {
    messages.NextError();
    EXPECT_EQ(notices.lastStatus(), "No more errors.");
    load("main.cpp(3): error\n");
    messages.PreviousError();
    EXPECT_EQ(messages.selectedRow(), std::nullopt);
    EXPECT_EQ(notices.lastStatus(), "No more errors.");
}

TEST_F(Lists, TheSelectionMovesTheCaretAndLeavesTheFocusWithItsWindow) {
    load("main.cpp(0): error  \nx(5): warning \n");
    view.active = true;
    messages.selectRow(6);
    EXPECT_EQ(document.caretLine, 4) << "a number without a file is the document's";
    messages.selectRow(5);
    EXPECT_EQ(document.caretLine, -1);
    EXPECT_EQ(document.activations, 0);
    messages.OnDocumentClosed(document);
    messages.selectRow(6);
    messages.activateRow();
    messages.closed();
    EXPECT_EQ(document.caretLine, -1) << "the document is forgotten";
}

TEST_F(Lists, ActivatingOpensWhatALineNames) {
    disk.put("a.h", "");
    disk.makeDirectory("dir.h");
    load("a.h(9): error two\nsee a.h for more\nno name\nnone.h(2): error x\ndir.h(2): error x\nmain.cpp(4): error\n");
    activate(messages, 5);
    activate(messages, 6);
    EXPECT_EQ(opener.opened, (std::vector<OpenedFile>{{disk.path("a.h"), 9}, {disk.path("a.h"), 0}}));
    activate(messages, 7);
    EXPECT_EQ(notices.lastStatus(), "This line is not an error.");
    for (const std::size_t row : {8u, 9u}) {
        activate(messages, row);
        EXPECT_EQ(notices.lastStatus(), "The line selected does not contain a valid file name.") << row;
    }
    EXPECT_EQ(opener.opened.size(), 2u);
}

TEST_F(Lists, OutputOpensFilesOrLinesOfItsDocument) {
    disk.makeDirectory("Sub");
    disk.put("Sub\\a.h", "");
    disk.put("out.txt", "list: a.h\nSub\\a.h\n" + disk.path("Sub\\a.h") + "\nnothing\nat line 12\n");
    ASSERT_TRUE(output.LoadCapture(disk.path("out.txt"), {}, disk.path("Sub")));
    for (const std::size_t row : {0u, 1u, 2u})
        activate(output, row);
    const OpenedFile opened{disk.path("Sub\\a.h"), 0};
    EXPECT_EQ(opener.opened, (std::vector<OpenedFile>(3, opened)));
    activate(output, 3);
    EXPECT_EQ(notices.lastStatus(), "The line selected does not contain a valid file name.");
    output.belongTo(&document);
    activate(output, 4);
    EXPECT_EQ(document.caretLine, 11);
    EXPECT_FALSE(output.LoadCapture(disk.path("none.txt"), {}, {}));
}

}  // namespace
}  // namespace vexa
