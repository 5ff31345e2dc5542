// What a printer would put on paper, measured dot by dot.
#include "ui/print/print_job.h"

#include <gtest/gtest.h>

#include "print/page_picture.h"
#include "quickhelp/topics/made_help_file.h"
#include "support/recording_notices.h"
#include "ui/print/document_pages.h"
#include "ui/print/topic_pages.h"

namespace vexa::test {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;

// A4 at 150 dots an inch, of which a printer does not reach a sixth of an inch at each edge.
constexpr Paper kPortrait{.dotsPerInchX = 150,
                          .dotsPerInchY = 150,
                          .width = 1240,
                          .height = 1754,
                          .reachedLeft = 25,
                          .reachedTop = 25,
                          .reachedWidth = 1190,
                          .reachedHeight = 1704};

Paper Turned(Paper paper) {
    std::swap(paper.width, paper.height);
    std::swap(paper.reachedWidth, paper.reachedHeight);
    return paper;
}

bool IsGrey(std::uint32_t colour) {
    const std::uint32_t blue = colour & 0xFF;
    return colour == blue * 0x010101;
}

class PrintTest : public testing::Test {
  protected:
    PrintTest() {
        look.font.Height = -20;  // a bitmap knows no resolution of its own but the screen's
        document.newEmpty();
        document.setProfile(profile);
        document.setName("C:\\WORK\\SAMPLE.C");
        const char* lines[] = {"/* A sample of a program,",
                               "   printed. */",
                               "#include <stdio.h>",
                               "",
                               "int main(void)",
                               "{",
                               "\tconst char *text = \"white on white?\";",
                               "\tfor (int i = 0; i < 100; i++)\t// tabs",
                               "\t\tprintf(\"%d %s\\n\", i, text);",
                               "\treturn 0;",
                               "}",
                               ""};
        std::int32_t line = 0;
        for (int i = 0; i < 12; ++i) {
            for (const char* text : lines)
                document.lines().put(document.makeLine(text), line++);
            document.lines().put(document.makeLine(std::string(230, 'W')), line++);
        }
    }
    PrintLayout layoutFor(const PagePainter& painter) const {
        return {document,
                {.area = PrintArea::Document,
                 .page = painter.grid(),
                 .options = look.options,
                 .heading = {document.fullPath(), "31.12.1999 23:59"},
                 .highlighting = true}};
    }
    // Draws a page on a bitmap, and leaves it for people to see.
    void draw(const PagePicture& picture, const Paper& paper, std::int32_t page, const std::string& name) const {
        const PagePainter painter(picture.dc(), paper, look);
        const PrintLayout layout = layoutFor(painter);
        ASSERT_GE(layout.pageCount(), page);
        painter.paint(layout.page(page), layout);
        picture.save(name);
    }
    // Letters that reach neither the area's edges nor over them; the last row and column may be cut off by less than a
    // cell.
    void expectWithinMargins(const PagePicture& picture, const Paper& paper) const {
        const DotArea area = TextAreaOf(paper, look.options.margins);
        const DotArea printed = picture.printed();
        constexpr int kCell = 40;  // dots, and more than any cell here has
        EXPECT_GE(printed.left, area.left);
        EXPECT_GE(printed.top, area.top);
        EXPECT_LE(printed.right, area.right);
        EXPECT_LE(printed.bottom, area.bottom);
        EXPECT_LT(printed.left, area.left + kCell);
        EXPECT_LT(printed.top, area.top + kCell);
        EXPECT_GT(printed.right, area.right - kCell);
        EXPECT_GT(printed.bottom, area.bottom - kCell);
    }

