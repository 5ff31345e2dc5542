// The header of one form of a picture.
#pragma once

#include <cstdint>
#include <string_view>

#include "quickhelp/topics/help_types.h"

namespace vexa::topics {

enum class PictureType : std::uint8_t { None = 0, Device = 5, Bitmap = 6, Metafile = 8 };

struct PictureHeader {
    std::string_view bytes;  // from the header on; all offsets count from here
    PictureType type = PictureType::None;
    int packing = 0;
    int dpiX = 0;
    int dpiY = 0;
    int bits = 1;
    std::int64_t width = 0;  // in pixels; of a metafile in hundredths of a millimetre
    std::int64_t height = 0;
    std::uint32_t colours = 0;
    bool isTransparent = false;
    int mappingMode = 8;
    std::uint32_t unpackedSize = 0;  // of a metafile
    std::uint32_t packedSize = 0;
    std::uint32_t hotspotSize = 0;
    std::uint32_t packedOffset = 0;
    std::uint32_t hotspotOffset = 0;
    std::string_view palette;  // after the header

    std::string_view packed() const { return part(packedOffset, packedSize); }
    std::string_view hotspots() const { return part(hotspotOffset, hotspotSize); }
    std::string_view part(std::uint32_t offset, std::uint32_t size) const {
        return offset == 0 || offset > bytes.size() ? std::string_view() : bytes.substr(offset, size);
    }
    Extent shownAt(int dpi) const;
};

// The form that is nearest to the device's dots per inch, with the most colours
// of those; type None for damaged bytes.
PictureHeader ChoosePicture(std::string_view bytes, int dpi);

}  // namespace vexa::topics
