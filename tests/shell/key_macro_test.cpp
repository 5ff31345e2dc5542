#include "shell/key_macro.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "document/view/edit_view.h"
#include "shell/command_dispatcher.h"
#include "shell/macro_repeat_model.h"
#include "support/recording_notices.h"

namespace vexa {
namespace {

using test::StatusNotice;

// A view whose keys and commands are recorded and played as the frame does it.
class KeyMacroTest : public testing::Test, private MacroTarget {
  protected:
    KeyMacroTest() {
        document_.newEmpty();
        dispatcher_.setRecorder([this](CommandId id, CommandOrigin origin) { macro_.recordCommand(id, origin); });
        dispatcher_.RegisterCommand(CommandId::SelectAll, [this](CommandId) { view_.selectAll(); });
        dispatcher_.RegisterCommand(CommandId::Undo, [this](CommandId) { view_.undo(); });
        dispatcher_.RegisterCommand(CommandId::PlayMacro, [this](CommandId) { macro_.Play(); });
        dispatcher_.RegisterCommand(CommandId::RecordMacro, [this](CommandId) { macro_.toggleRecording(); });
    }
    void press(KeyEvent event) {
        if (view_.key(event)) macro_.recordKey(event);
    }
    void press(std::uint16_t key, bool shift = false) { press(KeyEvent{.key = key, .shift = shift}); }
    void type(std::string_view text) {
        for (const char c : text)
            press(KeyEvent{.character = static_cast<unsigned char>(c)});
    }
    void run(std::uint16_t id, CommandOrigin origin = CommandOrigin::Menu) {
        dispatcher_.Dispatch(CommandId{id}, origin);
    }
    void record(std::string_view text) {
        macro_.StartRecording(false);
        type(text);
        macro_.StopRecording();
    }
    std::string text(int line = 0) const { return std::string(document_.text(LineIndex(line))); }
    StatusNotice last() const { return notices_.statuses.back(); }

    test::RecordingNotices notices_;
    EditorOptions options_;
    TextDocument document_{options_, notices_};
    EditView view_{document_, options_, notices_};
    bool hasDocument_ = true;
    CommandDispatcher dispatcher_{notices_, [this](CommandNeed) { return hasDocument_; }};
    KeyMacro macro_{*this, notices_};
    std::function<void()> duringPlayback_;
    std::vector<MacroMessage> messages_;
    int updates_ = 0;

