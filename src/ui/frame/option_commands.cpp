#include "ui/frame/option_commands.h"

#include "framework/dpi.h"
#include "framework/font_dialog.h"
#include "ui/dialogs/colour_setup_dialog.h"
#include "ui/dialogs/editor_options_dialog.h"
#include "ui/dialogs/extended_dialog.h"
#include "ui/dialogs/file_extensions_dialog.h"
#include "ui/document/pane_font.h"
#include "ui/frame/command_rows.h"

namespace vexa {

void OptionCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<OptionCommands> kRows[] = {
        {CommandId::ChangeOptions, &OptionCommands::changeOptions},
        {CommandId::ChangeFont, &OptionCommands::changeFont},
        {CommandId::ChangeColours, &OptionCommands::changeColours},
        {CommandId::ChangeExtensions, &OptionCommands::changeExtensions},
        {CommandId::ChangeHabits, &OptionCommands::changeHabits},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void OptionCommands::registerKeys(KeyActions& keys) {
    static constexpr KeyRow<OptionCommands> kRows[] = {{FrameAction::ResetZoom, &OptionCommands::resetZoom}};
    RegisterRows(keys, *this, kRows);
}

void OptionCommands::changeOptions() {
    EditorOptionsDialog dialog(application_.store, application_.options);
    if (dialog.runModal(documents_.frame().window())) documents_.refreshOptions();
}

void OptionCommands::changeHabits() {
    const bool knewQuotes = application_.options.habits.languageQuotes;
    ExtendedDialog dialog(application_.store, application_.options);
    if (!dialog.runModal(documents_.frame().window())) return;
    documents_.refreshOptions();
    if (application_.options.habits.languageQuotes != knewQuotes) documents_.takeProfilesAnew();
}

// ---- font --------------------------------------------------------------------------------------------------------

void OptionCommands::changeFont() {
    const HWND owner = documents_.frame().window();
    const int dpi = DpiOf(owner);
    LOGFONTA description = DescribeFont(application_.font, dpi);
    if (!AskFixedPitchFont(owner, description)) return;
    application_.font = DetailsOf(description, dpi);
    documents_.refreshFonts();
}

void OptionCommands::zoom(std::int32_t steps) {
    application_.font.zoom(steps);
    documents_.refreshFonts();
}

void OptionCommands::resetZoom() {
    application_.font.resetZoom();
    documents_.refreshFonts();
}

// ---- colours and profiles ----------------------------------------------------------------------------------------

// While the dialog is open the documents show what is being chosen; the colours in effect stay as they were.
void OptionCommands::changeColours() {
    ColourTable& inEffect = application_.coloursInEffect;
    ColourSetupDialog dialog(application_.store, inEffect, application_.font,
                             [this](const ColourTable& colours) { showColours(colours); });
    if (dialog.runModal(documents_.frame().window())) {
        dialog.model().update(inEffect);
        inEffect.save(application_.store);
    }
    showColours(inEffect);
}

void OptionCommands::showColours(const ColourTable& colours) {
    if (colours == application_.colours) return;
    application_.colours = colours;
    documents_.refreshColours();
}

void OptionCommands::changeExtensions() {
    FileExtensionsDialog dialog(application_, notices_, [this] { documents_.takeProfilesAnew(); });
    dialog.runModal(documents_.frame().window());
}

}  // namespace vexa
