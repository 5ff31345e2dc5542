// What the commands Quick Help and Quick Search do and tell the user.
#pragma once

#include <optional>
#include <string>

#include "base/notices.h"
#include "quickhelp/help_lookup.h"

namespace vexa {

// The dialog on a look-up: the one for a word that several help files know, or the one for a keyword to be typed.
enum class QuickHelpDialog { QuickHelp, QuickSearch };

// What the commands need of the windows.
class QuickHelpHost {
  public:
    virtual ~QuickHelpHost() = default;
    // Lets the user choose a match; true when one has been chosen.
    virtual bool runDialog(QuickHelpDialog dialog) = 0;
    // Opens a help file at a keyword; false when it cannot be shown.
    virtual bool showHelp(const std::string& helpFile, const std::string& keyword) = 0;
    virtual void focusEditWindow() = 0;
};

class QuickHelpCommands {
  public:
    QuickHelpCommands(HelpLookup& lookup, Notices& notices, QuickHelpHost& host)
        : lookup_(lookup), notices_(notices), host_(host) {}

    // The word at the caret of the active edit window, "" when there is none; nothing when no edit window is active.
    void quickHelp(const std::optional<std::string>& word);
    void quickSearch();

  private:
    void lookUp(const std::string& word);
    void askForHelp(QuickHelpDialog dialog);
    void showHelp();
    void tell(std::string_view text) { notices_.status(text, true, true); }

    HelpLookup& lookup_;
    Notices& notices_;
    QuickHelpHost& host_;
};

}  // namespace vexa
