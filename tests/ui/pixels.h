// The colours that a window shows on the screen.
#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

namespace vexa::test {

inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kYellow = RGB(255, 255, 0);
inline constexpr COLORREF kCyan = RGB(0, 255, 255);
inline constexpr COLORREF kBlack = RGB(0, 0, 0);
inline constexpr COLORREF kGray = RGB(192, 192, 192);
inline constexpr COLORREF kDarkBlue = RGB(0, 0, 128);
inline constexpr COLORREF kDarkPurple = RGB(128, 0, 128);

// Waits until the window's lowest visible line, where no text is, has a colour; false when it never has.
bool ShowsBackground(HWND window, COLORREF colour);
// Waits until any pixel of the window's first line of text, in its first eighty columns of pixels, has a colour.
bool ShowsInFirstLine(HWND window, COLORREF colour);

// All that a window shows inside its frame, pixel by pixel.
std::vector<std::uint32_t> PixelsOf(HWND window);

}  // namespace vexa::test
