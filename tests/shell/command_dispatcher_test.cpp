#include "shell/command_dispatcher.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/recording_notices.h"

namespace vexa {
namespace {

class CommandDispatcherTest : public ::testing::Test {
  protected:
    CommandDispatcher::Handler note() {
        return [this](CommandId id) { ran.push_back(static_cast<int>(id)); };
    }

    test::RecordingNotices notices;
    bool hasWindow = false;
    bool hasDocument = false;
    std::vector<int> ran;
    CommandDispatcher dispatcher{
        notices, [this](CommandNeed need) { return need == CommandNeed::Window ? hasWindow : hasDocument; }};
};

TEST_F(CommandDispatcherTest, CommandWithoutAHandlerCannotRunAndSaysNothing) {
    EXPECT_FALSE(dispatcher.CanRun(CommandId::FileSave));
    EXPECT_FALSE(dispatcher.Dispatch(CommandId::FileSave));
    EXPECT_FALSE(dispatcher.Dispatch(CommandId::FileNew));
    EXPECT_TRUE(notices.statuses.empty());
}

TEST_F(CommandDispatcherTest, NumberThatIsNoCommandNeverRuns) {
    dispatcher.RegisterCommand(CommandId{703}, note());
    EXPECT_FALSE(dispatcher.Dispatch(CommandId{703}));
    EXPECT_TRUE(ran.empty());
}

TEST_F(CommandDispatcherTest, MissingDocumentIsToldAndNothingRuns) {
    for (const int id : {203, 300}) {
        dispatcher.RegisterCommand(CommandId{static_cast<std::uint16_t>(id)}, note());
        EXPECT_FALSE(dispatcher.Dispatch(CommandId{static_cast<std::uint16_t>(id)}));
        const test::StatusNotice told{"Action can only be performed on an open file!", true, true};
        EXPECT_EQ(notices.statuses.back(), told);
    }
    hasWindow = true;  // a list, say
    EXPECT_FALSE(dispatcher.Dispatch(CommandId::FileSave));
    EXPECT_EQ(notices.statuses.size(), 3u);
    EXPECT_TRUE(ran.empty());
}

TEST_F(CommandDispatcherTest, WindowCommandsAndOtherActiveWindowsAreIgnoredSilently) {
    dispatcher.RegisterCommand(CommandId::Cascade, note());
    EXPECT_FALSE(dispatcher.Dispatch(CommandId::Cascade));
    hasWindow = true;  // a window without a document
    dispatcher.RegisterCommand(CommandId::Cut, note());
    EXPECT_FALSE(dispatcher.Dispatch(CommandId::Cut));
    EXPECT_TRUE(notices.statuses.empty());
    EXPECT_TRUE(dispatcher.Dispatch(CommandId::Cascade));
    EXPECT_EQ(ran, std::vector<int>{601});
}

TEST_F(CommandDispatcherTest, SharedHandlerIsToldWhichCommandRuns) {
    hasWindow = hasDocument = true;
    for (const auto id : {std::uint16_t{436}, std::uint16_t{437}, std::uint16_t{203}})
        dispatcher.RegisterCommand(CommandId{id}, note());
    EXPECT_TRUE(dispatcher.Dispatch(CommandId::Tool6));
    EXPECT_TRUE(dispatcher.Dispatch(CommandId::FileSave));
    EXPECT_EQ(ran, (std::vector<int>{437, 203}));
}

TEST_F(CommandDispatcherTest, ToggleIsCheckedAsItsQuerySays) {
    bool shown = true;
    dispatcher.RegisterToggle(
        CommandId::ToggleStatusBar, [&](CommandId) { shown = !shown; }, [&] { return shown; });
    EXPECT_TRUE(dispatcher.IsChecked(CommandId::ToggleStatusBar));
    dispatcher.Dispatch(CommandId::ToggleStatusBar);
    EXPECT_FALSE(dispatcher.IsChecked(CommandId::ToggleStatusBar));
    EXPECT_FALSE(dispatcher.IsChecked(CommandId::ToggleToolBar));
}

TEST_F(CommandDispatcherTest, HandlerMayReplaceItselfWhileItRuns) {
    std::string order;
    dispatcher.RegisterCommand(CommandId::FileNew, [&, kept = std::string_view("first")](CommandId) {
        dispatcher.RegisterCommand(CommandId::FileNew, [&](CommandId) { order += "second"; });
        order += kept;
    });
    dispatcher.Dispatch(CommandId::FileNew);
    dispatcher.Dispatch(CommandId::FileNew);
    EXPECT_EQ(order, "firstsecond");
}

}  // namespace
}  // namespace vexa
