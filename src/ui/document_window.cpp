#include "ui/document_window.h"

#include "framework/mdi_frame.h"
#include "ui/resource.h"

namespace vexa {
namespace {

constexpr int kMarginCells = 2;

}  // namespace

const WindowClass kDocumentWindowClass{.name = "MDIchildCL", .icon = IDI_DOCUMENT};

DocumentWindow::DocumentWindow(MDIframeCL& frame, DocumentHost& host, Application& application, Notices& notices)
    : MDIchildCL(frame),
      host_(host),
      options_(application.options),
      document_(application.options, notices),
      view_(document_, application.options, notices),
      margin_(application.colours),
      pane_(view_, application.colours, application.font, *this) {}

std::string DocumentWindow::caption() const {
    return document_.isModified() ? document_.fullPath() + " *" : document_.fullPath();
}

bool DocumentWindow::onCreate() {
    return margin_.open(window()) && pane_.open(window());
}

bool DocumentWindow::onSize(UINT /*kind*/) {
    layOut();
    return false;  // the system keeps track of maximised windows here
}

void DocumentWindow::layOut() {
    const RECT client = clientArea();
    const LONG margin = options_.HasMargin ? kMarginCells * pane_.cellWidth() : 0;
    margin_.place({0, 0, margin, client.bottom});
    pane_.place({margin, 0, client.right, client.bottom});
}

void DocumentWindow::refreshFont() {
    pane_.refreshFont();
    layOut();
}

void DocumentWindow::refreshOptions() {
    layOut();
    refresh();
}

bool DocumentWindow::onFocusGained() {
    SetFocus(pane_.window());
    return false;  // the system may have to make the window the active one
}

bool DocumentWindow::onMdiActivate(bool active) {
    if (active) host_.documentChanged(*this);
    return false;
}

void DocumentWindow::userActs() {
    if (frame().activeChild() != this) frame().activate(*this);
    host_.userActs();
}

void DocumentWindow::viewChanged() {
    setText(caption());
    if (frame().activeChild() == this) host_.documentChanged(*this);
}

}  // namespace vexa
