// The dialogs that ask for one number: "Goto Line", "Jump to Bookmark", "Macro Repeat".
#pragma once

#include <string>

#include "base/callback.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class NumberDialog : public EditorDialog {
  public:
    // What the dialog does with the number as it was typed; false keeps it open.
    using Use = Callback<bool(const std::string& number)>;

    NumberDialog(ConfigStore& store, int dialog, std::string number, Use use)
        : EditorDialog(store, dialog), number_(std::move(number)), use_(use) {}

  protected:
    void onOpen() override;
    void onAccept() override;

  private:
    const std::string number_;
    const Use use_;
};

}  // namespace vexa
