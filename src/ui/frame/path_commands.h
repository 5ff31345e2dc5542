// The commands about the file of the active document: its folder, its path, reading it anew.
#pragma once

#include "shell/command_dispatcher.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class PathCommands {
  public:
    PathCommands(OpenDocuments& documents, Application& application, Notices& notices)
        : documents_(documents), application_(application), notices_(notices) {}

    void registerCommands(CommandDispatcher& dispatcher);

  private:
    // Of a document that has no file yet the user is told so, and the path is empty.
    std::string activePath();
    void openContainingFolder();
    void copyFullPath();
    void reload();
    bool mayLoseChanges(const TextDocument& document);

    OpenDocuments& documents_;
    Application& application_;
    Notices& notices_;
};

}  // namespace vexa
