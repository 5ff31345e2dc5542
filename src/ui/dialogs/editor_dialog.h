// What the editor's dialogs have in common: they remember where they stood, and their help button opens the help file.
#pragma once

#include "base/config_store.h"
#include "framework/dialog.h"

namespace vexa {

class EditorDialog : public DialogFrameCL {
  public:
    // A dialog's resource number is the one under which its position is kept, too.
    EditorDialog(ConfigStore& store, int dialog) : DialogFrameCL(dialog), store_(store), dialog_(dialog) {}

  protected:
    // Shows, with a beep, why something cannot be done.
    void tell(const std::string& text) const;
    void onHelp() override;
    std::optional<POINT> openingCorner(POINT owner) override;
    void keepCorner(POINT owner, POINT corner) override;

  private:
    ConfigStore& store_;
    const int dialog_;
};

}  // namespace vexa