    RecordingNotices notices;
    EditorOptions options;
    ExtensionProfile profile;
    TextDocument document{options, notices};
    PrintLook look;
};

TEST_F(PrintTest, PagesAreDarkOnWhiteAndKeepTheirMargins) {
    look.options.lineNumbers = true;
    look.options.margins = {3000, 2000, 2500, 2000};
    for (const Paper& paper : {kPortrait, Turned(kPortrait)}) {
        const bool isPortrait = paper.height > paper.width;
        const PagePicture picture(paper);
        draw(picture, paper, 1, isPortrait ? "print-portrait" : "print-landscape");
        expectWithinMargins(picture, paper);
        const int all = picture.width() * picture.height();
        const int white = picture.count([](int, int, std::uint32_t colour) { return colour == kWhite; });
        EXPECT_GT(white, all * 7 / 10);
        EXPECT_LT(white, all);
        EXPECT_GT(picture.count([](int, int, std::uint32_t colour) { return !IsGrey(colour); }), 100);
    }
}

TEST_F(PrintTest, WithoutColoursAllIsBlack) {
    look.options.colours = false;
    look.options.header = false;
    const PagePicture picture(kPortrait);
    draw(picture, kPortrait, 1, "print-black");
    expectWithinMargins(picture, kPortrait);
    EXPECT_EQ(picture.count([](int, int, std::uint32_t colour) { return !IsGrey(colour); }), 0);
}

TEST_F(PrintTest, TheLastPageEndsWithTheText) {
    const PagePicture picture(kPortrait);
    const PagePainter painter(picture.dc(), kPortrait, look);
    const PrintLayout layout = layoutFor(painter);
    const PageGrid grid = painter.grid();
    std::int32_t rows = 0;
    for (std::int32_t i = 1; i <= layout.pageCount(); ++i)
        rows += static_cast<std::int32_t>(layout.page(i).rows.size());
    const std::int32_t wrapped = (230 + grid.columns - 1) / grid.columns;
    EXPECT_EQ(rows, 12 * (12 + wrapped));
    const std::int32_t textRows = grid.rows - kHeaderRows;
    EXPECT_EQ(layout.pageCount(), (rows + textRows - 1) / textRows);
    draw(picture, kPortrait, layout.pageCount(), "print-last-page");
    const DotArea area = TextAreaOf(kPortrait, look.options.margins);
    const auto used = static_cast<std::int32_t>(layout.page(layout.pageCount()).rows.size()) + kHeaderRows;
    const int cellHeight = (area.bottom - area.top) / grid.rows;
    EXPECT_LE(picture.printed().bottom, area.top + used * (cellHeight + 1));
    EXPECT_GT(picture.printed().bottom, area.top + (used - 1) * cellHeight);
}

// The frame of a metafile, in hundredths of a millimetre, that has as many of its device's dots as the bitmap.
RECT FrameFor(const PagePicture& picture) {
    const HDC screen = GetDC(nullptr);
    const auto length = [screen](int dots, int size, int resolution) {
        return MulDiv(dots, GetDeviceCaps(screen, size) * 100, GetDeviceCaps(screen, resolution));
    };
    const RECT frame = {0, 0, length(picture.width(), HORZSIZE, HORZRES), length(picture.height(), VERTSIZE, VERTRES)};
    ReleaseDC(nullptr, screen);
    return frame;
}

TEST_F(PrintTest, AMetafileShowsWhatABitmapShows) {
    const PagePicture direct(kPortrait);
    draw(direct, kPortrait, 1, "print-bitmap");
    const PagePicture played(kPortrait);
    Metafile metafile;
    {
        const RECT frame = FrameFor(played);
        const HDC dc = CreateEnhMetaFileA(nullptr, nullptr, &frame, nullptr);
        ASSERT_TRUE(dc);
        const PagePainter painter(dc, kPortrait, look);
        const PrintLayout layout = layoutFor(painter);
        painter.paint(layout.page(1), layout);
        metafile.reset(CloseEnhMetaFile(dc));
    }
    played.play(metafile);
    played.save("print-metafile");
    constexpr int kRounding = 3;  // dots
    const DotArea wanted = direct.printed();
    const DotArea got = played.printed();
    EXPECT_NEAR(got.left, wanted.left, kRounding);
    EXPECT_NEAR(got.top, wanted.top, kRounding);
    EXPECT_NEAR(got.right, wanted.right, kRounding);
    EXPECT_NEAR(got.bottom, wanted.bottom, kRounding);
    const auto isInk = [](int, int, std::uint32_t colour) { return colour != kWhite; };
    EXPECT_NEAR(played.count(isInk), direct.count(isInk), direct.count(isInk) / 5);
    EXPECT_GT(played.count([](int, int, std::uint32_t colour) { return !IsGrey(colour); }), 100);
}

TEST_F(PrintTest, ATopicOfHelpTakesPagesOfItsOwnSize) {
    topics::ShownTopic shown;
    shown.path = "C:\\MADE.HLP";
    shown.file = topics::HelpFile::open(topics::test::MakeHelpFile());
    topics::Topic topic = shown.file->topic(1);
    for (int i = 0; i < 100; ++i)
        topic.parts.push_back(topic.parts[i % 2]);
    shown.topic = std::make_shared<const topics::Topic>(std::move(topic));
    const PagePicture picture(kPortrait);
    const PagePainter painter(picture.dc(), kPortrait, look);
    TopicPages pages(shown);
    pages.layOut(painter, look, PrintArea::Document);
    EXPECT_EQ(pages.name(), "Made - Second");
    ASSERT_EQ(pages.count(), 3);
    pages.paint(1);
    picture.save("print-topic");
    expectWithinMargins(picture, kPortrait);
    EXPECT_GT(picture.count([](int, int, std::uint32_t colour) { return !IsGrey(colour); }), 100);
    const PagePicture last(kPortrait);
    TopicPages black(shown);
    look.options.colours = false;
    look.options.header = false;
    const PagePainter plain(last.dc(), kPortrait, look);
    black.layOut(plain, look, PrintArea::Document);
    black.paint(black.count());
    last.save("print-topic-last");
    EXPECT_EQ(last.count([](int, int, std::uint32_t colour) { return !IsGrey(colour); }), 0);
    EXPECT_LT(last.printed().bottom, kPortrait.reachedHeight / 2);
}

// A device that is no printer is like one that has gone.
TEST_F(PrintTest, AJobOnAPrinterThatHasGoneFails) {
    struct Progress : PrintProgress {
        bool pageComes(std::int64_t, std::int64_t) override { return true; }
    } progress;
    const PagePicture picture(kPortrait);
    const PagePainter painter(picture.dc(), kPortrait, look);
    DocumentPages pages(document);
    pages.layOut(painter, look, PrintArea::Document);
    PrinterTarget target(picture.dc(), pages);
    EXPECT_EQ(RunPrint(PrintSequence({}, pages.count()), target, progress), PrintResult::Failed);
    EXPECT_FALSE(document.isModified());
}

}  // namespace
}  // namespace vexa::test
