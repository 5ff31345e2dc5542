// Every topic of every help file in the folder that VEXA_HELP_FILES names. The files belong to their makers, so that
// they are not part of the project; without the folder the test is skipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/ascii.h"
#include "quickhelp/help_index.h"
#include "quickhelp/topics/grid_measure.h"
#include "quickhelp/topics/help_file.h"
#include "support/test_disk.h"

namespace vexa::topics {
namespace {

std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Every character of a topic, tabs and line breaks apart, is laid out.
void LayOut(const HelpFile& file, const Topic& topic) {
    test::GridMeasure measure(file);
    const TopicLayout layout = LayOutTopic({file, topic, measure}, 600);
    std::size_t shown = 0;
    for (const LaidRegion* region : {&layout.fixed, &layout.scrolling}) {
        for (const LaidRun& run : region->runs)
            shown += run.length;
    }
    std::size_t characters = 0;
    for (const Paragraph& paragraph : topic.paragraphs)
        characters += static_cast<std::size_t>(
            std::ranges::count_if(paragraph.text, [](char c) { return c != '\t' && c != '\n'; }));
    EXPECT_EQ(shown, characters);
    for (const PictureUse& picture : topic.pictures) {
        const Picture decoded = DecodePicture(file.pictureBytes(picture), measure.dpi());
        EXPECT_TRUE(picture.isButton || !decoded.pixels.empty() || !decoded.metafile.empty());
    }
}

void WalkTopics(const HelpFile& file) {
    ASSERT_GT(file.topicCount(), 0U);
    EXPECT_TRUE(file.contentsTopic());
    for (std::size_t i = 0; i < file.topicCount(); ++i) {
        const Topic topic = file.topic(i);
        EXPECT_FALSE(topic.isDamaged) << i;
        EXPECT_EQ(file.topicAt(topic.offset), i);
        LayOut(file, topic);
        for (const Link& link : topic.links)
            EXPECT_TRUE(link.action == LinkAction::Macro || !link.file.empty() || file.offsetOf(link)) << i;
        for (const auto& neighbour : {topic.previous, topic.next})
            EXPECT_TRUE(!neighbour || file.topicOffset(*file.topicAt(*neighbour)) == *neighbour) << i;
    }
    for (const Keyword& keyword : file.index().keywords())
        EXPECT_EQ(file.index().offsetsOf(keyword).size(), keyword.count) << keyword.text;
}

// The index for quick help has the title and the keywords that the reader of topics finds.
void CompareIndex(const HelpFile& file, const std::string& bytes) {
    const vexa::test::TestDisk disk;
    disk.put("A.HLP", bytes);
    const auto keywords = file.index().keywords();
    const IndexResult result = BuildHelpIndex("A", disk.path("A.ZIX"));
    ASSERT_EQ(result, keywords.empty() ? IndexResult::NoKeywords : IndexResult::Written);
    if (keywords.empty()) return;
    std::string expected = "\r\n" + file.system().title + "\r\n";
    for (const Keyword& keyword : keywords)
        expected += std::string(keyword.text.substr(0, 79)) + "\r\n";
    EXPECT_TRUE(disk.get("A.ZIX").ends_with(expected));
}

TEST(RealHelpFiles, EveryTopicIsReadAndLaidOut) {
    const char* folder = std::getenv("VEXA_HELP_FILES");
    if (!folder) GTEST_SKIP() << "VEXA_HELP_FILES names no folder with help files";
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (!EqualIgnoringCase(entry.path().extension().string(), ".hlp")) continue;
        SCOPED_TRACE(entry.path().string());
        const std::string bytes = BytesOf(entry.path());
        const auto file = HelpFile::open(bytes);
        ASSERT_TRUE(file);
        WalkTopics(*file);
        CompareIndex(*file, bytes);
        ++count;
    }
    EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace vexa::topics
