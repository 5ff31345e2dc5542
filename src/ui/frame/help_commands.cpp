#include "ui/frame/help_commands.h"

#include "base/strings.h"
#include "framework/message_box.h"
#include "ui/frame/command_rows.h"
#include "ui/help/help.h"
#include "ui/resources/resource.h"

namespace vexa {

void HelpCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<HelpCommands> kRows[] = {
        {CommandId::HelpOnHelp, &HelpCommands::showHelpOnHelp},
        {CommandId::HelpIndex, &HelpCommands::showIndex},
        {CommandId::HelpOnKeys, &HelpCommands::showKeys},
        {CommandId::About, &HelpCommands::showAbout},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void HelpCommands::showHelpOnHelp() {
    ShowHelp(frame_.window(), HELP_HELPONHELP, static_cast<DWORD>(CommandId::HelpOnHelp));
}

void HelpCommands::showIndex() {
    ShowHelp(frame_.window(), HELP_INDEX);
}

void HelpCommands::showKeys() {
    ShowHelp(frame_.window(), HELP_CONTEXT, kHelpOnKeys);
}

void HelpCommands::showAbout() {
    const std::string text = FillText(TextId::AboutProgram, {LoadText(TextId::ProgramCaption), VEXA_VERSION});
    ShowAboutBox(frame_.window(), text, FillText(TextId::AboutTitle, {LoadText(TextId::ProgramCaption)}), IDI_VEXA);
}

}  // namespace vexa
