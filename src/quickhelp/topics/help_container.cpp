#include "quickhelp/topics/help_container.h"

#include <algorithm>

#include "quickhelp/topics/btree.h"

namespace vexa::topics {
namespace {

constexpr std::uint32_t kMagic = 0x00035F3F;

}  // namespace

HelpContainer::HelpContainer(std::string bytes) : bytes_(std::move(bytes)) {
    ByteReader in(bytes_);
    if (in.u32() != kMagic) return;
    const std::int64_t directory = in.i32();
    ReadTree(contentAt(directory), [this](ByteReader& entry) {
        const std::string_view name = entry.text();
        const std::int64_t offset = entry.i32();
        if (!entry.failed()) entries_.push_back({name, offset});
    });
}

std::string_view HelpContainer::contentAt(std::int64_t offset) const {
    ByteReader in(bytes_);
    in.skip(offset);
    in.skip(4);
    const std::int64_t used = in.i32();
    in.skip(1);
    if (in.failed() || used < 0) return {};
    return in.bytes(std::min(used, static_cast<std::int64_t>(in.left())));
}

std::string_view HelpContainer::file(std::string_view name) const {
    const auto found = std::ranges::find(entries_, name, &Entry::name);
    return found != entries_.end() ? contentAt(found->offset) : std::string_view();
}

}  // namespace vexa::topics
