// The "Editor Options" dialog.
#pragma once

#include "base/editor_options_model.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class EditorOptionsDialog : public EditorDialog {
  public:
    EditorOptionsDialog(ConfigStore& store, EditorOptions& options);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void read();
    void enableFields();

    EditorOptions& options_;
    EditorOptionsModel model_;
};

}  // namespace vexa
