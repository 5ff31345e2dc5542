#include "shell/key_macro.h"

#include <algorithm>

#include "base/scoped_flag.h"
#include "base/strings.h"

namespace vexa {

namespace {

constexpr CommandId kMacroCommands[] = {CommandId::PlayMacro, CommandId::RecordMacro, CommandId::RepeatMacro};

bool IsRefused(MacroUse use, CommandOrigin origin) {
    return use == MacroUse::Warns || (use == MacroUse::WarnsInMenu && origin == CommandOrigin::Menu);
}

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

void KeyMacro::recordCommand(CommandId id, CommandOrigin origin) {
    if (!recording_ || std::ranges::find(kMacroCommands, id) != std::end(kMacroCommands)) return;
    const CommandRow* row = FindCommand(id);
    if (row && IsRefused(row->macro, origin)) {
        refuseStep();
    } else {
        RecordStep(id);
    }
}

void KeyMacro::refuseStep() {
    if (recording_) notices_.status(LoadText(TextId::CannotRecordAction), true, true);
}

bool KeyMacro::mayPlay() {
    if (recording_) {
        notices_.status(LoadText(TextId::CannotPlayWhileRecording), true, true);
    } else if (!playing_ && steps_.empty()) {
        notices_.status(LoadText(TextId::NoMacroRecorded), true, true);
    }
    return !recording_ && !playing_ && !steps_.empty();
}

bool KeyMacro::Play() {
    if (!mayPlay()) return false;
    const ScopedFlag playing(playing_);
    isStopped_ = false;
    notices_.status(LoadText(TextId::PlaybackStarted), false, false);
    const Ending ending = playSteps();
    tell(ending);
    return ending == Ending::Complete;
}

// Nothing is recorded while a macro is played, so the steps do not change meanwhile.
KeyMacro::Ending KeyMacro::playSteps() {
    for (const KeyMacroStep& step : steps_) {
        if (!playStep(step)) return Ending::NoDocument;
        target_.updateDisplay();
        if (notices_.pumpMessages()) return Ending::ProgramEnds;
        if (isStopped_) return Ending::Stopped;
    }
    return Ending::Complete;
}

bool KeyMacro::playStep(const KeyMacroStep& step) {
    if (const auto* key = std::get_if<KeyEvent>(&step)) return target_.playKey(*key);
    if (const auto* id = std::get_if<CommandId>(&step)) return target_.playCommand(*id);
    target_.playMessage(std::get<MacroMessage>(step));
    return true;
}

void KeyMacro::tell(Ending ending) {
    if (ending == Ending::Complete) notices_.status(LoadText(TextId::PlaybackComplete), false, false);
    if (ending == Ending::Stopped) notices_.status(LoadText(TextId::PlaybackStopped), true, false);
    if (ending == Ending::NoDocument) notices_.status(LoadText(TextId::NeedsOpenFile), true, true);
}

void KeyMacro::PlayRepeated(std::int32_t count) {
    if (playing_) return;
    const ScopedFlag repeating(repeating_);
    while (count > 0 && Play())
        --count;
}

}  // namespace vexa
