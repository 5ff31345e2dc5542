// Pictures of help files, from bytes that the tests make.
#include "quickhelp/topics/picture.h"

#include <gtest/gtest.h>

#include "quickhelp/topics/made_help_file.h"

namespace vexa::topics {
namespace {

using namespace std::string_literals;
using test::Number;

std::string PackedUlong(int value) {
    return Number(value * 2, 2);
}

// One form of a picture of the given width and height; palette, data and hotspots follow its header.
std::string Form(int type, int packing, int bits, Extent extent, const std::string& palette, const std::string& data,
                 const std::string& hotspots = "") {
    const int headerSize = 28;
    const auto dataAt = static_cast<std::int64_t>(headerSize + palette.size());
    const std::string header = Number(type, 1) + Number(packing, 1) + PackedUlong(0) + PackedUlong(0) + Number(2, 1) +
                               Number(bits * 2, 1) + PackedUlong(extent.width) + PackedUlong(extent.height) +
                               PackedUlong(0) + PackedUlong(0) + PackedUlong(static_cast<int>(data.size())) +
                               PackedUlong(static_cast<int>(hotspots.size())) + Number(dataAt, 4) +
                               Number(dataAt + static_cast<std::int64_t>(data.size()), 4);
    return header + palette + data + hotspots;
}

std::string PictureOf(const std::string& form) {
    return "lP"s + Number(1, 2) + Number(8, 4) + form;
}

struct PackedCase {
    int packing;
    std::string data;
};

// Two rows of two pixels, the lower row first: 1 0, then 0 1; four bytes a row.
TEST(Picture, EveryPackingGivesThePixels) {
    const std::string palette = "\x00\x00\xFF\x00"s + "\x30\x20\x10\x00"s;
    const PackedCase cases[] = {
        {0, "\x80\x00\x00\x00\x40\x00\x00\x00"s},     {1, "\x81\x80\x03\x00\x81\x40\x03\x00"s},
        {2, "\x00\x80\x00\x00\x00\x40\x00\x00\x00"s}, {2, "\x20\x80\x00\x00\x00\x40\x00\x00"s},
        {3, "\x00\x81\x80\x03\x00\x81\x40\x03\x00"s}, {2, "\x0A\x80\x00\x00\x40\x00\x00"s},
    };
    for (const PackedCase& c : cases) {
        const Picture picture = DecodePicture(PictureOf(Form(6, c.packing, 1, {2, 2}, palette, c.data)), 96);
        EXPECT_EQ(picture.pixels, (std::vector<std::uint32_t>{0xFF0000, 0x102030, 0x102030, 0xFF0000})) << c.packing;
        EXPECT_EQ(picture.extent, (Extent{2, 2}));
    }
}

TEST(Picture, OldBitmapsBeginWithTheTopRow) {
    const Picture picture = DecodePicture(PictureOf(Form(5, 0, 1, {2, 2}, "", "\x80\x00\x40\x00"s)), 192);
    EXPECT_EQ(picture.pixels, (std::vector<std::uint32_t>{0xFFFFFF, 0, 0, 0xFFFFFF}));
    EXPECT_EQ(picture.shown, (Extent{4, 4}));
}

TEST(Picture, MetafilesAreHandedOn) {
    const std::string form = "\x08\x00\x10"s + Number(2540, 2) + Number(1270, 2) + PackedUlong(4) + PackedUlong(4) +
                             PackedUlong(0) + Number(21, 4) + Number(0, 4) + "meta"s;
    const Picture picture = DecodePicture(PictureOf(form), 96);
    EXPECT_EQ(picture.metafile, "meta");
    EXPECT_EQ(picture.mappingMode, 8);
    EXPECT_EQ(picture.shown, (Extent{96, 48}));
}

TEST(Picture, HasHotspots) {
    const std::string spots = "\x01"s + Number(2, 2) + Number(0, 4) + "\xE7\x04\x00"s + Number(1, 2) + Number(2, 2) +
                              Number(3, 2) + Number(4, 2) + Number(77, 4) + "\xEF\x04\x00"s + Number(0, 2) +
                              Number(0, 2) + Number(1, 2) + Number(1, 2) + Number(0, 4) +
                              "a\0ctx\0b\0contents>main@other.hlp\0"s;
    const std::string bytes = PictureOf(Form(6, 0, 24, {1, 1}, "", "\x01\x02\x03\x00"s, spots));
    EXPECT_EQ(DecodePicture(bytes, 96).pixels, std::vector<std::uint32_t>{0x030201});
    const std::vector<PictureHotspot> found = PictureHotspots(bytes);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].box, (Box{1, 2, 4, 6}));
    EXPECT_EQ(found[0].link.context, 77);
    EXPECT_FALSE(found[0].link.isMarked);
    EXPECT_EQ(found[1].link.context, 0x25F4558A);
    EXPECT_EQ(found[1].link.window + "@" + found[1].link.file, "main@other.hlp");
}

TEST(Picture, DamageGivesNoMoreThanWhatIsThere) {
    EXPECT_TRUE(DecodePicture("", 96).pixels.empty());
    EXPECT_EQ(PictureExtent("lP\x01", 96), (Extent{16, 16}));
    EXPECT_TRUE(DecodePicture(PictureOf(Form(6, 0, 8, {16000, 16000}, "", "")), 96).pixels.empty());
    const std::string cut = PictureOf(Form(6, 0, 24, {1, 3}, "", "\x01\x02\x03\x00"s));
    EXPECT_EQ(DecodePicture(cut, 96).pixels, (std::vector<std::uint32_t>{0, 0, 0x030201}));
}

}  // namespace
}  // namespace vexa::topics
