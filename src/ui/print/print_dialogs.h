// The system's dialogs about printers, and the one that shows how far a job has got.
#pragma once

#include <windows.h>

#include <commdlg.h>

#include <string>

#include "base/notices.h"
#include "document/print/print_layout.h"
#include "document/print/print_run.h"
#include "framework/handle.h"
#include "ui/dialogs/editor_dialog.h"

namespace vexa {

struct GlobalBlockTraits {
    using Value = HGLOBAL;
    static void Close(HGLOBAL block) { GlobalFree(block); }
};
using GlobalBlock = Handle<GlobalBlockTraits>;
using PrinterDc = Handle<MemoryDcTraits>;  // is given back in the same way

enum class PrinterAnswer { Chosen, Cancelled, NoPrinter, Failed };

// What the user wants printed, and on what.
struct PrintOrder {
    PrinterDc printer;
    PrintArea area = PrintArea::Document;
    PrintSequence::Range pages;
};

// The printer that the user has chosen, with its paper: the system's default one at first, and again in the next run of
// the program.
class PrinterChoice {
  public:
    // Lets the user choose a printer and its paper. A dialog that is cancelled leaves the choice as it was.
    PrinterAnswer setUp(HWND owner);
    // Lets the user choose what to print; with a marked area that is offered first. Fills the order when the answer is
    // Chosen.
    PrinterAnswer ask(HWND owner, bool hasMarkedArea, PrintOrder& order);

  private:
    PrinterAnswer run(PRINTDLGA& request);
    PrinterAnswer askSystem(PRINTDLGA& request);
    PrinterAnswer call(PRINTDLGA& request);

    GlobalBlock settings_;  // a DEVMODE: paper, orientation, quality
    GlobalBlock names_;     // a DEVNAMES: which printer
};

// "Printing": stays until the job is at its end, and lets the user cancel it.
class PrintProgressDialog : public EditorDialog, public PrintProgress {
  public:
    PrintProgressDialog(ConfigStore& store, Notices& notices, std::string documentName);
    ~PrintProgressDialog() override { close(false); }

    bool pageComes(std::int64_t i, std::int64_t count) override;

  protected:
    void onOpen() override;
    void onAccept() override {}  // Enter cancels by the dialog's only button
    void onCancel() override { isCancelled_ = true; }

  private:
    Notices& notices_;
    const std::string documentName_;
    bool isCancelled_ = false;
};

}  // namespace vexa
