// The commands that open, save and close documents, and "Exit".
#pragma once

#include "shell/command_dispatcher.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class DocumentCommands {
  public:
    DocumentCommands(OpenDocuments& documents, const EditorOptions& options)
        : documents_(documents), options_(options) {}

    void registerCommands(CommandDispatcher& dispatcher);

  private:
    void newDocument() { documents_.opening().OpenFileAtLine(std::nullopt, 0); }
    void open();
    void close();
    void save();
    void saveAs();
    void saveAll();
    void closeAll() { documents_.closeAll(); }
    void exit();

    OpenDocuments& documents_;
    const EditorOptions& options_;
};

}  // namespace vexa
