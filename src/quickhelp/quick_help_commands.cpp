#include "quickhelp/quick_help_commands.h"

#include "base/strings.h"
#include "quickhelp/quick_help_model.h"

namespace vexa {

void QuickHelpCommands::quickHelp(const std::optional<std::string>& word) {
    if (!word) return tell(LoadText(TextId::NeedsOpenFile));
    if (word->empty()) return tell(LoadText(TextId::NoWordAtCaret));
    lookUp(word->substr(0, QuickHelpModel::kKeywordLimit));
}

void QuickHelpCommands::lookUp(const std::string& word) {
    const LookupResult result = lookup_.Lookup(word);
    if (result == LookupResult::OneMatch) {
        showHelp();
    } else if (result == LookupResult::SeveralMatches) {
        askForHelp(QuickHelpDialog::QuickHelp);
    } else {
        tell(TextOf(result, word));
    }
    host_.focusEditWindow();
}

void QuickHelpCommands::quickSearch() {
    askForHelp(QuickHelpDialog::QuickSearch);
}

void QuickHelpCommands::askForHelp(QuickHelpDialog dialog) {
    if (host_.runDialog(dialog)) showHelp();
}

void QuickHelpCommands::showHelp() {
    const HelpMatch* match = lookup_.chosen();
    if (!match || !host_.showHelp(match->helpFile, lookup_.keyword())) tell(LoadText(TextId::QuickHelpFailed));
}

}  // namespace vexa
