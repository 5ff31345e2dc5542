// What comes out on paper: pages as data, the order in which they are printed, and the look of the text.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "document/print/print_layout.h"
#include "document/print/print_run.h"
#include "document/print/print_style.h"
#include "support/recording_notices.h"

namespace vexa {
namespace {

class Print : public testing::Test {
  protected:
    Print() {
        document.newEmpty();
        request.page = {.rows = 4, .columns = 20};
        request.options.header = false;
    }
    void fill(const std::vector<std::string>& lines) {
        for (std::size_t i = 0; i < lines.size(); ++i)
            document.lines().put(document.makeLine(lines[i]), static_cast<std::int32_t>(i));
    }
    void mark(MarkMode mode, int line1, int column1, int line2, int column2) {
        document.marked() = {
            mode, true, {LineIndex(line1), DisplayColumn(column1)}, {LineIndex(line2), DisplayColumn(column2)}};
        request.area = PrintArea::Marked;
    }
    // Every page as a text for each row: the number, a colon where there are numbers, and the cells.
    std::vector<std::vector<std::string>> pages() const {
        const PrintLayout layout(document, request);
        std::vector<std::vector<std::string>> shown;
        for (std::int32_t i = 1; i <= layout.pageCount(); ++i) {
            shown.emplace_back();
            const PrintedPage page = layout.page(i);
            if (!page.header.empty()) shown.back().push_back(page.header);
            for (const PrintedRow& row : page.rows) {
                const std::string number = row.lineNumber ? std::to_string(*row.lineNumber) : "";
                shown.back().push_back((request.options.lineNumbers ? number + ':' : "") + row.text.cells);
            }
        }
        return shown;
    }
    using Pages = std::vector<std::vector<std::string>>;

