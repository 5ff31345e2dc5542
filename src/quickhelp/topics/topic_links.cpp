#include "quickhelp/topics/topic_links.h"

#include <algorithm>

#include "quickhelp/topics/byte_reader.h"
#include "quickhelp/topics/unpack.h"

namespace vexa::topics {
namespace {

constexpr std::size_t kBlockHeader = 12;
constexpr std::size_t kLargestBlock = 16384;
constexpr int kPacked = 4;
constexpr int kPackedSmall = 8;

}  // namespace

TopicLinks::TopicLinks(std::string_view file, const HelpSystem& system)
    : file_(file),
      blockSize_(system.isFirstVersion() || system.flags == kPackedSmall ? 2048 : 4096),
      isPacked_(!system.isFirstVersion() && (system.flags == kPacked || system.flags == kPackedSmall)),
      isFirstVersion_(system.isFirstVersion()) {}

TopicLinks::Spot TopicLinks::spotOf(std::uint32_t position) const {
    if (position < kBlockHeader) return {SIZE_MAX, 0};
    if (isFirstVersion_) {
        const std::size_t inBlock = position % blockSize_;
        return {inBlock < kBlockHeader ? SIZE_MAX : position / blockSize_, inBlock - kBlockHeader};
    }
    const std::uint32_t behindHeader = position - static_cast<std::uint32_t>(kBlockHeader);
    return {behindHeader / kLargestBlock, behindHeader % kLargestBlock};
}

std::string_view TopicLinks::blockData(std::size_t block) const {
    if (block >= blockCount()) return {};
    std::string_view bytes = file_.substr(block * blockSize_, blockSize_);
    bytes.remove_prefix(std::min(kBlockHeader, bytes.size()));
    if (!isPacked_) return bytes;
    Unpacked& slot = unpacked_[block % unpacked_.size()];
    if (slot.block != block) {
        UnpackLz77(bytes, kLargestBlock, slot.data);
        slot.block = block;
    }
    return slot.data;
}

// A record that reaches the end of a block's data goes on at the start of the next one's.
std::string_view TopicLinks::gather(Spot spot, std::int64_t count) const {
    auto missing = static_cast<std::size_t>(std::clamp<std::int64_t>(count, 0, kLongestLink));
    std::string_view data = blockData(spot.block);
    data.remove_prefix(std::min(spot.offset, data.size()));
    if (data.size() >= missing) return data.substr(0, missing);
    gathered_.clear();
    for (std::size_t block = spot.block; missing > 0 && block < blockCount();) {
        gathered_.append(data.substr(0, missing));
        missing -= std::min(missing, data.size());
        data = blockData(++block);
    }
    return gathered_;
}

std::optional<TopicLink> TopicLinks::at(std::uint32_t position) const {
    const Spot spot = spotOf(position);
    ByteReader in(gather(spot, kHeaderSize));
    TopicLink link;
    link.position = position;
    link.block = spot.block;
    link.size = in.i32();
    link.textSize = in.i32();
    in.skip(4);
    const std::int64_t next = in.i32();
    link.formatSize = in.i32();
    link.type = static_cast<LinkType>(in.u8());
    const bool isSound = link.formatSize >= kHeaderSize && link.size >= link.formatSize && link.size <= kLongestLink;
    if (in.failed() || !isSound || link.textSize < 0) return std::nullopt;
    link.next = isFirstVersion_ ? position + next : next;
    if (link.next <= position || spotOf(static_cast<std::uint32_t>(link.next)).block >= blockCount()) link.next = -1;
    return link;
}

std::string_view TopicLinks::content(const TopicLink& link, std::int64_t limit) const {
    const Spot spot = spotOf(link.position);
    std::string_view bytes = gather(spot, std::min(link.size, limit + kHeaderSize));
    bytes.remove_prefix(std::min<std::size_t>(kHeaderSize, bytes.size()));
    return bytes;
}

std::optional<std::uint32_t> TopicLinks::firstBehind(std::uint32_t position) const {
    const std::size_t damaged = spotOf(position).block;
    for (std::size_t block = damaged + 1; damaged != SIZE_MAX && block < blockCount(); ++block) {
        ByteReader in(file_.substr(block * blockSize_));
        in.skip(4);
        const std::uint32_t first = in.u32();
        if (!in.failed() && spotOf(first).block == block && at(first)) return first;
    }
    return std::nullopt;
}

}  // namespace vexa::topics
