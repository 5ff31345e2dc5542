#include "ui/print/print_desk.h"

#include "base/strings.h"
#include "framework/windows_behind.h"
#include "ui/print/page_setup_dialog.h"
#include "ui/print/topic_pages.h"

namespace vexa {
namespace {

PrintResult ResultOf(PrinterAnswer answer) {
    switch (answer) {
        case PrinterAnswer::NoPrinter:
            return PrintResult::NoPrinter;
        case PrinterAnswer::Failed:
            return PrintResult::NoAnswer;
        default:
            return PrintResult::NotAsked;
    }
}

}  // namespace

std::string TextOf(PrintResult result, const std::string& name) {
    constexpr TextId kTexts[] = {TextId::PrintingCompleted, TextId::NothingToPrint,       TextId::PrintingCanceled,
                                 TextId::NoPrinter,         TextId::PrinterDoesNotAnswer, TextId::NoRoomToPrint};
    if (result == PrintResult::NotAsked) return {};
    if (result == PrintResult::Failed) return FillText(TextId::PrintingFailed, {name});
    return std::string(LoadText(kTexts[static_cast<std::size_t>(result)]));
}

void PrintDesk::setUp(HWND owner) {
    PageSetupDialog dialog(application_.store, application_.printOptions, printer_);
    dialog.runModal(owner);
}

PrintResult PrintDesk::print(HWND owner, bool hasMarkedArea, PrintedPages& pages) {
    PrintOrder order;
    const PrinterAnswer answer = printer_.ask(owner, hasMarkedArea, order);
    return answer == PrinterAnswer::Chosen ? run(owner, order, pages) : ResultOf(answer);
}

PrintResult PrintDesk::run(HWND owner, const PrintOrder& order, PrintedPages& pages) {
    const HDC printer = order.printer.get();
    const PrintLook look{application_.font, application_.colours, application_.printOptions};
    const PagePainter painter(printer, PaperOf(printer), look);
    if (!HasRoomToPrint(painter.grid())) return PrintResult::NoRoom;
    pages.layOut(painter, look, order.area);
    PrinterTarget target(printer, pages);
    return runJob(owner, PrintSequence(order.pages, pages.count()), target, pages.name());
}

// No window takes anything in meanwhile, so that what is printed stays as it is.
PrintResult PrintDesk::runJob(HWND owner, const PrintSequence& sequence, PrintTarget& target, const std::string& name) {
    if (sequence.count() == 0) return PrintResult::NothingToPrint;
    PrintProgressDialog progress(application_.store, notices_, name);
    const BusyCursor busy(notices_);
    const WindowsBehind behind(nullptr);
    if (!progress.openModeless(owner)) return PrintResult::Failed;
    const HWND openBefore = loop_.modelessDialog();
    loop_.setModelessDialog(progress.window());
    const PrintResult result = RunPrint(sequence, target, progress);
    loop_.setModelessDialog(openBefore);
    return result;
}

std::string PrintDesk::printTopic(HWND owner, const topics::ShownTopic& topic) {
    TopicPages pages(topic);
    return TextOf(print(owner, false, pages), pages.name());
}

}  // namespace vexa
