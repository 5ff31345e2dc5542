// Prints documents and topics of help: asks for the printer, shows how far the job has got, and says how it has ended.
#pragma once

#include <cstdint>
#include <string>

#include "base/notices.h"
#include "document/print/print_run.h"
#include "framework/message_loop.h"
#include "ui/document/application.h"
#include "ui/help/topic_printer.h"
#include "ui/print/print_dialogs.h"
#include "ui/print/print_job.h"

namespace vexa {

class PrintDesk : public TopicPrinter {
  public:
    // All must live as long as this.
    PrintDesk(Application& application, Notices& notices, MessageLoop& loop)
        : application_(application), notices_(notices), loop_(loop) {}

    // "Page Setup".
    void setUp(HWND owner);
    // With a marked area that is offered first.
    PrintResult print(HWND owner, bool hasMarkedArea, PrintedPages& pages);
    std::string printTopic(HWND owner, const topics::ShownTopic& topic) override;

  private:
    PrintResult run(HWND owner, const PrintOrder& order, PrintedPages& pages);
    PrintResult runJob(HWND owner, const PrintSequence& sequence, PrintTarget& target, const std::string& name);

    Application& application_;
    Notices& notices_;
    MessageLoop& loop_;
    PrinterChoice printer_;
};

// What to tell of a job; empty where the user knows.
std::string TextOf(PrintResult result, const std::string& name);

}  // namespace vexa
