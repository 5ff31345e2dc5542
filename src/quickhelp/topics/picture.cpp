#include "quickhelp/topics/picture.h"

#include <algorithm>

#include "quickhelp/topics/byte_reader.h"
#include "quickhelp/topics/picture_header.h"
#include "quickhelp/topics/topic_index.h"
#include "quickhelp/topics/unpack.h"

namespace vexa::topics {
namespace {

constexpr int kScreenDpi = 96;
constexpr Extent kFrame = {16, 16};
constexpr std::uint32_t kBlackAndWhite[] = {0x000000, 0xFFFFFF};
constexpr std::size_t kMostHotspots = 4096;

std::string Unpacked(const PictureHeader& header, std::size_t limit) {
    const std::string_view packed = header.packed();
    if (header.packing == 0) return std::string(packed.substr(0, limit));
    if (header.packing == 1) return UnpackRuns(packed, limit);
    if (header.packing == 2) return UnpackLz77(packed, limit);
    return header.packing == 3 ? UnpackRuns(UnpackLz77(packed, limit * 2), limit) : std::string();
}

std::vector<std::uint32_t> PaletteOf(const PictureHeader& header) {
    const std::size_t count = std::size_t{1} << header.bits;
    std::vector<std::uint32_t> palette(std::begin(kBlackAndWhite), std::end(kBlackAndWhite));
    palette.resize(count);
    if (header.type == PictureType::Device) return palette;
    ByteReader in(header.palette);
    const std::size_t used = header.colours == 0 ? count : std::min<std::size_t>(header.colours, count);
    for (std::size_t i = 0; i < used; ++i)
        palette[i] = in.u32() & 0xFFFFFF;
    return palette;
}

// One row of up to 8 bits a pixel, the highest bits first.
void DecodeIndexed(std::string_view row, int bits, const std::vector<std::uint32_t>& palette, std::uint32_t* out,
                   std::size_t width) {
    const unsigned mask = (1U << bits) - 1;
    for (std::size_t x = 0; x < width; ++x) {
        const std::size_t bit = x * static_cast<std::size_t>(bits);
        if (bit / 8 >= row.size()) return;
        const unsigned shift = 8 - static_cast<unsigned>(bits) - bit % 8;
        out[x] = palette[static_cast<unsigned char>(row[bit / 8]) >> shift & mask];
    }
}

void DecodeTrue(std::string_view row, std::uint32_t* out, std::size_t width) {
    ByteReader in(row);
    for (std::size_t x = 0; x < width && in.left() >= 3; ++x) {
        const std::uint32_t lower = in.u16();
        out[x] = lower | static_cast<std::uint32_t>(in.u8()) << 16;
    }
}

bool IsShowable(const PictureHeader& header) {
    const bool isDepth = header.bits == 1 || header.bits == 4 || header.bits == 8 || header.bits == 24;
    return isDepth && header.width > 0 && header.height > 0 && header.width <= kMostPixels / header.height;
}

// The rows of one kind begin with the lowest, those of the other with the
// highest.
void DecodeBitmap(const PictureHeader& header, Picture& picture) {
    if (!IsShowable(header)) return;
    const auto width = static_cast<std::size_t>(header.width);
    const auto height = static_cast<std::size_t>(header.height);
    const std::size_t padding = header.type == PictureType::Device ? 16 : 32;
    const std::size_t stride = (width * static_cast<std::size_t>(header.bits) + padding - 1) / padding * (padding / 8);
    const std::string data = Unpacked(header, stride * height);
    const std::vector<std::uint32_t> palette = header.bits <= 8 ? PaletteOf(header) : std::vector<std::uint32_t>();
    picture.extent = {static_cast<int>(width), static_cast<int>(height)};
    picture.pixels.assign(width * height, 0);
    for (std::size_t i = 0; i * stride < data.size() && i < height; ++i) {
        const std::size_t y = header.type == PictureType::Device ? i : height - 1 - i;
        const std::string_view row = std::string_view(data).substr(i * stride, stride);
        std::uint32_t* out = picture.pixels.data() + y * width;
        header.bits <= 8 ? DecodeIndexed(row, header.bits, palette, out, width) : DecodeTrue(row, out, width);
    }
}

// "name>window@file", of which the last two may lack. Links to other files have no hash beside it.
void SetTarget(std::string_view target, Link& link) {
    const std::size_t file = target.find('@');
    if (file != std::string_view::npos) link.file = target.substr(file + 1);
    target = target.substr(0, file);
    const std::size_t window = target.find('>');
    if (link.context == 0) link.context = HashOfContext(target.substr(0, window));
    if (window != std::string_view::npos) link.window = target.substr(window + 1);
}

PictureHotspot ReadHotspot(ByteReader& in) {
    PictureHotspot spot;
    const int kind = in.u8();
    in.skip(2);
    const int left = in.u16();
    const int top = in.u16();
    const int right = left + in.u16();
    spot.box = {left, top, right, top + in.u16()};
    spot.link.context = in.i32();
    spot.link.isMarked = (kind & 4) == 0;
    const bool isMacro = (kind & 0x20) == 0;
    spot.link.action = isMacro ? LinkAction::Macro : (kind & 1) != 0 ? LinkAction::Jump : LinkAction::PopUp;
    return spot;
}

std::vector<PictureHotspot> ReadHotspots(const PictureHeader& header) {
    std::vector<PictureHotspot> spots;
    ByteReader in(header.hotspots());
    in.skip(1);
    const std::size_t count = in.u16();
    const std::uint32_t macroSize = in.u32();
    for (std::size_t i = 0; i < std::min(count, kMostHotspots) && in.left() >= 15; ++i)
        spots.push_back(ReadHotspot(in));
    in.skip(macroSize);
    for (PictureHotspot& spot : spots) {
        in.text();
        const std::string_view target = in.text();
        if (spot.link.action == LinkAction::Macro) {
            spot.link.macro = target;
        } else {
            SetTarget(target, spot.link);
        }
    }
    return spots;
}

}  // namespace

Picture DecodePicture(std::string_view bytes, int dpi) {
    Picture picture;
    const PictureHeader header = ChoosePicture(bytes, dpi);
    picture.shown = PictureExtent(bytes, dpi);
    picture.isTransparent = header.isTransparent;
    picture.mappingMode = header.mappingMode;
    picture.hotspots = ReadHotspots(header);
    if (header.type == PictureType::Metafile) {
        picture.extent = picture.shown;
        picture.metafile = Unpacked(header, std::min<std::size_t>(header.unpackedSize, kLongestMetafile));
    } else if (header.type != PictureType::None) {
        DecodeBitmap(header, picture);
    }
    return picture;
}

Extent PictureExtent(std::string_view bytes, int dpi) {
    const PictureHeader header = ChoosePicture(bytes, dpi);
    return header.type == PictureType::None ? kFrame : header.shownAt(dpi);
}

std::vector<PictureHotspot> PictureHotspots(std::string_view bytes) {
    return ReadHotspots(ChoosePicture(bytes, kScreenDpi));
}

Extent PixelExtent(std::string_view bytes) {
    const PictureHeader header = ChoosePicture(bytes, kScreenDpi);
    const bool isBitmap = header.type != PictureType::Metafile;
    return isBitmap ? Extent{static_cast<int>(header.width & 0xFFFF), static_cast<int>(header.height & 0xFFFF)}
                    : header.shownAt(kScreenDpi);
}

}  // namespace vexa::topics
