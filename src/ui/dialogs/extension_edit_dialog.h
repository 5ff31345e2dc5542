// The "Edit File Extension" dialog.
#pragma once

#include "language/extension_edit_model.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/document/application.h"

namespace vexa {

class ExtensionEditDialog : public EditorDialog {
  public:
    ExtensionEditDialog(Application& application, Notices& notices, ExtensionEditModel& model);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void readFields();
    void showKeywords(std::size_t chosen);
    void addKeyword();
    void removeKeyword();
    void importKeywords();
    // What the Enter key does: it adds the keyword that is being typed, and updates anywhere else.
    void enterAdds();
    void enterUpdates();

    const EditorOptions& options_;
    Notices& notices_;
    ExtensionEditModel& model_;
};

}  // namespace vexa
