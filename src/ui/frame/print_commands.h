// The commands of printing.
#pragma once

#include "shell/command_dispatcher.h"
#include "ui/frame/open_documents.h"
#include "ui/print/print_desk.h"

namespace vexa {

class PrintCommands {
  public:
    PrintCommands(OpenDocuments& documents, Application& application, FrameNotices& notices, MessageLoop& loop)
        : documents_(documents), notices_(notices), desk_(application, notices, loop) {}

    void registerCommands(CommandDispatcher& dispatcher);
    PrintDesk& desk() { return desk_; }

  private:
    void setUp();
    void printActive();
    void tell(PrintResult result, const std::string& name);

    OpenDocuments& documents_;
    FrameNotices& notices_;
    PrintDesk desk_;
};

}  // namespace vexa
