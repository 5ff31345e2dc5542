#include "ui/lists/list_window.h"

#include <algorithm>
#include <string>

#include "base/strings.h"
#include "framework/mdi_frame.h"
#include "framework/menu.h"
#include "ui/resources/resource.h"

namespace vexa {
namespace {

constexpr WORD kOpen = 1;
constexpr WORD kCopy = 2;
constexpr WORD kCopyAll = 3;
constexpr WORD kClear = 4;

MenuHandle MakeMenu() {
    const auto item = [](WORD id, TextId text) { return MenuItem{id, std::string(LoadText(text))}; };
    return MakePopupMenu({item(kOpen, TextId::ListOpen),
                          {},
                          item(kCopy, TextId::ListCopy),
                          item(kCopyAll, TextId::ListCopyAll),
                          {},
                          item(kClear, TextId::ListClear)});
}

}  // namespace

const WindowClass kListWindowClass{.name = "ListChildCL", .icon = IDI_DOCUMENT};

ListWindow::ListWindow(MDIframeCL& frame, ListHost& host, ListRows& rows, Application& application, Gone gone)
    : TextWindow(frame),
      host_(host),
      rows_(rows),
      clipboard_(application.clipboard),
      pane_(rows, application.display, application.font, *this),
      gone_(gone) {}

bool ListWindow::onSize(UINT /*kind*/) {
    pane_.place(clientArea());
    return false;  // the system keeps track of maximised windows here
}

bool ListWindow::onFocusGained() {
    SetFocus(pane_.window());
    return false;  // the system may have to make the window the active one
}

void ListWindow::onGone() {
    gone_();
    TextWindow::onGone();
}

void ListWindow::userActs() {
    if (frame().activeChild() != this) frame().activate(*this);
    host_.userActs();
}

void ListWindow::copyRows(RowSpan span) {
    std::string text;
    for (std::size_t row = span.first; row < span.first + span.count; ++row)
        text.append(rows_.rowText(row)).append("\r\n");
    std::ranges::replace(text, '\0', ' ');  // the clipboard would end there
    clipboard_.put(text, MarkMode::Lines);
}

void ListWindow::copy() {
    if (rows_.selectedRow()) copyRows(pane_.selection());
}

void ListWindow::copyAll() {
    copyRows({0, rows_.rowCount()});
}

void ListWindow::showContextMenu(POINT screenPosition) {
    const MenuHandle menu = MakeMenu();
    RefreshMenu(menu.get(), [this](WORD id) {
        const bool needsRow = id == kOpen || id == kCopy;
        return ItemState{needsRow ? rows_.selectedRow().has_value() : rows_.rowCount() > 0, false};
    });
    const int chosen = TrackPopupMenu(menu.get(), TPM_RIGHTBUTTON | TPM_RETURNCMD | TPM_NONOTIFY, screenPosition.x,
                                      screenPosition.y, 0, window(), nullptr);
    if (chosen == kOpen) rows_.activateRow();
    if (chosen == kCopy) copy();
    if (chosen == kCopyAll) copyAll();
    if (chosen == kClear) rows_.clearRows();
}

}  // namespace vexa