  private:
    bool playKey(const KeyEvent& event) override {
        if (hasDocument_) press(event);
        return hasDocument_;
    }
    void playMessage(const MacroMessage& message) override { messages_.push_back(message); }
    bool playCommand(CommandId id) override { return dispatcher_.Dispatch(id, CommandOrigin::Step); }
    void updateDisplay() override {
        ++updates_;
        if (duringPlayback_) duringPlayback_();
    }
};

TEST_F(KeyMacroTest, WhatWasTypedIsTypedAgain) {
    run(426);
    EXPECT_EQ(last(), (StatusNotice{"Macro recording started", true, false}));
    type("ab");
    run(426);
    EXPECT_EQ(last(), (StatusNotice{"Macro recording complete", true, false}));
    const int pumps = notices_.pumpCount;
    run(425);
    EXPECT_EQ(text(), "abab");
    EXPECT_EQ(notices_.statuses[2], (StatusNotice{"Macro playback started", false, false}));
    EXPECT_EQ(last(), (StatusNotice{"Macro playback complete", false, false}));
    EXPECT_EQ(notices_.pumpCount - pumps, 2) << "after each step";
    EXPECT_EQ(updates_, 2);
}

TEST_F(KeyMacroTest, MovingMarkingDeletingAndCommandsArePlayedExactly) {
    type("one two three");
    press(kKeyHome);
    macro_.StartRecording(false);
    press(KeyEvent{.key = kKeyRight, .control = true});
    press(KeyEvent{.key = kKeyRight, .shift = true, .repeat = 2});
    press(kKeyDelete);
    press(kKeyEnter);
    macro_.RecordStep(MacroMessage{1, 2, 3, -4});
    macro_.StopRecording();
    EXPECT_EQ(text(1), "o three");
    EXPECT_TRUE(macro_.Play());
    EXPECT_EQ(text(0), "one ");
    EXPECT_EQ(text(1), "o ");
    EXPECT_EQ(text(2), "ree");
    EXPECT_EQ(messages_, std::vector<MacroMessage>({{1, 2, 3, -4}}));
}

TEST_F(KeyMacroTest, EachRecordedCommandRunsThroughTheDispatcher) {
    type("abc");
    run(426);
    run(312);
    press(kKeyDelete);
    press(kKeyHome);
    type("x");
    run(426);
    ASSERT_EQ(macro_.steps().size(), 4u);
    EXPECT_EQ(macro_.steps()[0], KeyMacroStep(CommandId::SelectAll));
    type("yz");
    run(425);
    EXPECT_EQ(text(), "x");
}

TEST_F(KeyMacroTest, CommandsThatNoMacroCanHoldWarnAndRun) {
    type("a");
    run(426);
    run(300);
    EXPECT_EQ(text(), "") << "undone all the same";
    EXPECT_EQ(last(), (StatusNotice{"You can't record this action as a macro!", true, true}));
    run(426);
    EXPECT_EQ(last().text, "Macro recording was canceled");
    run(300);
    EXPECT_NE(last().text, "You can't record this action as a macro!") << "only while recording";
    run(426);
    macro_.refuseStep();
    EXPECT_EQ(last().text, "You can't record this action as a macro!") << "a click of the mouse";
    EXPECT_TRUE(macro_.steps().empty());
}

TEST_F(KeyMacroTest, KeysOfEditingCommandsAreRecorded) {
    record("a");
    run(426);
    type("bc");
    run(300, CommandOrigin::Key);
    run(426);
    EXPECT_EQ(last().text, "Macro recording complete");
    run(425);
    EXPECT_EQ(text(), "abb") << "each undoes the c";
}

TEST_F(KeyMacroTest, RefusedCommandIsNoStepAndKeepsTheOldMacro) {
    record("ab");
    run(426);
    hasDocument_ = false;
    run(312);
    run(426);
    EXPECT_EQ(last().text, "Macro recording was canceled");
    EXPECT_EQ(macro_.steps().size(), 2u);
}

TEST_F(KeyMacroTest, PlaybackEndsWhereThereIsNoDocument) {
    const StatusNotice missing{"Action can only be performed on an open file!", true, true};
    record("ab");
    hasDocument_ = false;
    macro_.PlayRepeated(3);
    EXPECT_EQ(last(), missing);
    EXPECT_EQ(std::ranges::count(notices_.statuses, missing), 1);
    hasDocument_ = true;
    macro_.StartRecording(false);
    run(312);
    macro_.StopRecording();
    hasDocument_ = false;
    EXPECT_FALSE(macro_.Play());
    EXPECT_EQ(last(), missing);
}

TEST_F(KeyMacroTest, PlaybackIsStoppedAndARepeatedOneAlsoByASearchThatFails) {
    record("ab");
    const auto after = [this](int steps, std::function<void()> stop) {
        duringPlayback_ = [this, stop, end = updates_ + steps] { updates_ == end ? stop() : void(); };
    };
    const StatusNotice stopped{"Macro playback stopped.", true, false};
    after(3, [this] { macro_.stop(); });
    macro_.PlayRepeated(9999);
    EXPECT_EQ(text(), "ababa");
    EXPECT_EQ(last(), stopped);
    after(1, [this] { macro_.searchFailed(false); });
    macro_.PlayRepeated(9999);
    EXPECT_EQ(text(), "ababaa");
    EXPECT_EQ(last(), stopped);
    after(1, [this] { macro_.searchFailed(false); });
    EXPECT_TRUE(macro_.Play()) << "what follows the search still has its use";
    EXPECT_EQ(text(), "ababaaab");
    after(1, [this] { macro_.searchFailed(true); });
    EXPECT_FALSE(macro_.Play());
    EXPECT_EQ(last(), stopped);
}

TEST_F(KeyMacroTest, ACanceledRecordingKeepsTheOldMacro) {
    record("ab");
    run(426);
    run(426);
    EXPECT_EQ(last(), (StatusNotice{"Macro recording was canceled", true, false}));
    EXPECT_TRUE(macro_.Play());
    EXPECT_EQ(text(), "abab");
    record("c");
    macro_.Play();
    EXPECT_EQ(text(), "ababcc") << "the first step of a new one replaces it";
    macro_.StartRecording(true);
    type("d");
    macro_.StartRecording(false);
    macro_.StopRecording();
    macro_.Play();
    EXPECT_EQ(text(), "ababccdcd") << "or goes on behind it";
}

TEST_F(KeyMacroTest, NothingIsPlayedWhileRecordingOrWithoutAMacro) {
    EXPECT_FALSE(macro_.Play());
    EXPECT_EQ(last(), (StatusNotice{"No macro recorded!", true, true}));
    run(426);
    run(425);
    EXPECT_EQ(last(), (StatusNotice{"Can't playback macro while recording!", true, true}));
    run(426);
    EXPECT_EQ(last().text, "Macro recording was canceled") << "the attempt is no step";
}

TEST_F(KeyMacroTest, WhileAMacroPlaysNoneStartsOrIsRecorded) {
    record("ab");
    duringPlayback_ = [this] {
        const std::size_t told = notices_.statuses.size();
        EXPECT_FALSE(macro_.Play());
        run(426);
        EXPECT_FALSE(macro_.isRecording());
        EXPECT_EQ(notices_.statuses.size(), told);
    };
    EXPECT_TRUE(macro_.Play());
    EXPECT_FALSE(macro_.isPlaying());
    EXPECT_EQ(macro_.steps().size(), 2u);
}

TEST_F(KeyMacroTest, PlaybackStopsWhenTheProgramEnds) {
    record("abc");
    notices_.quitAtPump = notices_.pumpCount + 2;
    macro_.PlayRepeated(5);
    EXPECT_EQ(text(), "abcab");
    EXPECT_FALSE(macro_.isPlaying());
}

TEST_F(KeyMacroTest, RepeatedPlaybackPlaysUpToTheFirstFailure) {
    record("a");
    macro_.PlayRepeated(0);
    macro_.PlayRepeated(-3);
    EXPECT_EQ(text(), "a");
    macro_.PlayRepeated(3);
    EXPECT_EQ(text(), "aaaa");
    macro_.StartRecording(false);
    const std::size_t told = notices_.statuses.size();
    macro_.PlayRepeated(9999);
    EXPECT_EQ(notices_.statuses.size(), told + 1);
}

TEST(MacroRepeat, TakesOneToNinetyNineHundredAndNinetyNine) {
    test::RecordingNotices notices;
    MacroRepeatModel model;
    EXPECT_EQ(model.accept(notices), 1);
    for (const auto& [typed, count] : {std::pair("9999", 9999), std::pair(" 12 ", 12)}) {
        model.count = typed;
        EXPECT_EQ(model.accept(notices), count);
    }
    EXPECT_TRUE(notices.statuses.empty());
    for (const char* typed : {"0", "-1", "10000", "", "abc", "99999999999"}) {
        model.count = typed;
        EXPECT_EQ(model.accept(notices), std::nullopt) << typed;
    }
    EXPECT_EQ(notices.statuses.size(), 6u);
}

}  // namespace
}  // namespace vexa
