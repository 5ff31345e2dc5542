// Any bytes as a help file: every topic is read and laid out in bounded time, and what is laid out refers to what is
// there.
#include <algorithm>
#include <cstdint>
#include <string>

#include "fuzz/fuzzing.h"
#include "quickhelp/topics/grid_measure.h"
#include "quickhelp/topics/made_help_file.h"
#include "quickhelp/topics/topic_view.h"

namespace vexa::fuzz {
namespace {

constexpr std::size_t kMostTopics = 50;

void CheckRegion(const topics::LaidRegion& region, const topics::LayoutSource& source) {
    for (const topics::LaidRun& run : region.runs) {
        const topics::Paragraph& paragraph = source.topic.paragraphs.at(run.paragraph);
        Require(run.begin + run.length <= paragraph.text.size());
        Require(run.link < static_cast<int>(source.topic.links.size()));
        Require(run.picture < static_cast<int>(source.topic.pictures.size()));
    }
    const auto areas = LinkAreas(region, source.topic);
    Require(areas.empty() == (NextLink(areas, -1, true) < 0));
    const topics::TextPosition end = PositionAt(region, source, 50, region.height / 2);
    SelectionBoxes(region, source, {}, end);
    TextBetween(source.topic, {}, end);
}

// Every page ends below its beginning, and none is higher than the paper.
void CheckPages(const topics::LaidRegion& region) {
    constexpr int kHeight = 200;
    const std::vector<int> tops = PageTops(region, kHeight);
    for (std::size_t i = 1; i < tops.size(); ++i)
        Require(tops[i] > tops[i - 1] && tops[i] <= tops[i - 1] + kHeight);
}

void CheckTopic(const topics::HelpFile& file, const topics::Topic& topic) {
    topics::test::GridMeasure measure(file);
    const topics::LayoutSource source = {file, topic, measure};
    for (const int width : {1, 300}) {
        const topics::TopicLayout layout = LayOutTopic(source, width);
        CheckRegion(layout.fixed, source);
        CheckRegion(layout.scrolling, source);
        CheckPages(layout.scrolling);
    }
    for (const topics::PictureUse& picture : topic.pictures)
        topics::DecodePicture(file.pictureBytes(picture), 96);
    for (const topics::Link& link : topic.links)
        file.offsetOf(link);
    FindText(topic, "the", {}, false);
}

void CheckFile(std::string bytes) {
    const auto file = topics::HelpFile::open(std::move(bytes));
    if (!file) return;
    for (std::size_t i = 0; i < std::min(file->topicCount(), kMostTopics); ++i)
        CheckTopic(*file, file->topic(i));
    for (const topics::Keyword& keyword : file->index().keywords())
        Require(file->index().offsetsOf(keyword).size() <= keyword.count);
}

// A sound file with some of its bytes overwritten: each change is an offset of two bytes and a byte.
std::string Damaged(const std::string& changes) {
    std::string bytes = topics::test::MakeHelpFile();
    for (std::size_t i = 0; i + 2 < changes.size(); i += 3) {
        const auto high = static_cast<unsigned char>(changes[i]);
        const auto low = static_cast<unsigned char>(changes[i + 1]);
        bytes[(high * 256U + low) % bytes.size()] = changes[i + 2];
    }
    return bytes;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    CheckFile(bytes);
    CheckFile(Damaged(bytes));
    topics::DecodePicture(bytes, 96);
    topics::PictureHotspots(bytes);
    return 0;
}

}  // namespace vexa::fuzz
