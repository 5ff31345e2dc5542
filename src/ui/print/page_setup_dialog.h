// The "Page Setup" dialog: what the editor itself decides about printing. Printer and paper are the system's matter,
// whose dialog one of the buttons opens.
#pragma once

#include "document/print/page_setup_model.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/print/print_dialogs.h"

namespace vexa {

class PageSetupDialog : public EditorDialog {
  public:
    PageSetupDialog(ConfigStore& store, PrintOptions& options, PrinterChoice& printer);

  protected:
    void onOpen() override;
    void onAccept() override;
    void onControl(int control, UINT notification) override;

  private:
    void read();
    void setUpPrinter();
    void tell(const std::string& text) const;

    PrintOptions& options_;
    PrinterChoice& printer_;
    PageSetupModel model_;
};

}  // namespace vexa
