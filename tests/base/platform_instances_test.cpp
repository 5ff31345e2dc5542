// What the platform promises about other instances of the program, held to on every platform.
#include <gtest/gtest.h>

#include "base/platform.h"
#include "support/test_disk.h"

namespace vexa::platform {
namespace {

class PlatformInstances : public testing::Test {
  protected:
    void SetUp() override { DeleteGlobalMarker(marker); }
    void TearDown() override { DeleteGlobalMarker(marker); }

    test::TestDisk disk;
    const std::string marker = "VexaTestMarker";
};

TEST_F(PlatformInstances, AMarkerStaysUntilItHasBeenDeletedOfAllThatAddedIt) {
    EXPECT_FALSE(GlobalMarkerExists(marker));
    DeleteGlobalMarker(marker);
    EXPECT_TRUE(AddGlobalMarker(marker));
    EXPECT_TRUE(GlobalMarkerExists(marker));
    EXPECT_TRUE(AddGlobalMarker(marker));
    DeleteGlobalMarker(marker);
    EXPECT_FALSE(GlobalMarkerExists(marker));
    for (int n = 0; n < 8; ++n)
        AddGlobalMarker(marker);
    DeleteGlobalMarker(marker);
    EXPECT_TRUE(GlobalMarkerExists(marker)) << "six times and no more";
    DeleteGlobalMarker(marker);
    EXPECT_FALSE(GlobalMarkerExists(marker));
}

TEST_F(PlatformInstances, ABroadcastHasOneNumberAName) {
    const std::uint32_t message = RegisterBroadcast("VexaTestMessage");
    EXPECT_NE(message, 0u);
    EXPECT_EQ(RegisterBroadcast("VexaTestMessage"), message);
    EXPECT_NE(RegisterBroadcast("VexaTestMessage2"), message);
    EXPECT_TRUE(PostBroadcast(message));
    EXPECT_FALSE(PostBroadcast(0));
}

TEST_F(PlatformInstances, AFileNameIsParsedWithoutTheFile) {
    disk.makeDirectory("Sub");
    ASSERT_TRUE(ChangeDirectory(disk.path("Sub")));
    EXPECT_EQ(ParseFileName("a.c"), disk.path("Sub\\a.c"));
    EXPECT_EQ(ParseFileName("..\\a b.c"), disk.path("a b.c"));
    EXPECT_EQ(ParseFileName("a.c -l20"), disk.path("Sub\\a.c -l20"));
    EXPECT_EQ(ParseFileName("C:\\M\xFCll.c"), "C:\\M\xFCll.c") << "a letter above 127";
    EXPECT_EQ(ParseFileName(""), "");
    EXPECT_EQ(ParseFileName("C:\\" + std::string(124, 'x')), "C:\\" + std::string(124, 'x'));
    EXPECT_EQ(ParseFileName("C:\\" + std::string(125, 'x')), "");
}

TEST_F(PlatformInstances, TheClockCountsSecondsSince1970) {
    constexpr std::int64_t kIn2024 = 1'704'067'200;
    const std::int64_t now = CurrentSeconds();
    EXPECT_GT(now, kIn2024);
    EXPECT_GE(CurrentSeconds(), now);
    EXPECT_LE(CurrentSeconds(), now + 60);
}

}  // namespace
}  // namespace vexa::platform
