// Where texts, tables, pictures and links of a topic stand, on a device of cells of 8 by 16 pixels.
#include <gtest/gtest.h>

#include "quickhelp/topics/grid_measure.h"
#include "quickhelp/topics/made_help_file.h"
#include "quickhelp/topics/topic_view.h"

namespace vexa::topics {
namespace {

class TopicLayoutTest : public testing::Test {
  protected:
    // Adds a paragraph whose characters between brackets, which are left out, are a link.
    void add(std::string_view text, const ParagraphFormat& format = {}, int column = 0) {
        Paragraph paragraph;
        paragraph.format = std::make_shared<ParagraphFormat>(format);
        paragraph.column = column;
        int link = -1;
        for (const char c : text) {
            if (c == '[') topic.links.push_back({});
            if (c == '[' || c == ']') link = c == '[' ? static_cast<int>(topic.links.size()) - 1 : -1;
            if (c == '[' || c == ']') continue;
            const int picture = c == kPictureCharacter ? static_cast<int>(topic.pictures.size()) - 1 : -1;
            paragraph.runs.push_back({static_cast<std::uint32_t>(paragraph.text.size()), 1, 0, link, picture});
            paragraph.text += c;
        }
        topic.paragraphs.push_back(paragraph);
    }
    void endPart(std::optional<TableRow> row = {}) {
        const std::size_t first =
            topic.parts.empty() ? 0 : topic.parts.back().firstParagraph + topic.parts.back().paragraphCount;
        topic.parts.push_back({first, topic.paragraphs.size() - first, std::move(row)});
    }
    LaidRegion layOut(int width) {
        endPart();
        return LayOutTopic(source, width).scrolling;
    }
    // Each run as its text and upper left corner.
    std::string shown(const LaidRegion& region) const {
        std::string all;
        for (const LaidRun& run : region.runs) {
            const std::string text = topic.paragraphs[run.paragraph].text.substr(run.begin, run.length);
            all += (run.picture >= 0 ? "#" : text) + "@" + std::to_string(run.box.left) + "," +
                   std::to_string(run.box.top) + "|";
        }
        return all;
    }

