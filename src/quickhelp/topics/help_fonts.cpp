#include "quickhelp/topics/help_fonts.h"

#include <algorithm>
#include <cstdlib>

#include "base/ascii.h"
#include "quickhelp/topics/byte_reader.h"

namespace vexa::topics {
namespace {

constexpr int kDefaultCharset = 1;
constexpr int kSymbolCharset = 2;
constexpr std::string_view kSymbolFaces[] = {"Symbol", "Wingdings", "ZapfDingbats", "MT Extra"};

struct Face {
    std::string name;
    int charset = kDefaultCharset;
};

int CharsetOf(std::string_view face, std::size_t index, const HelpSystem& system) {
    const auto isFace = [face](std::string_view other) { return EqualIgnoringCase(face, other); };
    if (std::ranges::any_of(kSymbolFaces, isFace)) return kSymbolCharset;
    return index < system.faceCharsets.size() ? system.faceCharsets[index] : kDefaultCharset;
}

std::vector<Face> ReadFaces(std::string_view file, std::size_t count, std::size_t start, std::size_t end,
                            const HelpSystem& system) {
    std::vector<Face> faces;
    const std::size_t size = count == 0 || end < start ? 0 : (end - start) / count;
    for (std::size_t i = 0; i < count && size > 0 && start + size <= file.size(); ++i, start += size) {
        const std::string_view name = FixedText(file.substr(start, size));
        faces.push_back({std::string(name), CharsetOf(name, i, system)});
    }
    return faces;
}

// Black one shade off means the colour of the window's text.
std::optional<Colour> ReadColour(ByteReader& in) {
    const Colour colour = {in.u8(), in.u8(), in.u8()};
    return colour == Colour{1, 1, 0} ? std::nullopt : std::optional(colour);
}

void SetFace(HelpFont& font, int index, const std::vector<Face>& faces) {
    if (index < 0 || static_cast<std::size_t>(index) >= faces.size()) return;
    font.face = faces[static_cast<std::size_t>(index)].name;
    font.charset = faces[static_cast<std::size_t>(index)].charset;
}

HelpFont ReadShort(ByteReader& in, const std::vector<Face>& faces) {
    HelpFont font;
    const unsigned attributes = in.u8();
    font.bold = (attributes & 1) != 0;
    font.italic = (attributes & 2) != 0;
    font.underline = (attributes & 4) != 0;
    font.strikeOut = (attributes & 8) != 0;
    font.doubleUnderline = (attributes & 0x10) != 0;
    font.smallCapitals = (attributes & 0x20) != 0;
    font.halfPoints = in.u8();
    font.family = static_cast<FontFamily>(std::min<int>(in.u8(), static_cast<int>(FontFamily::Decorative)));
    SetFace(font, in.u16(), faces);
    font.colour = ReadColour(in);
    in.skip(3);
    return font;
}

// The media viewer's form; its heights are in twips, ten to the half point, negative for the characters alone.
HelpFont ReadLong(ByteReader& in, const std::vector<Face>& faces, bool hasLeadingByte) {
    HelpFont font;
    in.skip(hasLeadingByte ? 1 : 0);
    SetFace(font, in.i16(), faces);
    in.skip(hasLeadingByte ? 0 : 4);
    font.colour = ReadColour(in);
    in.skip(hasLeadingByte ? 8 : 3);
    const std::int64_t height = in.i32();
    font.halfPoints = static_cast<int>(std::clamp<std::int64_t>(std::abs(height) / 10, 1, 255));
    in.skip(12);
    font.bold = in.i16() > 550;
    in.skip(2);
    font.italic = in.u8() != 0;
    font.underline = in.u8() != 0;
    font.strikeOut = in.u8() != 0;
    font.doubleUnderline = in.u8() != 0;
    font.smallCapitals = in.u8() != 0;
    in.skip(2);
    font.family = static_cast<FontFamily>(std::min(in.u8() >> 4, static_cast<int>(FontFamily::Decorative)));
    in.skip(hasLeadingByte ? 0 : 2);
    return font;
}

}  // namespace

std::vector<HelpFont> ReadFonts(std::string_view file, const HelpSystem& system) {
    ByteReader in(file);
    const std::size_t faceCount = in.u16();
    const std::size_t count = in.u16();
    const std::size_t facesStart = in.u16();
    const std::size_t start = in.u16();
    if (in.failed() || start > file.size()) return {};
    const std::vector<Face> faces = ReadFaces(file, faceCount, facesStart, start, system);
    std::vector<HelpFont> fonts;
    ByteReader descriptors(file.substr(start));
    for (std::size_t i = 0; i < count; ++i) {
        HelpFont font = facesStart < 12 ? ReadShort(descriptors, faces) : ReadLong(descriptors, faces, facesStart < 16);
        if (descriptors.failed()) break;
        fonts.push_back(std::move(font));
    }
    return fonts;
}

}  // namespace vexa::topics
