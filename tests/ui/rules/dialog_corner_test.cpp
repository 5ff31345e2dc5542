#include "ui/dialogs/dialog_corner.h"

#include <gtest/gtest.h>

namespace vexa {
namespace {

TEST(DialogPlace, ADialogGoesToTheNearestSideOfTheMatchThatHasRoom) {
    const ScreenArea screen{0, 0, 800, 600};
    const ScreenArea dialog{300, 200, 500, 300};
    struct Case {
        ScreenArea match;
        ScreenArea screen;
        std::optional<ScreenCorner> corner;
    };
    const Case cases[] = {
        {{0, 100, 300, 116}, screen, std::nullopt},
        {{200, 300, 400, 316}, screen, std::nullopt},
        {{250, 240, 400, 256}, screen, ScreenCorner{300, 264}},
        {{499, 299, 900, 315}, screen, ScreenCorner{300, 323}},
        {{250, 240, 400, 256}, {0, 0, 800, 363}, ScreenCorner{300, 132}},
        {{250, 240, 400, 256}, {0, 140, 800, 363}, ScreenCorner{408, 200}},
        {{250, 240, 400, 256}, {0, 140, 600, 363}, ScreenCorner{42, 200}},
        {{150, 240, 450, 256}, {0, 140, 600, 363}, std::nullopt},
    };
    for (const Case& one : cases)
        EXPECT_EQ(CornerClearOf(one.match, dialog, one.screen), one.corner)
            << one.match.left << " " << one.screen.bottom;
}

}  // namespace
}  // namespace vexa
