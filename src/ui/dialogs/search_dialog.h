// What the Find and the Replace dialog have in common. They stay open beside the document while the user edits it.
#pragma once

#include <string>

#include "base/callback.h"
#include "base/history_list.h"
#include "search/find_dialog_model.h"
#include "search/pattern_pieces.h"
#include "shell/command_id.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/document/application.h"

namespace vexa {

// What the dialogs ask of the frame.
class SearchHost {
  public:
    using Search = Callback<void(const SearchTarget& active)>;

    virtual ~SearchHost() = default;
    // Lets a search run on the active document or list and shows what it has done.
    virtual void search(const Search& search) = 0;
    virtual bool isShuttingDown() const = 0;
    virtual void searchDialogGone() = 0;
};

class SearchDialog : public EditorDialog {
  public:
    SearchDialog(int dialog, Application& application, SearchHost& host);

    // Shows options that have been switched from outside.
    void refreshOptions(const SearchOptions& options);
    // Shows the fields as a search from outside has set them.
    void takeSearch();
    // Uses a key that means something to the dialog while it has the focus, so that none of the frame's commands gets
    // it; false for any other key.
    bool useKey(MSG& message, const KeyEvent& event);
    // Closes the dialog as its Cancel button does; false when it is not open.
    bool leave();
    // Moves aside where the dialog lies over a match, given as a rectangle of the screen.
    void keepClearOf(const RECT& match);

  protected:
    virtual FindDialogModel& model() = 0;
    // Between the model and the controls. Overriding ones deal with the controls of their own in addition.
    virtual void showFields();
    virtual void readFields();
    virtual void enableButtons();
    virtual void saveHistories() { findHistory_.Save(); }

    void onOpen() override;
    void onAccept() override;
    void onCancel() override;
    void onControl(int control, UINT notification) override;
    void onGone() override;

    HistoryList& findHistory() { return findHistory_; }
    void showCombo(int control, const HistoryList& history, const std::string& text,
                   std::size_t limit = SearchOptions::kTextLimit);
    void run(const SearchHost::Search& search);

  private:
    void choosePiece();
    void insertPiece(const PatternPiece& piece, DWORD selection);
    void patternChanged();
    void textTyped();
    void textChosen();
    void useText(const std::string& text);

    SearchHost& host_;
    HistoryList findHistory_;
};

}  // namespace vexa
