// Small types that the reader, the pictures and the layout of help files share.
#pragma once

#include <cstdint>

namespace vexa::topics {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    bool operator==(const Colour&) const = default;
};

// Width and height in pixels.
struct Extent {
    int width = 0;
    int height = 0;

    bool operator==(const Extent&) const = default;
};

// A box in pixels; right and bottom lie outside.
struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
    bool operator==(const Box&) const = default;
};

}  // namespace vexa::topics
