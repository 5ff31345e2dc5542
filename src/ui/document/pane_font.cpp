#include "ui/document/pane_font.h"

#include <algorithm>
#include <cstring>

#include "framework/dpi.h"

namespace vexa {
namespace {

constexpr const char* kFallbackFace = "Courier New";
constexpr BYTE kFamilyMask = 0xF0;

bool IsFixedPitch(const TEXTMETRICA& metrics) {
    // The system's flag says the opposite of its name.
    return !(metrics.tmPitchAndFamily & TMPF_FIXED_PITCH);
}

PaneFont Measured(FontHandle font, const TEXTMETRICA& metrics) {
    const int width = std::max<LONG>(metrics.tmAveCharWidth, 1);
    const int height = std::max<LONG>(metrics.tmHeight + metrics.tmExternalLeading, 1);
    return {std::move(font), width, height};
}

// Metrics are those of a font where it will be used.
template <class MetricsOfFont>
PaneFont MakeFixedPitch(LOGFONTA description, MetricsOfFont metricsOf) {
    FontHandle font(CreateFontIndirectA(&description));
    TEXTMETRICA metrics = metricsOf(font.get());
    if (!IsFixedPitch(metrics)) {
        std::strcpy(description.lfFaceName, kFallbackFace);
        description.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
        font.reset(CreateFontIndirectA(&description));
        metrics = metricsOf(font.get());
    }
    return Measured(std::move(font), metrics);
}

}  // namespace

LOGFONTA DescribeFont(const FontDetails& details, int dpi) {
    LOGFONTA description{};
    description.lfHeight = Scaled(details.Height, dpi);
    description.lfWidth = Scaled(details.Width, dpi);
    description.lfWeight = details.Weight;
    description.lfItalic = details.Italic;
    description.lfUnderline = details.Underline;
    description.lfStrikeOut = details.StrikeOut;
    // Bitmap fonts are crisp at the resolution they were drawn for and ragged at any other.
    description.lfOutPrecision = dpi == kNormalDpi ? OUT_DEFAULT_PRECIS : OUT_TT_ONLY_PRECIS;
    description.lfPitchAndFamily = static_cast<BYTE>(FIXED_PITCH | (details.Family & kFamilyMask));
    std::memcpy(description.lfFaceName, details.Face.data(), std::min(details.Face.size(), kFaceLimit));
    return description;
}

FontDetails DetailsOf(const LOGFONTA& description, int dpi) {
    FontDetails details;
    details.Height = MulDiv(description.lfHeight, kNormalDpi, dpi);
    details.Width = MulDiv(description.lfWidth, kNormalDpi, dpi);
    details.Weight = description.lfWeight;
    details.Italic = description.lfItalic != 0;
    details.Underline = description.lfUnderline != 0;
    details.StrikeOut = description.lfStrikeOut != 0;
    details.Family = description.lfPitchAndFamily & kFamilyMask;
    details.Face = description.lfFaceName;
    return details;
}

PaneFont MakePaneFont(const FontDetails& details, HWND window) {
    return MakeFixedPitch(DescribeFont(details, DpiOf(window)),
                          [window](HFONT font) { return MetricsOf(window, font); });
}

PaneFont MakePaperFont(const FontDetails& details, HDC dc) {
    LOGFONTA description = DescribeFont(details, GetDeviceCaps(dc, LOGPIXELSY));
    description.lfOutPrecision = OUT_TT_ONLY_PRECIS;  // at any resolution: paper is no screen
    return MakeFixedPitch(description, [dc](HFONT font) {
        const Selected selected(dc, font);
        TEXTMETRICA metrics{};
        GetTextMetricsA(dc, &metrics);
        return metrics;
    });
}

}  // namespace vexa
