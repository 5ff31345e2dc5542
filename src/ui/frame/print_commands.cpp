// How the frame lets the user print.
#include <windows.h>

#include "base/strings.h"
#include "ui/frame/vexa_frame.h"
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

void VexaFrame::setUpPrinting() {
    PageSetupDialog dialog(application_.store, application_.printOptions, printer_);
    dialog.runModal(window());
}

void VexaFrame::printDocument() {
    const TextDocument& document = activeDocument()->document();
    PrintOrder order;
    switch (printer_.ask(window(), document.marked().active, order)) {
        case PrinterAnswer::Chosen:
            return print(document, order);
        case PrinterAnswer::Cancelled:
            return;
        case PrinterAnswer::NoPrinter:
            return tellPrintError(std::string(LoadText(TextId::NoPrinter)));
        case PrinterAnswer::Failed:
            return tellPrintError(std::string(LoadText(TextId::PrinterDoesNotAnswer)));
    }
}

void VexaFrame::tellPrintError(const std::string& text) {
    notices_.box(text, kErrorCaption, BoxButtons::Ok);
}

void VexaFrame::print(const TextDocument& document, const PrintOrder& order) {
    const HDC printer = order.printer.get();
    const PrintLook look{application_.font, application_.colours, application_.printOptions};
    const PagePainter painter(printer, PaperOf(printer), look);
    if (!HasRoomToPrint(painter.grid())) return tellPrintError(std::string(LoadText(TextId::NoRoomToPrint)));
    const PrintLayout layout(document, {.area = order.area,
                                        .page = painter.grid(),
                                        .options = look.options,
                                        .heading = {document.fullPath(), Now()},
                                        .highlighting = look.colours.isHighlightingOn()});
    PrinterTarget target(printer, document.baseName(), painter, layout);
    tellPrintResult(runPrintJob(document, layout, PrintSequence(order.pages, layout.pageCount()), target), document);
}

PrintResult VexaFrame::runPrintJob(const TextDocument& document, const PrintLayout& layout,
                                   const PrintSequence& sequence, PrintTarget& target) {
    if (sequence.count() == 0) return PrintResult::NothingToPrint;
    PrintProgressDialog progress(application_.store, notices_, document.baseName());
    const BusyCursor busy(notices_);
    if (!progress.open(window())) return PrintResult::Failed;
    loop_.setModelessDialog(progress.window());
    const PrintResult result = RunPrint(layout, sequence, target, progress);
    loop_.setModelessDialog(searchDialog_ ? searchDialog_->window() : nullptr);
    return result;
}

void VexaFrame::tellPrintResult(PrintResult result, const TextDocument& document) {
    switch (result) {
        case PrintResult::Done:
            return notices_.status(LoadText(TextId::PrintingCompleted), false, false);
        case PrintResult::NothingToPrint:
            return notices_.status(LoadText(TextId::NothingToPrint), true, true);
        case PrintResult::Cancelled:
            return notices_.status(LoadText(TextId::PrintingCanceled), true, true);
        case PrintResult::Failed:
            return tellPrintError(FillText(TextId::PrintingFailed, {document.baseName()}));
    }
}

}  // namespace vexa
