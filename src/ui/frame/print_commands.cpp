#include "ui/frame/print_commands.h"

#include <windows.h>

#include "base/strings.h"
#include "ui/frame/command_rows.h"
#include "ui/print/page_setup_dialog.h"
#include "ui/print/print_job.h"

namespace vexa {
namespace {

// Date and time as the user has set them in the system.
std::string Now() {
    char date[64] = "";
    char time[64] = "";
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date, sizeof(date));
    GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, time, sizeof(time));
    return std::string(date) + ' ' + time;
}

}  // namespace

void PrintCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<PrintCommands> kRows[] = {
        {CommandId::PrintSetup, &PrintCommands::setUp},
        {CommandId::Print, &PrintCommands::printActive},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void PrintCommands::setUp() {
    PageSetupDialog dialog(application_.store, application_.printOptions, printer_);
    dialog.runModal(documents_.frame().window());
}

void PrintCommands::printActive() {
    const TextDocument& document = documents_.active()->document();
    PrintOrder order;
    switch (printer_.ask(documents_.frame().window(), document.marked().active, order)) {
        case PrinterAnswer::Chosen:
            return print(document, order);
        case PrinterAnswer::Cancelled:
            return;
        case PrinterAnswer::NoPrinter:
            return tellError(std::string(LoadText(TextId::NoPrinter)));
        case PrinterAnswer::Failed:
            return tellError(std::string(LoadText(TextId::PrinterDoesNotAnswer)));
    }
}

void PrintCommands::tellError(const std::string& text) {
    notices_.box(text, kErrorCaption, BoxButtons::Ok);
}

void PrintCommands::print(const TextDocument& document, const PrintOrder& order) {
    const HDC printer = order.printer.get();
    const PrintLook look{application_.font, application_.colours, application_.printOptions};
    const PagePainter painter(printer, PaperOf(printer), look);
    if (!HasRoomToPrint(painter.grid())) return tellError(std::string(LoadText(TextId::NoRoomToPrint)));
    const PrintLayout layout(document, {.area = order.area,
                                        .page = painter.grid(),
                                        .options = look.options,
                                        .heading = {document.fullPath(), Now()},
                                        .highlighting = look.colours.isHighlightingOn()});
    PrinterTarget target(printer, document.baseName(), painter, layout);
    tellResult(runJob(document, layout, PrintSequence(order.pages, layout.pageCount()), target), document);
}

PrintResult PrintCommands::runJob(const TextDocument& document, const PrintLayout& layout,
                                  const PrintSequence& sequence, PrintTarget& target) {
    if (sequence.count() == 0) return PrintResult::NothingToPrint;
    PrintProgressDialog progress(application_.store, notices_, document.baseName());
    const BusyCursor busy(notices_);
    if (!progress.open(documents_.frame().window())) return PrintResult::Failed;
    const HWND openBefore = loop_.modelessDialog();
    loop_.setModelessDialog(progress.window());
    const PrintResult result = RunPrint(layout, sequence, target, progress);
    loop_.setModelessDialog(openBefore);
    return result;
}

void PrintCommands::tellResult(PrintResult result, const TextDocument& document) {
    switch (result) {
        case PrintResult::Done:
            return notices_.status(LoadText(TextId::PrintingCompleted), false, false);
        case PrintResult::NothingToPrint:
            return notices_.status(LoadText(TextId::NothingToPrint), true, true);
        case PrintResult::Cancelled:
            return notices_.status(LoadText(TextId::PrintingCanceled), true, true);
        case PrintResult::Failed:
            return tellError(FillText(TextId::PrintingFailed, {document.baseName()}));
    }
}

}  // namespace vexa
