#include "ui/document/click_rules.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

TEST(ClickRules, ThirdPressFollowsADoubleClickSoonAndNear) {
    constexpr ClickLimits kLimits{.time = 500, .width = 4, .height = 4};
    constexpr MouseClick kDouble{true, 10, 10, 0xFFFFFF00};  // the count begins anew behind it
    struct Case {
        MouseClick before, press;
        bool isThird;
    };
    const Case cases[] = {
        {kDouble, {false, 12, 8, 0xF0}, true},   {kDouble, {false, 10, 10, 0x200}, false},
        {kDouble, {false, 15, 10, 0xF0}, false}, {kDouble, {false, 10, 4, 0xF0}, false},
        {kDouble, {true, 10, 10, 0xF0}, false},  {{false, 10, 10, 0xFFFFFF00}, {false, 10, 10, 0xF0}, false},
    };
    for (const Case& c : cases) {
        TripleClick clicks;
        EXPECT_FALSE(clicks.isThird(c.before, kLimits));
        EXPECT_EQ(clicks.isThird(c.press, kLimits), c.isThird) << c.press.x << ' ' << c.press.y << ' ' << c.press.time;
        EXPECT_FALSE(clicks.isThird(c.press, kLimits)) << "a fourth press begins again";
    }
}

}  // namespace
}  // namespace vexa
