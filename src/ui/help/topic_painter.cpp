#include "ui/help/topic_painter.h"

#include <algorithm>
#include <cstdlib>

namespace vexa {
namespace {

constexpr COLORREF kLinkColour = RGB(0, 128, 0);
constexpr int kHotlightColour = 26;  // of the system, from Windows 98 on
constexpr std::uint32_t kWhite = 0x00FFFFFF;

struct MetafileTraits {
    using Value = HMETAFILE;
    static void Close(HMETAFILE metafile) { DeleteMetaFile(metafile); }
};
using MetafileHandle = Handle<MetafileTraits>;

bool HasHighContrast() {
    HIGHCONTRASTA contrast{};
    contrast.cbSize = sizeof(contrast);
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

RECT Moved(const topics::Box& box, POINT origin) {
    return {origin.x + box.left, origin.y + box.top, origin.x + box.right, origin.y + box.bottom};
}

bool Meets(const RECT& a, const RECT& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

COLORREF ColourRef(const topics::Colour& colour) {
    return RGB(colour.red, colour.green, colour.blue);
}

// In 255ths.
int Brightness(COLORREF colour) {
    return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

// Whether a text can be read on a background.
bool StandsOut(COLORREF text, COLORREF background) {
    constexpr int kLeast = 48;
    return std::abs(Brightness(text) - Brightness(background)) >= kLeast;
}

std::uint32_t PixelOf(COLORREF colour) {
    return static_cast<std::uint32_t>(GetRValue(colour) << 16 | GetGValue(colour) << 8 | GetBValue(colour));
}

// Escapes reach into the printer driver and can name functions to be called; no picture needs them.
int CALLBACK PlayRecord(HDC dc, HANDLETABLE* handles, METARECORD* record, int count, LPARAM) {
    if (record->rdFunction != META_ESCAPE) PlayMetaFileRecord(dc, handles, record, static_cast<UINT>(count));
    return 1;
}

}  // namespace

TopicColours ScreenColours(bool isPopUp, const std::optional<topics::Colour>& background) {
    const bool isHigh = HasHighContrast();
    TopicColours colours = {GetSysColor(isPopUp ? COLOR_INFOTEXT : COLOR_WINDOWTEXT),
                            GetSysColor(isPopUp ? COLOR_INFOBK : COLOR_WINDOW),
                            isHigh ? GetSysColor(kHotlightColour) : kLinkColour, !isHigh};
    if (isHigh || !background) return colours;
    colours.background = ColourRef(*background);
    if (!StandsOut(colours.text, colours.background)) colours.text ^= RGB(255, 255, 255);
    return colours;
}

void TopicPainter::draw(const topics::LaidRegion& region, POINT origin, const RECT& visible) {
    SetBkMode(dc_, TRANSPARENT);
    for (const topics::Box& rule : region.rules) {
        const RECT box = Moved(rule, origin);
        if (Meets(box, visible)) FillColour(dc_, box, colours_.text);
    }
    SetBkMode(dc_, TRANSPARENT);
    for (const topics::LaidRun& run : region.runs) {
        const RECT box = Moved(run.box, origin);
        if (!Meets(box, visible)) continue;
        if (run.picture >= 0) {
            drawPicture(source_.topic.pictures[static_cast<std::size_t>(run.picture)], box);
        } else {
            drawText(run, box, static_cast<int>(origin.y) + run.baseline);
        }
    }
}

// The author has chosen it for a background that may not be the one shown.
COLORREF TopicPainter::colourOf(const topics::HelpFont& font) const {
    if (!font.colour || !colours_.areAuthors) return colours_.text;
    const COLORREF colour = ColourRef(*font.colour);
    return StandsOut(colour, colours_.background) ? colour : colours_.text;
}

void TopicPainter::drawText(const topics::LaidRun& run, const RECT& box, int baseline) {
    const topics::HelpFont& font = source_.file.font(run.font);
    const topics::Link* link = run.link < 0 ? nullptr : &source_.topic.links[static_cast<std::size_t>(run.link)];
    const bool isMarked = link && link->isMarked;
    const COLORREF colour = isMarked ? colours_.link : colourOf(font);
    const std::string_view text =
        std::string_view(source_.topic.paragraphs[run.paragraph].text).substr(run.begin, run.length);
    const Selected selected(dc_, device_.fontOf(font));
    SetTextColor(dc_, colour);
    SetTextAlign(dc_, TA_LEFT | TA_BASELINE);
    ExtTextOutA(dc_, box.left, baseline, 0, nullptr, text.data(), static_cast<UINT>(text.size()), nullptr);
    SetTextAlign(dc_, TA_LEFT | TA_TOP);
    if (isMarked) underline(box, baseline + 1, link->action == topics::LinkAction::PopUp, colour);
}

void TopicPainter::underline(const RECT& box, int y, bool isDotted, COLORREF colour) {
    const int thickness = MulDiv(1, device_.dpi(), 96);
    const LONG length = isDotted ? thickness : box.right - box.left;
    for (LONG x = box.left; x < box.right; x += 2 * length)
        FillColour(dc_, {x, y, x + length, y + thickness}, colour);
    SetBkMode(dc_, TRANSPARENT);
}

// ---- pictures ----------------------------------------------------------------------------------------------------

void TopicPainter::drawPicture(const topics::PictureUse& use, const RECT& box) {
    if (use.isButton) return drawButton(use, box);
    const topics::Picture& picture = device_.pictureOf(use);
    if (!picture.pixels.empty()) {
        drawPixels(picture, box);
    } else if (!picture.metafile.empty()) {
        playMetafile(picture, box);
    } else {
        DrawFocusRect(dc_, &box);
    }
}

void TopicPainter::drawButton(const topics::PictureUse& use, RECT box) {
    DrawFrameControl(dc_, &box, DFC_BUTTON, DFCS_BUTTONPUSH);
    const Selected selected(dc_, device_.fontOf(ButtonFont()));
    SetTextColor(dc_, GetSysColor(COLOR_BTNTEXT));
    DrawTextA(dc_, use.label.c_str(), static_cast<int>(use.label.size()), &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

void TopicPainter::drawPixels(const topics::Picture& picture, const RECT& box) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = picture.extent.width;
    info.bmiHeader.biHeight = -picture.extent.height;  // the top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    std::vector<std::uint32_t> opaque;
    const std::uint32_t* pixels = picture.pixels.data();
    if (picture.isTransparent) {
        opaque = picture.pixels;
        std::ranges::replace(opaque, kWhite, PixelOf(colours_.background));
        pixels = opaque.data();
    }
    SetStretchBltMode(dc_, COLORONCOLOR);
    StretchDIBits(dc_, box.left, box.top, box.right - box.left, box.bottom - box.top, 0, 0, picture.extent.width,
                  picture.extent.height, pixels, &info, DIB_RGB_COLORS, SRCCOPY);
}

// What a metafile draws outside its box is cut off, and whatever it changes in the context is put back.
void TopicPainter::playMetafile(const topics::Picture& picture, const RECT& box) {
    const MetafileHandle metafile(SetMetaFileBitsEx(static_cast<UINT>(picture.metafile.size()),
                                                    reinterpret_cast<const BYTE*>(picture.metafile.data())));
    if (!metafile) return;
    const int saved = SaveDC(dc_);
    IntersectClipRect(dc_, box.left, box.top, box.right, box.bottom);
    SetMapMode(dc_, picture.mappingMode);
    SetViewportOrgEx(dc_, box.left, box.top, nullptr);
    SetViewportExtEx(dc_, box.right - box.left, box.bottom - box.top, nullptr);
    EnumMetaFile(dc_, metafile.get(), &PlayRecord, 0);
    RestoreDC(dc_, saved);
}

}  // namespace vexa
