// The "Replace in Files" dialog.
#pragma once

#include <string>

#include "base/history_list.h"
#include "ui/dialogs/editor_dialog.h"
#include "ui/document/application.h"

namespace vexa {

// What the dialog shows and asks.
struct FileReplaceFields {
    std::string findText;
    std::string replaceText;
    bool hasChosen = false;  // whether lines are selected
    bool inAll = true;
};

class ReplaceInFilesDialog : public EditorDialog {
  public:
    // Accepted, it leaves the answers in the fields.
    ReplaceInFilesDialog(Application& application, FileReplaceFields& fields);

  protected:
    void onOpen() override;
    void onAccept() override;

  private:
    FileReplaceFields& fields_;
    HistoryList history_;
};

}  // namespace vexa
