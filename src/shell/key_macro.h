// The keyboard macro: keys, messages and commands recorded as they reach the active view, and played again on whatever
// view is then active.
#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "base/notices.h"
#include "document/view/key_event.h"
#include "shell/command_table.h"

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
    // False when there is no document for the key.
    virtual bool playKey(const KeyEvent& event) = 0;
    virtual void playMessage(const MacroMessage& message) = 0;
    // False when the command cannot run, as a document or a window is missing.
    virtual bool playCommand(CommandId id) = 0;
    // Shows what the step has done.
    virtual void updateDisplay() = 0;
};

// One for the whole program; lives in memory only. It is idle, recording or playing, never two of them at a time.
class KeyMacro {
  public:
    KeyMacro(MacroTarget& target, Notices& notices) : target_(target), notices_(notices) {}

    // A new recording takes the place of the old one at its first step, or goes on after it.
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
    void recordCommand(CommandId id, CommandOrigin origin);
    // Something else that no macro can hold, such as a click of the mouse: announced.
    void refuseStep();

    // True when the macro has been played to its end. Ends before it at a step that finds no document to work on, when
    // somebody stops it, and when the program is about to end.
    bool Play();
    // Plays that many times at most, up to the first that fails.
    void PlayRepeated(std::int32_t count);
    // Ends a playback after its present step.
    void stop() { isStopped_ = true; }
    // A search of the present step has found nothing: a repeated playback has done its work, and ends. Any playback
    // ends when the user has stopped the search.
    void searchFailed(bool isUserStop) { isStopped_ = isStopped_ || repeating_ || isUserStop; }

    const std::vector<KeyMacroStep>& steps() const { return steps_; }

  private:
    enum class Ending : std::uint8_t { Complete, Stopped, NoDocument, ProgramEnds };

    bool mayPlay();
    Ending playSteps();
    bool playStep(const KeyMacroStep& step);
    void tell(Ending ending);

    MacroTarget& target_;
    Notices& notices_;
    std::vector<KeyMacroStep> steps_;
    std::uint32_t stepCount_ = 0;  // of the present recording
    bool playing_ = false;
    bool repeating_ = false;
    bool isStopped_ = false;  // the present playback
    bool recording_ = false;
    bool replacePending_ = false;
};

}  // namespace vexa
