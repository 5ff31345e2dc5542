// The commands and keys to expand words, list functions and open the files that a text names.
#pragma once

#include "shell/command_dispatcher.h"
#include "ui/frame/key_actions.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class TextTools {
  public:
    TextTools(OpenDocuments& documents, Application& application, FrameNotices& notices)
        : documents_(documents), application_(application), notices_(notices) {}

    void registerCommands(CommandDispatcher& dispatcher);
    void registerKeys(KeyActions& keys);

  private:
    void changeElectric();
    void openInclude();
    void listFunctions();

    OpenDocuments& documents_;
    Application& application_;
    FrameNotices& notices_;
};

}  // namespace vexa