    std::unique_ptr<HelpFile> file = HelpFile::open(test::MakeHelpFile());
    Topic topic;
    test::GridMeasure measure{*file};
    LayoutSource source{*file, topic, measure};
};

TEST_F(TopicLayoutTest, WrapsAtBlanks) {
    add("one two three four");
    const LaidRegion region = layOut(80);
    EXPECT_EQ(shown(region), "one two @0,0|three four@0,16|");
    EXPECT_EQ(region.height, 32);
}

TEST_F(TopicLayoutTest, CutsAWordThatIsWiderThanTheLine) {
    add("a bcdefghijklm");
    EXPECT_EQ(shown(layOut(40)), "a @0,0|bcdef@0,16|ghijk@0,32|lm@0,48|");
}

TEST_F(TopicLayoutTest, LongWordsOfManyThousandCharactersAreLaidOut) {
    add(std::string(5000, 'x'));
    EXPECT_EQ(layOut(80).lines.size(), 500U);
}

TEST_F(TopicLayoutTest, LeavesLinesWholeThatDoNotWrap) {
    ParagraphFormat format;
    format.wraps = false;
    add("one two three four", format);
    const LaidRegion region = layOut(40);
    EXPECT_EQ(region.lines.size(), 1U);
    EXPECT_EQ(region.width, 18 * 8);
}

TEST_F(TopicLayoutTest, HangsAndTabsToTheIndent) {
    ParagraphFormat format;
    format.left = 60;
    format.firstLine = -50;
    format.above = 10;
    format.below = 6;
    add("1.\tone two", format);
    const LaidRegion region = layOut(90);
    EXPECT_EQ(shown(region), "1.@10,10|one @60,10|two@60,26|");
    EXPECT_EQ(region.height, 48);
}

TEST_F(TopicLayoutTest, TabsOfEachKind) {
    ParagraphFormat format;
    format.tabs = {{40, TabKind::Left}, {120, TabKind::Right}, {200, TabKind::Centre}};
    add("a\tb\tcd\tef\tg", format);
    EXPECT_EQ(shown(layOut(400)), "a@0,0|b@40,0|cd@104,0|ef@192,0|g@216,0|");
}

TEST_F(TopicLayoutTest, AlignsAndSpacesLines) {
    ParagraphFormat format;
    format.lineSpacing = -20;
    format.alignment = Alignment::Right;
    add("ab cd", format);
    format.alignment = Alignment::Centre;
    add("ef\ngh", format);
    EXPECT_EQ(shown(layOut(30)), "ab @14,4|cd@14,24|ef@7,44|gh@7,64|");
}

TEST_F(TopicLayoutTest, DrawsBorders) {
    ParagraphFormat format;
    format.border = {true, true, true, true, false, false};
    add("a", format);
    EXPECT_EQ(layOut(100).rules.size(), 4U);
    topic = {};
    format.border = {true, false, false, false, false, true};
    add("a", format);
    EXPECT_EQ(layOut(100).rules.size(), 2U);
}

TEST_F(TopicLayoutTest, PutsCellsBesideEachOther) {
    add("left cell");
    add("right", {}, 1);
    add("more", {}, 1);
    endPart(TableRow{false, 0, {{4, 40}, {8, 60}}});
    topic.fixedParts = 1;
    add("below");
    endPart();
    const TopicLayout both = LayOutTopic(source, 200);
    EXPECT_EQ(shown(both.fixed), "left @4,0|cell@4,16|right@52,0|more@52,16|");
    EXPECT_EQ(both.fixed.height, 32);
    EXPECT_EQ(shown(both.scrolling), "below@0,0|");
}

TEST_F(TopicLayoutTest, SharesTheWidthAmongProportionalColumns) {
    add("a");
    add("b", {}, 1);
    endPart(TableRow{true, 50, {{0, 16384}, {0, 16383}}});
    EXPECT_EQ(shown(LayOutTopic(source, 200).scrolling), "a@0,0|b@100,0|");
}

TEST_F(TopicLayoutTest, TextStandsBesideAPicture) {
    topic.pictures.emplace_back().placement = PicturePlacement::Left;
    add(std::string("one two") + kPictureCharacter);
    const LaidRegion region = layOut(50);
    EXPECT_EQ(shown(region), "#@0,0|one @20,0|two@0,16|");
}

TEST_F(TopicLayoutTest, PagesEndBetweenLines) {
    using Tops = std::vector<int>;
    EXPECT_EQ(PageTops(LaidRegion(), 100), Tops{0});
    for (const char* text : {"one", "two", "three", "four", "five"})
        add(text);
    const LaidRegion region = layOut(200);
    ASSERT_EQ(region.height, 80);
    EXPECT_EQ(PageTops(region, 80), (Tops{0, 80}));
    EXPECT_EQ(PageTops(region, 47), (Tops{0, 32, 64, 80}));
    EXPECT_EQ(PageTops(region, 10), (Tops{0, 10, 16, 26, 32, 42, 48, 58, 64, 74, 80})) << "lower than a line";
}

TEST_F(TopicLayoutTest, FindsLinksByMouseAndKeyboard) {
    add("a [two words] b [c]");
    const std::vector<LinkArea> areas = LinkAreas(layOut(40), topic);
    ASSERT_EQ(areas.size(), 3U);
    EXPECT_EQ(LinkAt(areas, 17, 3), 0);
    EXPECT_EQ(LinkAt(areas, 1, 20), 0);
    EXPECT_EQ(LinkAt(areas, 1, 3), std::nullopt);
    EXPECT_EQ(NextLink(areas, -1, true), 0);
    EXPECT_EQ(NextLink(areas, 0, true), 1);
    EXPECT_EQ(NextLink(areas, 1, true), 0);
    EXPECT_EQ(NextLink(areas, 1, false), 0);
    EXPECT_EQ(NextLink(areas, -1, false), 1);
    EXPECT_EQ(NextLink({}, 0, true), -1);
}

TEST_F(TopicLayoutTest, SelectsCopiesAndFinds) {
    add("First line");
    add("x");
    add("y", {}, 1);
    add("last one");
    const LaidRegion region = layOut(200);
    EXPECT_EQ(PositionAt(region, source, 17, 5), (TextPosition{0, 2}));
    EXPECT_EQ(PositionAt(region, source, 500, 5), (TextPosition{0, 10}));
    EXPECT_EQ(PositionAt(region, source, 9, 500), (TextPosition{3, 1}));
    EXPECT_EQ(TextBetween(topic, {0, 6}, {3, 4}), "line\r\nx\ty\r\nlast");
    const std::vector<Box> boxes = SelectionBoxes(region, source, {0, 6}, {1, 1});
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[0], (Box{48, 0, 80, 16}));
    EXPECT_EQ(FindText(topic, "L", {0, 7}, false), (TextPosition{3, 0}));
    EXPECT_EQ(FindText(topic, "L", {}, true), std::nullopt);
    EXPECT_EQ(TopOf(region, {3, 2}), 48);
}

}  // namespace
}  // namespace vexa::topics
