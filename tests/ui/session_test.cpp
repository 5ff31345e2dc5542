// Where the frame stands at the next start.
#include <gtest/gtest.h>

#include "ui/editor.h"

namespace vexa::test {
namespace {

class SessionTest : public ::testing::Test {
  protected:
    static void end(const Editor& editor) {
        editor.requestClose();
        ASSERT_TRUE(editor.ends());
    }
    static RECT placeOf(const Editor& editor) {
        RECT place;
        GetWindowRect(editor.frame(), &place);
        return place;
    }

    TestFolder folder;
};

TEST_F(SessionTest, FrameStandsWhereItStood) {
    RECT kept;
    {
        const Editor editor(folder);
        SetWindowPos(editor.frame(), nullptr, 90, 70, 640, 420, SWP_NOZORDER);
        kept = placeOf(editor);
        end(editor);
    }
    {
        const Editor again(folder);
        const RECT place = placeOf(again);
        EXPECT_TRUE(EqualRect(&place, &kept));
        ShowWindow(again.frame(), SW_MAXIMIZE);
        ASSERT_TRUE(WaitUntil([&] { return IsZoomed(again.frame()); }));
        end(again);
    }
    EXPECT_NE(folder.get("vexa.INI").find("\r\nstate=3\r\n"), std::string::npos);
    const Editor last(folder);  // the state is only brought over when the options ask for it, the place always
    const RECT place = placeOf(last);
    EXPECT_FALSE(IsZoomed(last.frame()));
    EXPECT_TRUE(EqualRect(&place, &kept));
}

TEST_F(SessionTest, FrameIsNeverOffTheScreen) {
    for (const char* place : {"x=9000\r\ny=50\r\n", "x=-9000\r\ny=-9000\r\n"}) {
        folder.put("vexa.INI", std::string("[Frame Size]\r\n") + place + "cx=600\r\ncy=400\r\nstate=1\r\n");
        const Editor editor(folder);
        const RECT frame = placeOf(editor);
        const POINT caption{(frame.left + frame.right) / 2, frame.top + 10};
        EXPECT_TRUE(MonitorFromPoint(caption, MONITOR_DEFAULTTONULL)) << place;
    }
}

}  // namespace
}  // namespace vexa::test