    test::RecordingNotices notices;
    EditorOptions options;  // tabs of 4
    TextDocument document{options, notices};
    PrintLayout::Request request;
};

TEST_F(Print, LinesFillPagesAndWrapAtTheirWidth) {
    fill({"one", "", "123456789.123456789.123456789.123456789.X", "four", "123456789.123456789.", "six   \t", "", " "});
    EXPECT_EQ(pages(), (Pages{{"one", "", "123456789.123456789.", "123456789.123456789."},
                              {"X", "four", "123456789.123456789.", "six"}}));
}

TEST_F(Print, NumbersStandAtTheFirstRowOfALine) {
    request.options.lineNumbers = true;  // one digit and two columns of space leave 17
    fill({"123456789.1234567", "123456789.12345678", "", "d", "e"});
    EXPECT_EQ(pages(), (Pages{{"1:123456789.1234567", "2:123456789.1234567", ":8", "3:"}, {"4:d", "5:e"}}));
    const PrintLayout layout(document, request);
    EXPECT_EQ(layout.numberDigits(), 1);
    EXPECT_EQ(layout.textColumn(), 3);
    document.lines().put(document.makeLine("x"), 9);
    EXPECT_EQ(PrintLayout(document, request).textColumn(), 4);
}

TEST_F(Print, APageThatBeginsInsideALineGoesOnThere) {
    request.options.lineNumbers = true;
    request.page.rows = 1;
    fill({"123456789.123456789.123456789.123456789."});
    EXPECT_EQ(pages(), (Pages{{"1:123456789.1234567"}, {":89.123456789.1234"}, {":56789."}}));
}

TEST_F(Print, HeaderStandsOnEveryPageAndTakesTwoRows) {
    request.options.header = true;
    request.page.columns = 40;
    request.heading = {"C:\\a.txt", "1/2/99"};
    fill({"a", "b", "c"});
    EXPECT_EQ(pages(), (Pages{{"C:\\a.txt             1/2/99  Page 1 of 2", "a", "b"},
                              {"C:\\a.txt             1/2/99  Page 2 of 2", "c"}}));
}

TEST_F(Print, HeaderFitsAnyWidth) {
    const PrintHeading heading{"C:\\WORK\\LONG.TXT", "1/2/99"};
    EXPECT_EQ(HeaderText(heading, 1, 9, 37), "C:\\WORK\\LONG.TXT  1/2/99  Page 1 of 9");
    EXPECT_EQ(HeaderText(heading, 1, 9, 36), "...ORK\\LONG.TXT  1/2/99  Page 1 of 9");
    EXPECT_EQ(HeaderText(heading, 1, 9, 25), "...T  1/2/99  Page 1 of 9");
    EXPECT_EQ(HeaderText(heading, 1, 9, 24), "     1/2/99  Page 1 of 9");
    EXPECT_EQ(HeaderText(heading, 1, 9, 18), "...XT  Page 1 of 9");
    EXPECT_EQ(HeaderText(heading, 1, 9, 6), "Page 1");
    EXPECT_EQ(HeaderText({"a", ""}, 1, 9, 14), "a  Page 1 of 9");
}

TEST_F(Print, NothingIsPrintedOfNothing) {
    EXPECT_EQ(pages(), Pages{});  // a new document, whose only line stands far down
    fill({"", " \t "});
    EXPECT_EQ(pages(), Pages{});
    mark(MarkMode::Stream, 0, 0, 1, 3);
    EXPECT_EQ(pages(), Pages{});
    mark(MarkMode::Lines, 5000, 0, 6000, 0);
    EXPECT_EQ(pages(), Pages{});
    mark(MarkMode::Column, 0, 10, 1, 20);
    EXPECT_EQ(pages(), Pages{});
}

TEST_F(Print, MarkedLinesStreamsAndColumns) {
    request.options.lineNumbers = true;
    fill({"abcdef", "a\tb\tc", "", "xyz", "last"});
    mark(MarkMode::Lines, 1, 2, 3, 0);
    EXPECT_EQ(pages(), (Pages{{"2:a   b   c", "3:", "4:xyz"}}));
    mark(MarkMode::Stream, 0, 2, 3, 1);
    EXPECT_EQ(pages(), (Pages{{"1:cdef", "2:a   b   c", "3:", "4:x"}}));
    mark(MarkMode::Stream, 0, 1, 0, 3);
    EXPECT_EQ(pages(), (Pages{{"1:bc"}}));
    mark(MarkMode::Stream, 3, 0, 4, 0);  // nothing of the last line
    EXPECT_EQ(pages(), (Pages{{"4:xyz"}}));
    mark(MarkMode::Column, 0, 2, 3, 6);
    EXPECT_EQ(pages(), (Pages{{"1:cdef", "2:  b ", "3:", "4:z"}}));
    mark(MarkMode::Column, 0, 4, 4, 6);  // lines that are too short for it
    EXPECT_EQ(pages(), (Pages{{"1:ef", "2:b "}}));
    request.area = PrintArea::Document;
    EXPECT_EQ(pages().size(), 2u);
}

TEST_F(Print, TabsStandAsOnTheScreenHoweverManyThereAre) {
    const std::string tabs(299, '\t');
    fill({"a\tb", tabs, "c", tabs.substr(1) + "x"});
    request.page = {.rows = 100, .columns = 100};
    const Pages printed = pages();
    ASSERT_EQ(printed.size(), 1u);
    const auto& rows = printed[0];
    ASSERT_EQ(rows.size(), 15u);
    EXPECT_EQ(rows[0], "a   b");
    EXPECT_EQ(rows[1], "");  // blanks at a line's end make no rows
    EXPECT_EQ(rows[2], "c");
    EXPECT_EQ(rows[3], std::string(100, ' '));
    EXPECT_EQ(rows[14], std::string(298 * 4 - 1100, ' ') + 'x');
    options.TabSize = 1000;
    EXPECT_EQ(pages().size(), 30u);  // 2 rows for b, 2, and 2981 for x
}

TEST_F(Print, TokensKeepTheirColoursAcrossRowsAndMarksAreNotShown) {
    ExtensionProfile profile;
    fill({"/* 123456789.123456789. */ int"});
    document.setProfile(profile);
    mark(MarkMode::Lines, 0, 0, 0, 0);
    const PrintedPage page = PrintLayout(document, request).page(1);
    ASSERT_EQ(page.rows.size(), 2u);
    using Runs = std::vector<CellRun>;
    const auto run = [](std::int32_t start, std::int32_t length, ColourElement element) {
        return CellRun{start, length, element, ColourElement::Background};
    };
    EXPECT_EQ(page.rows[0].text.runs, (Runs{run(0, 20, ColourElement::Comments)}));
    EXPECT_EQ(page.rows[1].text.runs, (Runs{run(0, 6, ColourElement::Comments), run(6, 1, ColourElement::Symbols),
                                            run(7, 3, ColourElement::Keywords)}));
    request.highlighting = false;
    EXPECT_EQ(PrintLayout(document, request).page(1).rows[0].text.runs, (Runs{run(0, 20, ColourElement::DefaultText)}));
}

// ---- jobs --------------------------------------------------------------------------------------------------------

// Notes every step, and fails or cancels at one of them.
class Recorder : public PrintTarget, public PrintProgress {
  public:
    bool beginJob() override { return step("begin"); }
    bool printPage(std::int32_t number) override { return step({static_cast<char>('a' + number - 1)}); }
    bool endJob() override { return step("end"); }
    void abortJob() override { step("abort"); }
    bool pageComes(std::int64_t i, std::int64_t count) override {
        return step(std::to_string(i) + '/' + std::to_string(count));
    }

