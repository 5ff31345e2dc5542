#include "quickhelp/topics/phrases.h"

#include <algorithm>

#include "quickhelp/topics/byte_reader.h"
#include "quickhelp/topics/unpack.h"

namespace vexa::topics {
namespace {

constexpr int kMediaViewer = 0x0800;
constexpr int kMostPhrases = 65535;
constexpr std::size_t kHallHeader = 28;

// Single bits, the lowest of each byte first; zeros past the end.
class BitReader {
  public:
    explicit BitReader(std::string_view bytes) : bytes_(bytes) {}

    bool atEnd() const { return position_ / 8 >= bytes_.size(); }
    unsigned bit() {
        if (atEnd()) return 0;
        const auto byte = static_cast<unsigned char>(bytes_[position_ / 8]);
        return byte >> (position_++ % 8) & 1U;
    }
    unsigned number(int bits) {
        unsigned value = 0;
        for (int i = 0; i < bits; ++i)
            value |= bit() << i;
        return value;
    }

  private:
    std::string_view bytes_;
    std::size_t position_ = 0;
};

unsigned HallLength(BitReader& in, int bits) {
    unsigned length = 1;
    while (in.bit() == 1 && length < Phrases::kImageLimit)
        length += 1U << bits;
    return length + in.number(bits);
}

void Append(std::string& out, std::string_view text, std::size_t limit) {
    if (out.size() < limit) out.append(text.substr(0, limit - out.size()));
}

}  // namespace

Phrases::Phrases(const HelpContainer& container, bool isFirstVersion) {
    if (const std::string_view index = container.file("|PhrIndex"); !index.empty()) {
        readHall(index, container.file("|PhrImage"));
    } else if (const std::string_view old = container.file("|Phrases"); !old.empty()) {
        readOld(old, isFirstVersion);
    }
}

void Phrases::readOld(std::string_view file, bool isFirstVersion) {
    ByteReader in(file);
    std::size_t count = in.u16();
    const bool isMediaViewer = count == kMediaViewer && !isFirstVersion;
    if (isMediaViewer) count = in.u16();
    in.skip(2);
    const std::size_t size = isFirstVersion ? file.size() : std::min<std::size_t>(in.u32(), kImageLimit);
    if (isMediaViewer) in.skip(30);
    const auto base = static_cast<std::uint32_t>(2 * (count + 1));
    if (in.left() < base) return;
    for (std::size_t i = 0; i <= count; ++i) {
        const std::uint32_t offset = in.u16();
        offsets_.push_back(offset < base ? 0 : offset - base);
    }
    const std::string_view rest = in.bytes(static_cast<std::int64_t>(in.left()));
    image_ = isFirstVersion ? std::string(rest) : UnpackLz77(rest, size);
    kind_ = Kind::Old;
}

void Phrases::readHall(std::string_view index, std::string_view image) {
    ByteReader in(index);
    in.skip(4);
    const std::int64_t count = in.i32();
    in.skip(4);
    const std::uint32_t size = in.u32();
    const std::uint32_t packedSize = in.u32();
    in.skip(4);
    const int bits = in.u16() & 15;
    if (in.failed() || index.size() < kHallHeader || count < 0 || count > kMostPhrases) return;
    BitReader lengths(index.substr(kHallHeader));
    std::uint32_t offset = 0;
    offsets_.push_back(offset);
    for (std::int64_t i = 0; i < count && !lengths.atEnd(); ++i) {
        offset = std::min(offset + HallLength(lengths, bits), static_cast<std::uint32_t>(kImageLimit));
        offsets_.push_back(offset);
    }
    image_ = size == packedSize ? std::string(image) : UnpackLz77(image, std::min<std::size_t>(size, kImageLimit));
    kind_ = Kind::Hall;
}

std::string_view Phrases::phrase(std::size_t number) const {
    if (number + 1 >= offsets_.size()) return {};
    const std::size_t start = offsets_[number];
    const std::size_t end = std::min<std::size_t>(offsets_[number + 1], image_.size());
    return start < end ? std::string_view(image_).substr(start, end - start) : std::string_view();
}

std::string Phrases::expand(std::string_view stored, std::size_t limit) const {
    std::string out;
    if (kind_ == Kind::Old) {
        expandOld(stored, limit, out);
    } else if (kind_ == Kind::Hall) {
        expandHall(stored, limit, out);
    } else {
        out = stored.substr(0, limit);
    }
    return out;
}

void Phrases::expandOld(std::string_view stored, std::size_t limit, std::string& out) const {
    ByteReader in(stored);
    while (in.left() > 0 && out.size() < limit) {
        const unsigned c = in.u8();
        if (c == 0 || c >= 16) {
            out.push_back(static_cast<char>(c));
            continue;
        }
        const unsigned code = (c - 1) * 256 + in.u8();
        Append(out, phrase(code >> 1), limit);
        if (code & 1) Append(out, " ", limit);
    }
}

void Phrases::expandHall(std::string_view stored, std::size_t limit, std::string& out) const {
    ByteReader in(stored);
    while (in.left() > 0 && out.size() < limit) {
        const unsigned c = in.u8();
        if ((c & 1) == 0) {
            Append(out, phrase(c >> 1), limit);
        } else if ((c & 3) == 1) {
            Append(out, phrase(128 + (c >> 2) * 256 + in.u8()), limit);
        } else if ((c & 7) == 3) {
            Append(out, in.bytes(std::min<std::int64_t>((c >> 3) + 1, static_cast<std::int64_t>(in.left()))), limit);
        } else {
            Append(out, std::string((c >> 4) + 1, (c & 8) == 0 ? ' ' : '\0'), limit);
        }
    }
}

}  // namespace vexa::topics
