// The dialog in which the user chooses documents of a list, and what is done with them.
#pragma once

#include <string>

#include "shell/unsaved/document_choice.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {

// All documents are chosen at first.
class DocumentChoiceDialog : public EditorDialog {
  public:
    DocumentChoiceDialog(ConfigStore& store, const DocumentChoice& choice)
        : EditorDialog(store, IDD_DOCUMENT_CHOICE), choice_(choice) {}

    // Of an accepted dialog: the number of the button, and a character of each row, kChosen where it is chosen.
    std::size_t button() const { return button_; }
    static constexpr char kChosen = 1;
    const std::string& chosen() const { return chosen_; }

  protected:
    void onOpen() override;
    void onAccept() override { press(0); }
    void onControl(int control, UINT notification) override;

  private:
    void showTexts();
    void showRows();
    void refreshButtons();
    void press(std::size_t button);

    const DocumentChoice& choice_;
    std::size_t button_ = 0;
    std::string chosen_;
};

// Asks until nothing is left to be asked about; false when the user has put the rest off.
bool AskAboutDocuments(ConfigStore& store, DocumentChoice& choice, HWND owner);

}  // namespace vexa
