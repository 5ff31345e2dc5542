// The "Tools" dialog, in which the user makes the tools of the Tools menu. Each change is kept at once.
#pragma once

#include "base/callback.h"
#include "external/tools_model.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/document/application.h"

namespace vexa {

class ToolsDialog : public EditorDialog {
  public:
    // Called after every change of the tools.
    using Changed = Callback<void()>;

    ToolsDialog(Application& application, Notices& notices, ToolList& tools, Changed changed);

  protected:
    void onOpen() override;
    void onAccept() override { change(&ToolsModel::add); }
    void onControl(int control, UINT notification) override;

  private:
    void showTools();
    void showFields();
    void refreshButtons();
    void toolChosen();
    void menuTextTyped();
    void find();
    void update() { change(&ToolsModel::update); }
    void remove() { change(&ToolsModel::remove); }
    void change(ToolsModel::Outcome (ToolsModel::*how)());

    Application& application_;
    const Changed changed_;
    ToolsModel model_;
    bool isShowing_ = false;  // the fields are being filled in
};

}  // namespace vexa
