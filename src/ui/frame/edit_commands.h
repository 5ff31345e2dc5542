// The commands carried out by the edit view, and those that ask where to go in the text.
#pragma once

#include "base/config_store.h"
#include "shell/command_dispatcher.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class EditCommands {
  public:
    EditCommands(OpenDocuments& documents, ConfigStore& store, FrameNotices& notices)
        : documents_(documents), store_(store), notices_(notices) {}

    void registerCommands(CommandDispatcher& dispatcher);

  private:
    // In a list, what the key does there.
    template <auto movement, UINT keyOfList>
    void move();
    void gotoLine();
    void gotoBookmark();

    OpenDocuments& documents_;
    ConfigStore& store_;
    FrameNotices& notices_;
};

}  // namespace vexa
