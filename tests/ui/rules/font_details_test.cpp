#include "ui/document/font_details.h"

#include <gtest/gtest.h>

#include "support/test_disk.h"

namespace vexa {
namespace {

FontDetails Loaded(const test::TestDisk& disk, const std::string& section) {
    disk.put("VEXA.INI", "[Font Details]\r\n" + section);
    FontDetails details;
    details.Load(ConfigStore(disk.path("VEXA.INI")));
    return details;
}

TEST(FontDetails, MissingSettingsGiveTheDefaultFont) {
    const test::TestDisk disk;
    const FontDetails details = Loaded(disk, "");
    EXPECT_EQ(details.Face, "Courier");
    EXPECT_EQ(details.Height, -13);
    EXPECT_FALSE(details.Italic);
}

TEST(FontDetails, SettingsAreTakenAndAbsurdSizesAreNot) {
    const test::TestDisk disk;
    const FontDetails good = Loaded(disk, "Height=-20\r\nWeight=700\r\nItalic=1\r\nFace=Lucida Console\r\n");
    EXPECT_EQ(good.Height, -20);
    EXPECT_EQ(good.Weight, 700);
    EXPECT_TRUE(good.Italic);
    EXPECT_EQ(good.Face, "Lucida Console");
    for (const char* height : {"0", "-2147483648", "3", "100000", "huge"}) {
        const FontDetails absurd = Loaded(disk, "Height=" + std::string(height) + "\r\nWidth=-5\r\nWeight=99999\r\n");
        EXPECT_EQ(absurd.Height, -13) << height;
        EXPECT_EQ(absurd.Width, 0);
        EXPECT_EQ(absurd.Weight, 400);
    }
    EXPECT_EQ(Loaded(disk, "Face=" + std::string(300, 'x')).Face, std::string(31, 'x'));
}

TEST(FontDetails, ZoomIsTakenBackAlsoInALaterSession) {
    const test::TestDisk disk;
    FontDetails details = Loaded(disk, "Height=-20\r\nWidth=9\r\n");
    details.resetZoom();
    EXPECT_EQ(details.Height, -20);
    details.zoom(2);
    details.zoom(3);
    ConfigStore store(disk.path("VEXA.INI"));
    details.Save(store);
    details.Load(store);
    EXPECT_EQ(details.Height, -25);
    details.resetZoom();
    EXPECT_EQ(details.Height, -20);
    EXPECT_EQ(details.Width, 9);
    details.Save(store);
    details.Load(store);
    details.resetZoom();
    EXPECT_EQ(details.Height, -20);
    EXPECT_EQ(Loaded(disk, "Height=-20\r\nHeightBeforeZoom=1\r\n").HeightBeforeZoom, 0);
}

}  // namespace
}  // namespace vexa
