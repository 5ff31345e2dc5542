// A help file that is open: what it says about itself, its indexes, and its topics, one at a time. It keeps the file's
// bytes, and a few unpacked blocks; damage costs the part that it is in. Not for use by two threads at once.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/platform.h"
#include "quickhelp/topics/help_container.h"
#include "quickhelp/topics/help_fonts.h"
#include "quickhelp/topics/help_system.h"
#include "quickhelp/topics/phrases.h"
#include "quickhelp/topics/topic.h"
#include "quickhelp/topics/topic_index.h"
#include "quickhelp/topics/topic_links.h"

namespace vexa::topics {

// A larger file is not opened.
inline constexpr std::size_t kLargestHelpFile = std::size_t{256} << 20;

class HelpFile {
  public:
    // None when the bytes are no help file.
    static std::unique_ptr<HelpFile> open(std::string bytes);
    // None also when the file cannot be read.
    static std::unique_ptr<HelpFile> openPath(const std::string& path);

    // Of the file when it was read; none for bytes.
    const std::optional<platform::FileStamp>& stamp() const { return stamp_; }
    const HelpSystem& system() const { return system_; }
    const TopicIndex& index() const { return index_; }
    // A plain font for a number that the file has no font for.
    const HelpFont& font(int number) const;
    std::size_t fontCount() const { return fonts_.size(); }
    // The bytes of a picture, none for a number without one.
    std::string_view pictureBytes(int number) const;
    // The same for one in a text, which must live as long as they are used.
    std::string_view pictureBytes(const PictureUse& picture) const;

    std::size_t topicCount() const { return topics_.size(); }
    std::uint32_t topicOffset(std::size_t number) const { return topics_[number].offset; }
    // The topic that holds what an offset leads to, which may be its middle; none in a file without topics.
    std::optional<std::size_t> topicAt(std::uint32_t offset) const;
    std::optional<std::size_t> contentsTopic() const;
    // Where a link leads inside this file; none for macros and contexts that do not occur.
    std::optional<std::uint32_t> offsetOf(const Link& link) const;
    Topic topic(std::size_t number) const;

  private:
    struct TopicStart {
        std::uint32_t position;
        std::uint32_t offset;
    };
    HelpFile(std::unique_ptr<HelpContainer> container, HelpSystem system);
    void findTopics();
    std::uint32_t offsetAt(const TopicLink& link, std::uint32_t characters) const;
    std::string textOf(const TopicLink& link, std::string_view content) const;
    void addPictureLinks(Topic& topic) const;
    void readHeader(const TopicLink& link, Topic& topic, std::uint32_t& scrollPosition) const;

    std::unique_ptr<HelpContainer> container_;
    HelpSystem system_;
    TopicIndex index_;
    Phrases phrases_;
    std::vector<HelpFont> fonts_;
    TopicLinks links_;
    std::vector<TopicStart> topics_;
    std::optional<platform::FileStamp> stamp_;
};

}  // namespace vexa::topics
