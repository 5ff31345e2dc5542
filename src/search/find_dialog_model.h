// The rules of the Find dialog.
#pragma once

#include <string>

#include "base/history_list.h"
#include "search/find_commands.h"

namespace vexa {

// The fields start from the options; the dialog moves them in and out of its controls. The Replace dialog has these
// fields and rules too.
class FindDialogModel {
  public:
    // Names of the history files of the two combo boxes.
    static constexpr const char* kFindHistoryFile = "VexaFnd.his";
    static constexpr const char* kReplaceHistoryFile = "VexaRep.his";

    FindDialogModel(FindCommands& commands, HistoryList& findHistory);

    std::string findText;
    bool wholeWord;
    bool matchCase;
    bool regularExpression;
    bool forward;

    // Whether the buttons that search are enabled.
    bool canSearch() const { return !findText.empty(); }
    // To be called when the find text or its being a regular expression has changed.
    void patternChanged();
    // Searches with the fields as the new options.
    void findNext(const SearchTarget& active);
    // A search from outside the dialog has changed the options, which the fields now follow.
    void takeSearch();
    // Puts the options back as they were when the dialog opened, unless it has searched since.
    void cancel();

  protected:
    FindCommands& commands() { return commands_; }
    SearchOptions& options() const { return commands_.options(); }
    // A find text that differs from the present one sets whether a match is pending.
    void storeFindFields(bool pending);
    void noteSearch(bool ran) { searched_ = searched_ || ran; }

  private:
    void takeOptions();

    FindCommands& commands_;
    HistoryList& findHistory_;
    SearchOptions::Values snapshot_;
    bool searched_ = false;
};

}  // namespace vexa
