// The keys that the main window carries out itself.
#include "shell/frame_keys.h"

#include <gtest/gtest.h>

#include "document/view/view_keys.h"
#include "shell/command_table.h"

namespace vexa {
namespace {

KeyEvent Control(std::uint16_t key) {
    KeyEvent event;
    event.key = key;
    event.control = true;
    return event;
}

TEST(FrameKeys, WorkWithControlAloneAndSomeOnlyInAText) {
    EXPECT_EQ(FrameActionOf(Control('E'), true), FrameAction::OpenInclude);
    EXPECT_EQ(FrameActionOf(Control('G'), true), FrameAction::ListFunctions);
    for (const char key : {'E', 'G'})
        EXPECT_EQ(FrameActionOf(Control(static_cast<std::uint16_t>(key)), false), std::nullopt) << key;
    for (const bool inText : {true, false})
        EXPECT_EQ(FrameActionOf(Control(0x75), inText), FrameAction::ToggleRegularExpression);
    KeyEvent shifted = Control('E');
    shifted.shift = true;
    EXPECT_EQ(FrameActionOf(shifted, true), std::nullopt);
    KeyEvent plain = Control('E');
    plain.control = false;
    EXPECT_EQ(FrameActionOf(plain, true), std::nullopt);
}

// The frame looks at its keys first, so that a second meaning would never be reached.
TEST(FrameKeys, AreNobodyElses) {
    for (const Accelerator& accelerator : Accelerators()) {
        KeyEvent event = Control(accelerator.key);
        event.control = accelerator.control;
        event.shift = accelerator.shift;
        event.alt = accelerator.alt;
        EXPECT_EQ(FrameActionOf(event, true), std::nullopt) << StatusTextOf(accelerator.id);
    }
    for (const FrameKeyHelp& own : FrameKeyList()) {
        for (const ViewKeyHelp& help : ViewKeyList())
            EXPECT_NE(help.key, own.key);
    }
}

}  // namespace
}  // namespace vexa
