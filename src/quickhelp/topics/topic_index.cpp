#include "quickhelp/topics/topic_index.h"

#include <algorithm>

#include "base/ascii.h"
#include "quickhelp/topics/btree.h"

namespace vexa::topics {
namespace {

constexpr std::uint32_t kNowhere = 0xFFFFFFFF;

template <class Key, class Value>
std::optional<Value> Find(const std::map<Key, Value>& map, Key key) {
    const auto found = map.find(key);
    return found == map.end() ? std::nullopt : std::optional(found->second);
}

std::string FileName(char letter, std::string_view rest) {
    return std::string("|") + letter + std::string(rest);
}

struct OwnValue {
    unsigned char c;
    int value;
};

// Characters with a value that does not follow from their code.
constexpr OwnValue kOwnValues[] = {{'0', 10},  {'.', 12}, {'_', 13}, {'!', 11}, {'[', 11},
                                   {'\\', 12}, {']', 13}, {'^', 14}, {0xB4, 11}};

int HashValue(char c) {
    const auto code = static_cast<unsigned char>(LowerAscii(c));
    const auto own = std::ranges::find(kOwnValues, code, &OwnValue::c);
    if (own != std::end(kOwnValues)) return own->value;
    return static_cast<signed char>(code >= 0x60 && code < 0x80 ? code - 0x50 : code - 0x30);
}

}  // namespace

std::int32_t HashOfContext(std::string_view name) {
    if (name.empty()) return 1;
    std::uint32_t hash = 0;
    for (const char c : name)
        hash = hash * 43 + static_cast<std::uint32_t>(HashValue(c));
    return static_cast<std::int32_t>(hash);
}

TopicIndex::TopicIndex(const HelpContainer& container)
    : container_(container), topicNumbers_(container.file("|TOMAP")) {
    ReadTree(container.file("|CONTEXT"), [this](ByteReader& in) {
        const std::int32_t hash = in.i32();
        const std::uint32_t offset = in.u32();
        if (!in.failed()) contexts_.emplace(hash, offset);
    });
    ReadTree(container.file("|TTLBTREE"), [this](ByteReader& in) {
        const std::uint32_t offset = in.u32();
        if (!in.failed()) titles_.push_back({offset, in.text()});
    });
    std::ranges::sort(titles_, {}, &TopicTitle::offset);
    ByteReader in(container.file("|CTXOMAP"));
    const int count = in.u16();
    for (int i = 0; i < count && in.left() >= 8; ++i) {
        const std::int32_t number = in.i32();
        numbers_.emplace(number, in.u32());
    }
}

std::optional<std::uint32_t> TopicIndex::offsetOfContext(std::int32_t hash) const {
    return Find(contexts_, hash);
}

std::optional<std::uint32_t> TopicIndex::offsetOfNumber(std::int32_t number) const {
    return Find(numbers_, number);
}

std::optional<std::uint32_t> TopicIndex::offsetOfTopicNumber(std::int32_t number) const {
    ByteReader in(topicNumbers_);
    in.skip(std::int64_t{4} * number);
    const std::uint32_t offset = in.u32();
    return in.failed() || offset == 0 ? std::nullopt : std::optional(offset);
}

std::string_view TopicIndex::titleOf(std::uint32_t offset) const {
    const auto found = std::ranges::lower_bound(titles_, offset, {}, &TopicTitle::offset);
    return found != titles_.end() && found->offset == offset ? found->text : std::string_view();
}

std::vector<Keyword> TopicIndex::keywords(char letter) const {
    std::vector<Keyword> found;
    ReadTree(container_.file(FileName(letter, "WBTREE")), [&found](ByteReader& in) {
        Keyword keyword;
        keyword.text = in.text();
        keyword.count = in.u16();
        keyword.start = in.u32();
        if (!in.failed()) found.push_back(keyword);
    });
    return found;
}

std::vector<std::uint32_t> TopicIndex::offsetsOf(const Keyword& keyword, char letter) const {
    std::vector<std::uint32_t> offsets;
    ByteReader in(container_.file(FileName(letter, "WDATA")));
    in.skip(keyword.start);
    for (std::uint32_t i = 0; i < keyword.count && in.left() >= 4 && !in.failed(); ++i) {
        const std::uint32_t offset = in.u32();
        if (offset != kNowhere) offsets.push_back(offset);
    }
    return offsets;
}

}  // namespace vexa::topics
