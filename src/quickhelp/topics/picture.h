// The pictures of a help file: bitmaps become plain pixels, metafiles stay as
// they are for the system to play.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "quickhelp/topics/help_types.h"
#include "quickhelp/topics/topic.h"

namespace vexa::topics {

// A larger bitmap is shown as an empty frame, and a longer metafile not at all.
inline constexpr std::int64_t kMostPixels = std::int64_t{16} << 20;
inline constexpr std::size_t kLongestMetafile = std::size_t{16} << 20;

// A part of a picture that is a link.
struct PictureHotspot {
    Box box;  // in pixels of the picture
    Link link;
};

struct Picture {
    Extent extent;                      // of the pixels; of a metafile at the dots per inch asked for
    Extent shown;                       // the size to show it at, at the dots per inch asked for
    std::vector<std::uint32_t> pixels;  // 0x00RRGGBB, top row first; none for a
                                        // metafile or a damaged picture
    bool isTransparent = false;         // white stands for the background
    std::string metafile;               // from its header on
    int mappingMode = 8;
    std::vector<PictureHotspot> hotspots;
};

// Of the forms of a picture the one that suits the device best. Damaged bytes
// give an empty picture or missing rows in black.
Picture DecodePicture(std::string_view bytes, int dpi);
// The size to show it at, without decoding it; the size of a small frame for
// bytes that are no picture.
Extent PictureExtent(std::string_view bytes, int dpi);
// Those of the form for ordinary screens, with the size that their boxes refer to.
std::vector<PictureHotspot> PictureHotspots(std::string_view bytes);
Extent PixelExtent(std::string_view bytes);

}  // namespace vexa::topics
