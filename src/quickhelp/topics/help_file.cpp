#include "quickhelp/topics/help_file.h"

#include <algorithm>

#include "base/file.h"
#include "quickhelp/topics/byte_reader.h"
#include "quickhelp/topics/paragraph_reader.h"
#include "quickhelp/topics/picture.h"

namespace vexa::topics {
namespace {

constexpr std::uint32_t kNone = 0xFFFFFFFF;
// The text of one record and of a whole topic.
constexpr std::size_t kLongestText = std::size_t{1} << 20;
constexpr std::size_t kLongestTopic = std::size_t{4} << 20;
constexpr int kBytesForCharacters = 6;

// Counts the characters of a block's records, from which offsets are made.
struct CharacterCount {
    std::size_t block = SIZE_MAX;
    std::uint32_t characters = 0;

    void enter(const TopicLink& link) {
        if (link.block != block) characters = 0;
        block = link.block;
    }
};

std::optional<std::uint32_t> OffsetUnlessNone(std::uint32_t offset) {
    return offset == kNone ? std::nullopt : std::optional(offset);
}

std::string_view FormatOf(const TopicLink& link, std::string_view content) {
    return content.substr(0, static_cast<std::size_t>(link.formatSize - TopicLinks::kHeaderSize));
}

}  // namespace

std::unique_ptr<HelpFile> HelpFile::open(std::string bytes) {
    auto container = std::make_unique<HelpContainer>(std::move(bytes));
    if (!container->isValid()) return nullptr;
    auto system = ReadHelpSystem(container->file("|SYSTEM"));
    if (!system) return nullptr;
    return std::unique_ptr<HelpFile>(new HelpFile(std::move(container), *std::move(system)));
}

std::unique_ptr<HelpFile> HelpFile::openPath(const std::string& path) {
    const auto stamp = platform::StampOf(path);
    File file(path, platform::OpenMode::Read);
    auto bytes = file.readAll(kLargestHelpFile);
    auto opened = bytes ? open(*std::move(bytes)) : nullptr;
    if (opened) opened->stamp_ = stamp;
    return opened;
}

HelpFile::HelpFile(std::unique_ptr<HelpContainer> container, HelpSystem system)
    : container_(std::move(container)),
      system_(std::move(system)),
      index_(*container_),
      phrases_(*container_, system_.isFirstVersion()),
      fonts_(ReadFonts(container_->file("|FONT"), system_)),
      links_(container_->file("|TOPIC"), system_) {
    findTopics();
}

std::uint32_t HelpFile::offsetAt(const TopicLink& link, std::uint32_t characters) const {
    return system_.isFirstVersion() ? link.position : static_cast<std::uint32_t>(link.block) * 0x8000 + characters;
}

// Records lead forward, so that this ends. The last one is a header without a topic, which marks the end.
void HelpFile::findTopics() {
    CharacterCount count;
    bool endsInHeader = false;
    std::optional<std::uint32_t> position = TopicLinks::kFirstPosition;
    while (position) {
        const auto link = links_.at(*position);
        if (!link) {
            position = links_.firstBehind(*position);
            continue;
        }
        count.enter(*link);
        endsInHeader = !link->isText();
        if (link->isText()) {
            count.characters += CharactersOf(link->type, links_.content(*link, kBytesForCharacters));
        } else {
            topics_.push_back({link->position, offsetAt(*link, count.characters)});
        }
        position = link->next < 0 ? std::nullopt : std::optional(static_cast<std::uint32_t>(link->next));
    }
    if (endsInHeader && !topics_.empty()) topics_.pop_back();
}

const HelpFont& HelpFile::font(int number) const {
    static const HelpFont plain;
    return number >= 0 && static_cast<std::size_t>(number) < fonts_.size() ? fonts_[static_cast<std::size_t>(number)]
                                                                           : plain;
}

std::string_view HelpFile::pictureBytes(int number) const {
    return container_->file((system_.isFirstVersion() ? "bm" : "|bm") + std::to_string(number));
}

std::string_view HelpFile::pictureBytes(const PictureUse& picture) const {
    return picture.number < 0 ? std::string_view(picture.embedded) : pictureBytes(picture.number);
}

void HelpFile::addPictureLinks(Topic& topic) const {
    for (PictureUse& picture : topic.pictures) {
        const std::string_view bytes = pictureBytes(picture);
        for (PictureHotspot& spot : PictureHotspots(bytes)) {
            if (topic.links.size() >= kMostRuns) return;
            picture.pixels = PixelExtent(bytes);
            picture.parts.push_back({spot.box, static_cast<int>(topic.links.size())});
            topic.links.push_back(std::move(spot.link));
        }
    }
}

std::optional<std::size_t> HelpFile::topicAt(std::uint32_t offset) const {
    if (topics_.empty()) return std::nullopt;
    const auto behind = std::ranges::upper_bound(topics_, offset, {}, &TopicStart::offset);
    return behind == topics_.begin() ? 0 : static_cast<std::size_t>(behind - topics_.begin()) - 1;
}

std::optional<std::size_t> HelpFile::contentsTopic() const {
    return topicAt(system_.contents.value_or(index_.offsetOfTopicNumber(0).value_or(0)));
}

std::optional<std::uint32_t> HelpFile::offsetOf(const Link& link) const {
    if (link.action == LinkAction::Macro) return std::nullopt;
    return link.isNumber ? index_.offsetOfTopicNumber(link.context) : index_.offsetOfContext(link.context);
}

// A text that is longer than what is stored has been shortened by phrases.
std::string HelpFile::textOf(const TopicLink& link, std::string_view content) const {
    const std::string_view stored = content.substr(FormatOf(link, content).size());
    const std::size_t limit = std::min(static_cast<std::size_t>(link.textSize), kLongestText);
    const bool isShortened = link.textSize > link.size - link.formatSize;
    return isShortened ? phrases_.expand(stored, limit) : std::string(stored.substr(0, limit));
}

void HelpFile::readHeader(const TopicLink& link, Topic& topic, std::uint32_t& scrollPosition) const {
    const std::string_view content = links_.content(link);
    ByteReader in(FormatOf(link, content));
    in.skip(4);
    const std::uint32_t previous = in.u32();
    const std::uint32_t next = in.u32();
    const auto byVersion = [this](std::uint32_t value) {
        return system_.isFirstVersion() ? index_.offsetOfTopicNumber(static_cast<std::uint16_t>(value))
                                        : OffsetUnlessNone(value);
    };
    topic.previous = byVersion(previous);
    topic.next = byVersion(next);
    in.skip(4);
    const bool isFixed = in.u32() != kNone;
    const std::uint32_t scroll = in.u32();
    scrollPosition = in.failed() || !isFixed ? 0 : scroll;
    const std::string text = textOf(link, content);
    ByteReader titles(text);
    topic.title = titles.text();
    while (titles.left() > 0)
        topic.macros.emplace_back(titles.text());
}

Topic HelpFile::topic(std::size_t number) const {
    Topic topic;
    const TopicStart start = topics_[number];
    topic.offset = start.offset;
    auto link = links_.at(start.position);
    if (!link) return topic;
    std::uint32_t scrollPosition = 0;
    readHeader(*link, topic, scrollPosition);
    CharacterCount count = {link->block, start.offset & 0x7FFF};
    std::size_t textSize = 0;
    while (link->next >= 0) {
        link = links_.at(static_cast<std::uint32_t>(link->next));
        topic.isDamaged |= !link;
        if (!link || !link->isText() || textSize > kLongestTopic) break;
        count.enter(*link);
        if (link->position == scrollPosition) topic.fixedParts = topic.parts.size();
        const std::string content(links_.content(*link));
        const std::string text = textOf(*link, content);
        const std::string_view format = FormatOf(*link, content);
        ReadParagraphs(link->type, format, text, offsetAt(*link, count.characters), topic);
        count.characters += CharactersOf(link->type, format);
        textSize += text.size();
    }
    if (scrollPosition == kNone) topic.fixedParts = topic.parts.size();
    addPictureLinks(topic);
    return topic;
}

}  // namespace vexa::topics
