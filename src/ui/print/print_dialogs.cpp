#include "ui/print/print_dialogs.h"

#include <cderr.h>

#include "base/strings.h"
#include "framework/windows_behind.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

PrinterAnswer AnswerTo(DWORD error) {
    switch (error) {
        case 0:
            return PrinterAnswer::Cancelled;
        case PDERR_NODEFAULTPRN:
        case PDERR_NODEVICES:
        case PDERR_PRINTERNOTFOUND:
            return PrinterAnswer::NoPrinter;
        default:
            return PrinterAnswer::Failed;
    }
}

PrintSequence::Range RangeOf(const PRINTDLGA& request) {
    PrintSequence::Range range;
    if (request.Flags & PD_PAGENUMS) {
        range.first = request.nFromPage;
        range.last = request.nToPage;
    }
    range.copies = request.nCopies;
    range.collate = (request.Flags & PD_COLLATE) != 0;
    return range;
}

// A number of copies is meant once, unlike the paper.
void ForgetCopies(HGLOBAL settings) {
    auto* mode = static_cast<DEVMODEA*>(GlobalLock(settings));
    if (!mode) return;
    if (mode->dmFields & DM_COPIES) mode->dmCopies = 1;
    GlobalUnlock(settings);
}

}  // namespace

// ---- the printer -------------------------------------------------------------------------------------------------

PrinterAnswer PrinterChoice::run(PRINTDLGA& request) {
    const bool wasChosen = settings_ || names_;
    const PRINTDLGA asked = request;
    const PrinterAnswer answer = askSystem(request);
    const bool isGone = wasChosen && (answer == PrinterAnswer::NoPrinter || answer == PrinterAnswer::Failed);
    if (!isGone) return answer;
    // The printer chosen before is there no more: the system's default one takes its place.
    settings_.reset();
    names_.reset();
    request = asked;
    return askSystem(request);
}

// Without any printer the dialog of some systems tells so in a box of its own, of others not at all; so the default
// printer is asked for first, which opens nothing.
PrinterAnswer PrinterChoice::askSystem(PRINTDLGA& request) {
    if (!settings_ && !names_) {
        PRINTDLGA standard{};
        standard.Flags = PD_RETURNDEFAULT;
        const PrinterAnswer found = call(standard);
        if (found != PrinterAnswer::Chosen) return found;
    }
    return call(request);
}

// The dialog may move the blocks that it is given, or free them and make others.
PrinterAnswer PrinterChoice::call(PRINTDLGA& request) {
    request.lStructSize = sizeof(request);
    request.Flags |= PD_NOWARNING;
    request.hDevMode = settings_.release();
    request.hDevNames = names_.release();
    const bool isChosen = PrintDlgA(&request) != 0;
    settings_.reset(request.hDevMode);
    names_.reset(request.hDevNames);
    return isChosen ? PrinterAnswer::Chosen : AnswerTo(CommDlgExtendedError());
}

PrinterAnswer PrinterChoice::setUp(HWND owner) {
    PRINTDLGA request{};
    request.hwndOwner = owner;
    request.Flags = PD_PRINTSETUP;
    const WindowsBehind behind(owner);
    return run(request);
}

PrinterAnswer PrinterChoice::ask(HWND owner, bool hasMarkedArea, PrintOrder& order) {
    if (settings_) ForgetCopies(settings_.get());
    PRINTDLGA request{};
    request.hwndOwner = owner;
    request.Flags = PD_RETURNDC | PD_HIDEPRINTTOFILE | (hasMarkedArea ? PD_SELECTION : PD_NOSELECTION);
    request.nFromPage = 1;
    request.nToPage = 1;
    request.nMinPage = 1;
    request.nMaxPage = 0xFFFF;  // how many there are depends on the paper that is chosen here
    request.nCopies = 1;
    const WindowsBehind behind(owner);
    const PrinterAnswer answer = run(request);
    order.printer.reset(request.hDC);
    if (answer != PrinterAnswer::Chosen) return answer;
    order.area = request.Flags & PD_SELECTION ? PrintArea::Marked : PrintArea::Document;
    order.pages = RangeOf(request);
    return order.printer ? answer : PrinterAnswer::Failed;
}

// ---- the job -----------------------------------------------------------------------------------------------------

PrintProgressDialog::PrintProgressDialog(ConfigStore& store, Notices& notices, std::string documentName)
    : EditorDialog(store, IDD_PRINTING), notices_(notices), documentName_(std::move(documentName)) {}

void PrintProgressDialog::onOpen() {
    setTextOf(IDC_PRINTED_DOCUMENT, documentName_);
}

bool PrintProgressDialog::pageComes(std::int64_t i, std::int64_t count) {
    setTextOf(IDC_PRINTED_PAGE, FillText(TextId::PageOf, {std::to_string(i), std::to_string(count)}));
    UpdateWindow(window());
    return !notices_.pumpMessages() && !isCancelled_;
}

}  // namespace vexa
