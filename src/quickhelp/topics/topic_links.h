// The records of |TOPIC, which are chained in blocks that may be compressed. A position is where the file says that a
// record begins (TOPICPOS).
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "quickhelp/topics/help_system.h"

namespace vexa::topics {

enum class LinkType : std::uint8_t { Text15 = 1, Topic = 2, Text = 0x20, Row = 0x23 };

struct TopicLink {
    std::uint32_t position = 0;
    std::size_t block = 0;
    std::int64_t size = 0;        // of the whole record
    std::int64_t textSize = 0;    // of its text when it is unpacked
    std::int64_t next = -1;       // position of the next record, -1 after the last
    std::int64_t formatSize = 0;  // of its header and first part
    LinkType type = LinkType::Text;

    bool isText() const { return type != LinkType::Topic; }
};

class TopicLinks {
  public:
    static constexpr std::uint32_t kFirstPosition = 12;
    static constexpr std::int64_t kLongestLink = std::int64_t{1} << 20;
    static constexpr std::int64_t kHeaderSize = 21;

    TopicLinks(std::string_view file, const HelpSystem& system);

    // None when no sound record begins there.
    std::optional<TopicLink> at(std::uint32_t position) const;
    // The bytes of a record after its header, at most limit of them; valid until the next call.
    std::string_view content(const TopicLink& link, std::int64_t limit = kLongestLink) const;
    // The first record of the next sound block after the given position: where to go on after a fault.
    std::optional<std::uint32_t> firstBehind(std::uint32_t position) const;

  private:
    struct Spot {
        std::size_t block = 0;
        std::size_t offset = 0;
    };
    struct Unpacked {
        std::size_t block = SIZE_MAX;
        std::string data;
    };
    Spot spotOf(std::uint32_t position) const;
    std::size_t blockCount() const { return (file_.size() + blockSize_ - 1) / blockSize_; }
    std::string_view blockData(std::size_t block) const;
    std::string_view gather(Spot spot, std::int64_t count) const;

    std::string_view file_;
    std::size_t blockSize_;
    bool isPacked_;
    bool isFirstVersion_;
    mutable std::array<Unpacked, 4> unpacked_;
    mutable std::string gathered_;
};

}  // namespace vexa::topics
