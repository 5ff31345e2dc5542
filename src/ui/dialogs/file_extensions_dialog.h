// The "File Extensions" dialog: the list of extensions with a profile, from which profiles are made, edited and
// deleted.
#pragma once

#include "base/callback.h"
#include "language/file_extensions_model.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/document/application.h"

namespace vexa {

class FileExtensionsDialog : public EditorDialog {
  public:
    // Called after every profile that has been written or deleted.
    using Changed = Callback<void()>;

    FileExtensionsDialog(Application& application, Notices& notices, Changed changed);

  protected:
    void onOpen() override;
    void onAccept() override { editChosen(); }
    void onControl(int control, UINT notification) override;

  private:
    void makeNew();
    void editChosen();
    void deleteChosen();
    void edit(ExtensionEditModel model);
    void showRows(std::size_t chosen);
    void enableButtons();

    Application& application_;
    Notices& notices_;
    const Changed changed_;
    FileExtensionsModel model_;
};

}  // namespace vexa
