#include "ui/frame/macro_commands.h"

#include "ui/dialogs/number_dialog.h"
#include "ui/frame/command_rows.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {

void MacroCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<MacroCommands> kRows[] = {
        {CommandId::PlayMacro, &MacroCommands::play},
        {CommandId::RepeatMacro, &MacroCommands::repeat},
    };
    RegisterRows(dispatcher, *this, kRows);
    dispatcher.RegisterToggle(
        CommandId::RecordMacro, [this](CommandId) { macro_.toggleRecording(); },
        [this] { return macro_.isRecording(); });
}

bool MacroCommands::holdKey(const MSG& message) {
    if (!macro_.isPlaying()) return false;
    const bool stops = message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
    if (!stops) return heldKeys_.hold(message);
    macro_.stop();
    heldKeys_.drop();
    return true;
}

// Asked for while another playback goes on, a playback does nothing; keys keep waiting for the end of the first.
void MacroCommands::play() {
    if (macro_.isPlaying()) return;
    macro_.Play();
    heldKeys_.giveBack(loop_);
}

void MacroCommands::repeat() {
    std::optional<std::int32_t> count;
    NumberDialog dialog(store_, IDD_MACRO_REPEAT, repeat_.count, [&](const std::string& number) {
        repeat_.count = number;
        count = repeat_.accept(notices_);
        return count.has_value();
    });
    if (!dialog.runModal(frame_.window()) || !count || macro_.isPlaying()) return;
    macro_.PlayRepeated(*count);
    heldKeys_.giveBack(loop_);
}

}  // namespace vexa
