// The commands of printing.
#pragma once

#include <string>

#include "framework/message_loop.h"
#include "shell/command_dispatcher.h"
#include "ui/frame/open_documents.h"
#include "ui/print/print_dialogs.h"

namespace vexa {

class PrintCommands {
  public:
    PrintCommands(OpenDocuments& documents, Application& application, FrameNotices& notices, MessageLoop& loop)
        : documents_(documents), application_(application), notices_(notices), loop_(loop) {}

    void registerCommands(CommandDispatcher& dispatcher);

  private:
    void setUp();
    void printActive();
    void print(const TextDocument& document, const PrintOrder& order);
    PrintResult runJob(const TextDocument& document, const PrintLayout& layout, const PrintSequence& sequence,
                       PrintTarget& target);
    void tellResult(PrintResult result, const TextDocument& document);
    void tellError(const std::string& text);

    OpenDocuments& documents_;
    Application& application_;
    FrameNotices& notices_;
    MessageLoop& loop_;
    PrinterChoice printer_;
};

}  // namespace vexa
