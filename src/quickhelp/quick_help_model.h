// The rules of the dialog "Quick Help", which is "Quick Search" too: a keyword, and the help files that know it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/history_list.h"
#include "base/notices.h"
#include "quickhelp/help_lookup.h"

namespace vexa {

// A changed keyword takes two presses of OK: one looks it up, the next one chooses.
class QuickHelpModel {
  public:
    // The history file of the combo box.
    static constexpr const char* kHistoryFile = "VexaHlp.his";
    // Characters of a keyword.
    static constexpr std::size_t kKeywordLimit = 60;

    // What the dialog does after OK.
    enum class Next { Close, FocusList, FocusKeyword };

    // Begins with the keyword and the matches of the last look-up.
    QuickHelpModel(HelpLookup& lookup, HistoryList& history, Notices& notices);

    std::string keyword;
    // The titles of the matches.
    std::vector<std::string> rows() const;
    std::size_t chosenRow() const { return chosenRow_; }  // no row is chosen where there are none
    void chooseRow(std::size_t row);

    // OK. After Close, the look-up has a choice.
    Next accept();

  private:
    Next lookUp();
    void tell(std::string_view text) { notices_.status(text, true, true); }

    HelpLookup& lookup_;
    HistoryList& history_;
    Notices& notices_;
    std::size_t chosenRow_ = 0;
};

}  // namespace vexa
