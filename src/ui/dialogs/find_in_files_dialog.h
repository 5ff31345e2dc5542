// The "Find in Files" dialog.
#pragma once

#include "search/files/file_search_model.h"
#include "ui/dialogs/search_dialog.h"

namespace vexa {

// Closes when it has started a search. The fields are what the next dialog begins with.
class FindInFilesDialog : public SearchDialog {
  public:
    // Begins with a text to be found, or with the last one if that is empty.
    FindInFilesDialog(Application& application, FindCommands& commands, SearchHost& host, FileSearcher& searcher,
                      FileSearchFields& fields, const std::string& findText);

  protected:
    FindDialogModel& model() override { return model_; }
    void showFields() override;
    void readFields() override;
    void saveHistories() override;
    void onControl(int control, UINT notification) override;
    void onAccept() override;

  private:
    void browse();

    FileSearcher& searcher_;
    FileSearchFields& fields_;
    HistoryList folders_;
    HistoryList patterns_;
    FileSearchModel model_;
};

}  // namespace vexa
