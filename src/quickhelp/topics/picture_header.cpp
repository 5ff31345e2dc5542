#include "quickhelp/topics/picture_header.h"

#include <algorithm>
#include <cstdlib>

#include "quickhelp/topics/byte_reader.h"

namespace vexa::topics {
namespace {

constexpr int kMagic = 0x506C;
constexpr int kOtherMagic = 0x706C;
constexpr int kMostForms = 64;
constexpr int kUsualDpi = 96;
constexpr std::int64_t kHundredthsPerInch = 2540;
constexpr std::int64_t kLongestSide = 32767;

void ReadBitmap(ByteReader& in, PictureHeader& header) {
    header.dpiX = static_cast<int>(in.packedUlong() & 0xFFFF);
    header.dpiY = static_cast<int>(in.packedUlong() & 0xFFFF);
    in.packedUshort();
    header.bits = in.packedUshort();
    header.width = in.packedUlong();
    header.height = in.packedUlong();
    header.colours = in.packedUlong();
    header.isTransparent = in.packedUlong() == 1;
}

void ReadMetafile(ByteReader& in, PictureHeader& header) {
    header.mappingMode = in.packedUshort();
    header.width = in.u16();
    header.height = in.u16();
    header.unpackedSize = in.packedUlong();
}

PictureHeader ReadHeader(std::string_view bytes) {
    PictureHeader header;
    ByteReader in(bytes);
    header.bytes = bytes;
    const auto type = static_cast<PictureType>(in.u8());
    header.packing = in.u8();
    const bool isMetafile = type == PictureType::Metafile;
    if (!isMetafile && type != PictureType::Device && type != PictureType::Bitmap) return header;
    isMetafile ? ReadMetafile(in, header) : ReadBitmap(in, header);
    header.packedSize = in.packedUlong();
    header.hotspotSize = in.packedUlong();
    header.packedOffset = in.u32();
    header.hotspotOffset = in.u32();
    if (in.failed()) return header;
    header.type = type;
    header.palette = in.bytes(static_cast<std::int64_t>(in.left()));
    return header;
}

// Smaller is better.
std::int64_t Misfit(const PictureHeader& header, int dpi) {
    if (header.type == PictureType::None) return INT64_MAX;
    const int own = header.dpiX == 0 ? kUsualDpi : header.dpiX;
    return std::int64_t{std::abs(own - dpi)} * 256 - header.bits;
}

int Scaled(std::int64_t pixels, int dpi, std::int64_t ownDpi) {
    return static_cast<int>(std::clamp<std::int64_t>(pixels * dpi / ownDpi, 1, kLongestSide));
}

}  // namespace

Extent PictureHeader::shownAt(int dpi) const {
    const bool isMetafile = type == PictureType::Metafile;
    const auto ownDpi = [isMetafile](int own) {
        return isMetafile ? kHundredthsPerInch : std::int64_t{own == 0 ? kUsualDpi : own};
    };
    return {Scaled(width, dpi, ownDpi(dpiX)), Scaled(height, dpi, ownDpi(dpiY))};
}

PictureHeader ChoosePicture(std::string_view bytes, int dpi) {
    ByteReader in(bytes);
    const int magic = in.u16();
    const int count = std::min<int>(in.u16(), kMostForms);
    PictureHeader best;
    if (magic != kMagic && magic != kOtherMagic) return best;
    for (int i = 0; i < count; ++i) {
        const std::uint32_t offset = in.u32();
        if (in.failed() || offset >= bytes.size()) continue;
        const PictureHeader form = ReadHeader(bytes.substr(offset));
        if (Misfit(form, dpi) < Misfit(best, dpi)) best = form;
    }
    return best;
}

}  // namespace vexa::topics
