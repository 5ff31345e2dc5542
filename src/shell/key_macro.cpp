#include "shell/key_macro.h"

#include <algorithm>

#include "base/scoped_flag.h"
#include "base/strings.h"
#include "shell/command_table.h"

namespace vexa {

namespace {

constexpr CommandId kMacroCommands[] = {CommandId::PlayMacro, CommandId::RecordMacro, CommandId::RepeatMacro};

}  // namespace

void KeyMacro::StartRecording(bool append) {
    if (recording_ || playing_) return;
    replacePending_ = !append;
    recording_ = true;
    stepCount_ = 0;
    notices_.status(LoadText(TextId::RecordingStarted), true, false);
}

void KeyMacro::StopRecording() {
    if (!recording_) return;
    recording_ = false;
    notices_.status(LoadText(stepCount_ > 0 ? TextId::RecordingComplete : TextId::RecordingCanceled), true, false);
}

void KeyMacro::toggleRecording() {
    if (recording_) {
        StopRecording();
    } else {
        StartRecording(false);
    }
}

void KeyMacro::RecordStep(const KeyMacroStep& step) {
    if (!recording_) return;
    if (replacePending_) steps_.clear();
    replacePending_ = false;
    steps_.push_back(step);
    ++stepCount_;
}

void KeyMacro::recordCommand(CommandId id) {
    if (!recording_ || std::ranges::find(kMacroCommands, id) != std::end(kMacroCommands)) return;
    const CommandRow* row = FindCommand(id);
    if (row && row->macro == MacroUse::Warns) {
        notices_.status(LoadText(TextId::CannotRecordAction), true, true);
    } else {
        RecordStep(id);
    }
}

bool KeyMacro::Play() {
    if (recording_) {
        notices_.status(LoadText(TextId::CannotPlayWhileRecording), true, true);
        return false;
    }
    if (playing_) return false;
    if (steps_.empty()) {
        notices_.status(LoadText(TextId::NoMacroRecorded), true, true);
        return false;
    }
    const ScopedFlag playing(playing_);
    notices_.status(LoadText(TextId::PlaybackStarted), false, false);
    const bool played = playSteps();
    if (played) notices_.status(LoadText(TextId::PlaybackComplete), false, false);
    return played;
}

// Nothing is recorded while a macro is played, so the steps do not change meanwhile.
bool KeyMacro::playSteps() {
    for (const KeyMacroStep& step : steps_) {
        playStep(step);
        target_.updateDisplay();
        if (notices_.pumpMessages()) return false;
    }
    return true;
}

void KeyMacro::playStep(const KeyMacroStep& step) {
    if (const auto* key = std::get_if<KeyEvent>(&step)) {
        target_.playKey(*key);
    } else if (const auto* message = std::get_if<MacroMessage>(&step)) {
        target_.playMessage(*message);
    } else {
        target_.playCommand(std::get<CommandId>(step));
    }
}

void KeyMacro::PlayRepeated(std::int32_t count) {
    while (count > 0 && Play())
        --count;
}

}  // namespace vexa
