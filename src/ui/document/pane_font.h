// The font of the edit view as the screen has it.
#pragma once

#include "framework/gdi.h"
#include "ui/document/font_details.h"

namespace vexa {

struct PaneFont {
    FontHandle font;
    int cellWidth = 1;  // pixels, as is the height
    int cellHeight = 1;
};

// The font nearest to the details that has one width for all characters, at the resolution of the window's monitor.
PaneFont MakePaneFont(const FontDetails& details, HWND window);
// The like for a device context, as that of a printer, in its dots.
PaneFont MakePaperFont(const FontDetails& details, HDC dc);

// What the system's font dialog starts with and answers, at a resolution.
LOGFONTA DescribeFont(const FontDetails& details, int dpi);
FontDetails DetailsOf(const LOGFONTA& description, int dpi);

}  // namespace vexa
