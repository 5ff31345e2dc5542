// The commands and keys of finding and replacing, with the dialog that stays open beside the text.
#pragma once

#include <memory>

#include "framework/message_loop.h"
#include "search/find_commands.h"
#include "shell/command_dispatcher.h"
#include "ui/dialogs/search_dialog.h"
#include "ui/frame/file_search_commands.h"
#include "ui/frame/key_actions.h"
#include "ui/frame/keyboard_watch.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class SearchCommands : private SearchHost {
  public:
    SearchCommands(OpenDocuments& documents, Application& application, FrameNotices& notices, MessageLoop& loop,
                   FileSearchCommands& files)
        : documents_(documents),
          application_(application),
          notices_(notices),
          loop_(loop),
          files_(files),
          commands_(application.searchOptions, notices, watch_) {}

    void registerCommands(CommandDispatcher& dispatcher);
    void registerKeys(KeyActions& keys);
    // Told of every search that finds nothing, and whether it is the user who has stopped it.
    void setFailureListener(Callback<void(bool isUserStop)> listener) { commands_.setFailureListener(listener); }

    // Uses a key that means something to the dialog while it has the focus; false for any other key.
    bool useKey(MSG& message, const KeyEvent& event);
    // Closes the dialog; false when it is not open.
    bool leaveDialog() { return dialog_ && dialog_->leave(); }

  private:
    void openFind();
    void openReplace();
    void openFindInFiles();
    template <class Dialog, class... More>
    void openDialog(More&... more);
    void findNext();
    void findPrevious();
    void findAtCaret();
    void toggleMatchCase();
    void toggleRegularExpression();
    // Moves the dialog off the match that was found last.
    void showMatchBesideDialog(const DocumentWindow& active);

    void search(const Search& search) override;
    bool isShuttingDown() const override { return documents_.isClosing(); }
    void searchDialogGone() override { loop_.setModelessDialog(nullptr); }

    OpenDocuments& documents_;
    Application& application_;
    FrameNotices& notices_;
    MessageLoop& loop_;
    FileSearchCommands& files_;
    KeyboardWatch watch_;
    FindCommands commands_;
    std::unique_ptr<SearchDialog> dialog_;  // the last one; its window may be gone
};

}  // namespace vexa
