// The "Setup Compiler" dialog.
#pragma once

#include "base/notices.h"
#include "external/compiler_setup_model.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

class CompilerSetupDialog : public EditorDialog {
  public:
    CompilerSetupDialog(ConfigStore& store, Notices& notices, CompilerSetup& setup);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void showFields();
    void readFields();
    void switchMode();
    void test();

    Notices& notices_;
    CompilerSetupModel model_;
};

}  // namespace vexa
