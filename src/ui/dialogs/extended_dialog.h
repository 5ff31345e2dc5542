// The "Extended" dialog: which rules of the editor have their present form.
#pragma once

#include "base/editor_options.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class ExtendedDialog : public EditorDialog {
  public:
    // Changes the options when it is accepted.
    ExtendedDialog(ConfigStore& store, EditorOptions& options);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void checkAll(bool checked);
    void all() { checkAll(true); }
    void none() { checkAll(false); }

    EditorOptions& options_;
};

}  // namespace vexa
