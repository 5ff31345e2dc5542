#include "ui/help/topic_device.h"

#include <algorithm>

namespace vexa {
namespace {

constexpr int kHalfPointsAnInch = 144;
constexpr std::size_t kMostPictures = 100;  // kept decoded
constexpr int kButtonEdges = 16;            // pixels at the normal resolution, both sides together

BYTE FamilyOf(topics::FontFamily family) {
    constexpr BYTE kFamilies[] = {FF_DONTCARE, FF_MODERN, FF_ROMAN, FF_SWISS, FF_SCRIPT, FF_DECORATIVE};
    return kFamilies[static_cast<std::size_t>(family)];
}

LOGFONTA Describe(const topics::HelpFont& font, int dpi) {
    LOGFONTA description{};
    description.lfHeight = -MulDiv(font.halfPoints, dpi, kHalfPointsAnInch);
    description.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    description.lfItalic = font.italic;
    description.lfUnderline = font.underline || font.doubleUnderline;
    description.lfStrikeOut = font.strikeOut;
    description.lfCharSet = static_cast<BYTE>(font.charset);
    description.lfPitchAndFamily = FamilyOf(font.family);
    font.face.copy(description.lfFaceName, LF_FACESIZE - 1);
    return description;
}

}  // namespace

const topics::HelpFont& ButtonFont() {
    static const topics::HelpFont font = [] {
        topics::HelpFont made;
        made.face = "MS Shell Dlg";
        made.halfPoints = 16;
        return made;
    }();
    return font;
}

void TopicDevice::begin(std::shared_ptr<const topics::HelpFile> file, int dpi) {
    fonts_.clear();
    pictures_.clear();
    file_ = std::move(file);
    dpi_ = dpi;
}

HFONT TopicDevice::fontOf(const topics::HelpFont& font) {
    FontHandle& made = fonts_[&font];
    if (!made) {
        const LOGFONTA description = Describe(font, dpi_);
        made.reset(CreateFontIndirectA(&description));
    }
    return made.get();
}

const topics::Picture& TopicDevice::pictureOf(const topics::PictureUse& use) {
    const auto known = pictures_.find(&use);
    if (known != pictures_.end()) return known->second;
    if (pictures_.size() >= kMostPictures) pictures_.clear();
    return pictures_[&use] = topics::DecodePicture(file_->pictureBytes(use), dpi_);
}

int TopicDevice::width(const topics::HelpFont& font, std::string_view text) {
    const Selected selected(dc_, fontOf(font));
    SIZE size{};
    GetTextExtentPoint32A(dc_, text.data(), static_cast<int>(text.size()), &size);
    return size.cx;
}

topics::FontHeight TopicDevice::height(const topics::HelpFont& font) {
    const Selected selected(dc_, fontOf(font));
    TEXTMETRICA metrics{};
    GetTextMetricsA(dc_, &metrics);
    return {metrics.tmAscent, metrics.tmDescent};
}

topics::Extent TopicDevice::pictureExtent(const topics::PictureUse& picture) {
    if (!picture.isButton) return topics::PictureExtent(file_->pictureBytes(picture), dpi_);
    const topics::FontHeight text = height(ButtonFont());
    const int edges = MulDiv(kButtonEdges, dpi_, 96);
    return {std::max(width(ButtonFont(), picture.label) + edges, edges), text.ascent + text.descent + edges / 2};
}

}  // namespace vexa
