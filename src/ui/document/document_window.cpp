#include "ui/document/document_window.h"

#include <algorithm>

#include "base/directories.h"
#include "base/platform.h"
#include "framework/mdi_frame.h"
#include "ui/resources/resource.h"

namespace vexa {

namespace {

constexpr std::size_t kRootLength = 3;  // "C:\\", which keeps its backslash

}  // namespace

const WindowClass kDocumentWindowClass{.name = "MDIchildCL", .icon = IDI_DOCUMENT};

DocumentWindow::DocumentWindow(MDIframeCL& frame, DocumentHost& host, Application& application, Notices& notices)
    : TextWindow(frame),
      host_(host),
      options_(application.options),
      document_(application.options, notices),
      view_(document_, application.options, notices),
      pane_(view_, application.display, application.font, *this),
      margin_(view_, pane_.painter(), application.display, *this) {
    view_.setHighlighting(application.display.isHighlightingOn());
    view_.setClipboard(application.clipboard);
    view_.setElectric(application.electric);
}

std::string DocumentWindow::caption() const {
    const std::string directory = DirectoryOf(document_.fullPath());
    std::string text = document_.fullPath().substr(directory.size());
    if (document_.isModified()) text += " *";
    if (!directory.empty()) text += " - " + directory.substr(0, std::max(directory.size() - 1, kRootLength));
    return text;
}

bool DocumentWindow::onCreate() {
    return pane_.open(window()) && margin_.open(window());
}

bool DocumentWindow::onSize(UINT /*kind*/) {
    layOut();
    return false;  // the system keeps track of maximised windows here
}

void DocumentWindow::layOut() {
    const RECT client = clientArea();
    marginWidth_ = options_.HasMargin ? margin_.width() : 0;
    margin_.place({0, 0, marginWidth_, client.bottom});
    pane_.place({marginWidth_, 0, client.right, client.bottom});
}

void DocumentWindow::refreshFont() {
    pane_.refreshFont();
    layOut();
    margin_.redraw();
}

void DocumentWindow::refreshColours() {
    pane_.refreshColours();
    margin_.redraw();
}

void DocumentWindow::refreshOptions() {
    layOut();
    refresh();
}

void DocumentWindow::recover() {
    document_.history().nextGroup();
    refresh();
}

bool DocumentWindow::onFocusGained() {
    SetFocus(pane_.window());
    return false;  // the system may have to make the window the active one
}

bool DocumentWindow::onMdiActivate(bool active) {
    if (active) lookAtFile();
    return TextWindow::onMdiActivate(active);
}

void DocumentWindow::refreshName() {
    lookAtFile();
    refresh();
}

void DocumentWindow::lookAtFile() {
    const auto facts = document_.isNamed() ? platform::FactsOf(document_.fullPath()) : std::nullopt;
    isReadOnly_ = facts && facts->isReadOnly;
}

void DocumentWindow::userActs() {
    if (frame().activeChild() != this) frame().activate(*this);
    host_.userActs();
}

// The margin grows with the number of lines.
void DocumentWindow::viewChanged() {
    if (options_.HasMargin && margin_.width() != marginWidth_) layOut();
    margin_.refresh();
    setText(caption());
    if (frame().activeChild() == this) host_.documentChanged(*this);
}

}  // namespace vexa
