// The keyboard macro: keys, messages and commands recorded as they reach the active view, and played again on whatever
// view is then active.
#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "base/notices.h"
#include "document/key_event.h"
#include "shell/command_id.h"

namespace vexa {

// A window message, opaque to the macro.
struct MacroMessage {
    std::uintptr_t window = 0;
    std::uint32_t message = 0;
    std::uintptr_t first = 0;
    std::intptr_t second = 0;

    bool operator==(const MacroMessage&) const = default;
};

using KeyMacroStep = std::variant<KeyEvent, MacroMessage, CommandId>;

// What a playback acts on. Each step takes the way that it took when the user did it; which view is active is found out
// at each, as a step may change that.
class MacroTarget {
  public:
    virtual ~MacroTarget() = default;
    virtual void playKey(const KeyEvent& event) = 0;
    virtual void playMessage(const MacroMessage& message) = 0;
    virtual void playCommand(CommandId id) = 0;
    // Shows what the step has done.
    virtual void updateDisplay() = 0;
};

// One for the whole program; lives in memory only. It is idle, recording or playing, never two of them at a time.
class KeyMacro {
  public:
    KeyMacro(MacroTarget& target, Notices& notices) : target_(target), notices_(notices) {}

    // A new recording takes the place of the old one at its first step, or goes on behind it.
    void StartRecording(bool append);
    // Without any step recorded the old macro stays.
    void StopRecording();
    // The one key for both.
    void toggleRecording();
    bool isRecording() const { return recording_; }
    bool isPlaying() const { return playing_; }

    // Takes a step into the macro while recording; nothing otherwise.
    void RecordStep(const KeyMacroStep& step);
    // A key that the active view has used.
    void recordKey(const KeyEvent& event) { RecordStep(event); }
    // A command that is about to run. One that no macro can hold is announced and not recorded; those that record and
    // play macros are never recorded.
    void recordCommand(CommandId id);

    // True when the macro has been played to its end. Stops when the program is about to end.
    bool Play();
    // Plays that many times at most, up to the first that fails.
    void PlayRepeated(std::int32_t count);

    const std::vector<KeyMacroStep>& steps() const { return steps_; }

  private:
    bool playSteps();
    void playStep(const KeyMacroStep& step);

    MacroTarget& target_;
    Notices& notices_;
    std::vector<KeyMacroStep> steps_;
    std::uint32_t stepCount_ = 0;  // of the present recording
    bool playing_ = false;
    bool recording_ = false;
    bool replacePending_ = false;
};

}  // namespace vexa