    std::string failsAt;
    std::string steps;

  private:
    bool step(const std::string& name) {
        steps += name + ' ';
        return name != failsAt;
    }
};

class PrintJob : public Print {
  protected:
    PrintJob() {
        request.page.rows = 1;
        fill({"a", "b", "c"});
    }
    PrintResult run(const PrintSequence::Range& range) {
        const PrintLayout layout(document, request);
        return RunPrint(PrintSequence(range, layout.pageCount()), recorder, recorder);
    }
    Recorder recorder;
};

TEST_F(PrintJob, PagesAreThoseAskedForThatThereAre) {
    struct {
        PrintSequence::Range range;
        const char* steps;
    } const cases[] = {
        {{}, "begin 1/3 a 2/3 b 3/3 c end "},
        {{.first = 2, .last = 9}, "begin 1/2 b 2/2 c end "},
        {{.first = 0, .last = 1}, "begin 1/1 a end "},
        {{.first = 2, .last = 3, .copies = 2}, "begin 1/4 b 2/4 b 3/4 c 4/4 c end "},
        {{.first = 2, .last = 3, .copies = 2, .collate = true}, "begin 1/4 b 2/4 c 3/4 b 4/4 c end "},
        {{.first = 1, .last = 1, .copies = 0}, "begin 1/1 a end "},
    };
    for (const auto& test : cases) {
        recorder.steps.clear();
        EXPECT_EQ(run(test.range), PrintResult::Done);
        EXPECT_EQ(recorder.steps, test.steps);
    }
}

TEST_F(PrintJob, PagesThatAreNotThereAreNoJob) {
    EXPECT_EQ(run({.first = 4, .last = 9}), PrintResult::NothingToPrint);
    EXPECT_EQ(run({.first = 3, .last = 2}), PrintResult::NothingToPrint);
    EXPECT_EQ(recorder.steps, "");
}

TEST_F(PrintJob, AJobThatFailsOrIsCancelledIsAborted) {
    struct {
        const char* failsAt;
        PrintResult result;
        const char* steps;
    } const cases[] = {
        {"begin", PrintResult::Failed, "begin "},
        {"b", PrintResult::Failed, "begin 1/3 a 2/3 b abort "},
        {"2/3", PrintResult::Cancelled, "begin 1/3 a 2/3 abort "},
        {"end", PrintResult::Failed, "begin 1/3 a 2/3 b 3/3 c end abort "},
    };
    for (const auto& test : cases) {
        recorder.steps.clear();
        recorder.failsAt = test.failsAt;
        EXPECT_EQ(run({}), test.result);
        EXPECT_EQ(recorder.steps, test.steps);
    }
}

// ---- look --------------------------------------------------------------------------------------------------------

// How much darker than white a colour is, from 1 to 21, as the guidelines for readable pages on the Web (WCAG) reckon.
double ContrastWithWhite(Rgb colour) {
    const auto linear = [](int part) {
        const double value = part / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 1.05 / (0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue) + 0.05);
}

TEST(PrintStyle, EveryColourIsReadableOnPaper) {
    for (const Rgb colour : kPalette) {
        const Rgb printed = ReadableOnPaper(colour);
        EXPECT_GE(ContrastWithWhite(printed), 4.5)
            << int{colour.red} << ' ' << int{colour.green} << ' ' << int{colour.blue};
    }
    EXPECT_EQ(ReadableOnPaper({255, 255, 255}), (Rgb{0, 0, 0}));  // white on a dark screen
    EXPECT_EQ(ReadableOnPaper({0, 0, 0}), (Rgb{0, 0, 0}));
    EXPECT_EQ(ReadableOnPaper({0, 0, 255}), (Rgb{0, 0, 255}));  // dark enough
    const Rgb purple = ReadableOnPaper({255, 0, 255});
    EXPECT_TRUE(purple.red == purple.blue && purple.green == 0) << "the hue stays";
}

TEST(PrintStyle, ColoursAreOptionalAndKeywordsStandOutWithoutThem) {
    const ColourTable classic;  // yellow text and white keywords on blue
    constexpr Rgb kBlack;
    EXPECT_EQ(PrintStyleOf(ColourElement::DefaultText, classic, true), (PrintStyle{kBlack, false, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Keywords, classic, true), (PrintStyle{kBlack, true, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Strings, classic, true).colour, ReadableOnPaper({0, 255, 255}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Strings, classic, false), (PrintStyle{kBlack, false, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Keywords, classic, false), (PrintStyle{kBlack, true, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Comments, classic, false), (PrintStyle{kBlack, false, true}));
}

}  // namespace
}  // namespace vexa
