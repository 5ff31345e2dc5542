// Help files from their bytes to topics, on a file that the tests make themselves.
#include "quickhelp/topics/help_file.h"

#include <gtest/gtest.h>

#include "quickhelp/topics/made_help_file.h"

namespace vexa::topics {
namespace {

std::unique_ptr<HelpFile> Made() {
    return HelpFile::open(test::MakeHelpFile());
}

std::string TextsOf(const Topic& topic) {
    std::string all;
    for (const Paragraph& paragraph : topic.paragraphs)
        all += std::to_string(paragraph.column) + ":" + paragraph.text + "|";
    return all;
}

TEST(HelpFile, SaysWhatItIs) {
    const auto file = Made();
    ASSERT_TRUE(file);
    EXPECT_EQ(file->system().title, "Made");
    EXPECT_EQ(file->system().configMacros, std::vector<std::string>{"BrowseButtons()"});
    EXPECT_EQ(file->topicCount(), 3U);
    EXPECT_EQ(file->contentsTopic(), 0U);
    ASSERT_EQ(file->fontCount(), 2U);
    EXPECT_TRUE(file->font(0).bold);
    EXPECT_EQ(file->font(0).colour, std::nullopt);
    EXPECT_EQ(file->font(1).colour, (Colour{0, 0, 0x80}));
    EXPECT_TRUE(file->font(1).italic && file->font(1).underline);
    EXPECT_EQ(file->font(99).halfPoints, 20);
}

TEST(HelpFile, ShowsTextsWithLinksAndPhrases) {
    const Topic topic = Made()->topic(0);
    EXPECT_EQ(topic.title, "First");
    EXPECT_EQ(TextsOf(topic), "0:Go to second.\nnext line|0:run|0:the quick fox|");
    ASSERT_EQ(topic.links.size(), 2U);
    EXPECT_EQ(topic.links[0].context, HashOfContext("SECOND"));
    EXPECT_TRUE(topic.links[0].isMarked);
    EXPECT_EQ(topic.links[1].macro, "Exit();");
    const Paragraph& first = topic.paragraphs[0];
    EXPECT_EQ(first.format->above, 10);
    EXPECT_EQ(first.format->left, 20);
    ASSERT_EQ(first.runs.size(), 3U);
    EXPECT_EQ(first.runs[1].link, 0);
    EXPECT_EQ(topic.paragraphs[1].runs[0].font, 1);
}

TEST(HelpFile, ReadsTablesAndTheFixedRegion) {
    const auto file = Made();
    const Topic topic = file->topic(1);
    EXPECT_EQ(TextsOf(topic), "0:Fixed heading|0:left|1:right|");
    EXPECT_EQ(topic.fixedParts, 1U);
    EXPECT_EQ(topic.paragraphs[0].format->alignment, Alignment::Centre);
    ASSERT_EQ(topic.parts.size(), 2U);
    ASSERT_TRUE(topic.parts[1].row);
    ASSERT_EQ(topic.parts[1].row->columns.size(), 2U);
    EXPECT_EQ(topic.parts[1].row->columns[1].gap, 20);
    EXPECT_EQ(topic.parts[1].row->columns[1].width, 150);
}

TEST(HelpFile, ShowsTheTextBehindAnUnknownCommandAndBlanksForControlCharacters) {
    const Topic topic = Made()->topic(2);
    EXPECT_EQ(TextsOf(topic), "0:known  unknown|");
    EXPECT_TRUE(topic.isDamaged);
}

TEST(HelpFile, FindsTopicsByEachIndex) {
    const auto file = Made();
    const TopicIndex& index = file->index();
    const std::uint32_t second = file->topicOffset(1);
    EXPECT_EQ(index.offsetOfContext(HashOfContext("second")), second);
    EXPECT_EQ(index.offsetOfContext(1), std::nullopt);
    EXPECT_EQ(index.offsetOfNumber(7), second);
    EXPECT_EQ(index.titleOf(second), "Second");
    EXPECT_EQ(file->offsetOf(file->topic(0).links[0]), second);
    EXPECT_EQ(file->topicAt(second + 3), 1U);
    const auto keywords = index.keywords();
    ASSERT_EQ(keywords.size(), 2U);
    EXPECT_EQ(keywords[1].text, "beta");
    EXPECT_EQ(index.offsetsOf(keywords[0]), (std::vector<std::uint32_t>{0, second}));
}

TEST(HelpFile, HashesNamesOfContexts) {
    EXPECT_EQ(HashOfContext("contents"), 0x25F4558A);
    EXPECT_EQ(HashOfContext("SplitBar"), 628618193);
    EXPECT_EQ(HashOfContext("_OLE2_COleException"), -1566751368);
}

// Every cut and every damaged byte leaves something that can be walked through, in a few steps.
TEST(HelpFile, AnyDamageIsSurvived) {
    const std::string sound = test::MakeHelpFile();
    for (std::size_t i = 0; i < sound.size(); ++i) {
        for (const std::string& bytes : {sound.substr(0, i), std::string(sound).replace(i, 1, "\xFF"),
                                         std::string(sound).replace(i, 1, 1, '\x7F')}) {
            const auto file = HelpFile::open(bytes);
            for (std::size_t t = 0; file && t < file->topicCount(); ++t)
                file->topic(t);
        }
    }
}

}  // namespace
}  // namespace vexa::topics
