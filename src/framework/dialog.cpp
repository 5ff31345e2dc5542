#include "framework/dialog.h"

#include <utility>

#include "framework/centred.h"
#include "framework/windows_behind.h"

namespace vexa {
namespace {

HINSTANCE Program() {
    return GetModuleHandleA(nullptr);
}

RECT AreaOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return area;
}

POINT CornerOf(HWND window) {
    const RECT area = AreaOf(window);
    return {area.left, area.top};
}

// A corner kept from a monitor that is gone would put the dialog where nobody finds it.
bool IsOnAMonitor(POINT corner) {
    return MonitorFromPoint(corner, MONITOR_DEFAULTTONULL) != nullptr;
}

// The messages of a control that lists texts: a list box and a combo box have their own.
struct ListMessages {
    UINT clear;
    UINT add;
    UINT choose;
    UINT chosen;
};
constexpr ListMessages kListBox = {LB_RESETCONTENT, LB_ADDSTRING, LB_SETCURSEL, LB_GETCURSEL};
constexpr ListMessages kComboBox = {CB_RESETCONTENT, CB_ADDSTRING, CB_SETCURSEL, CB_GETCURSEL};

const ListMessages& MessagesOf(HWND list) {
    char name[16] = "";
    GetClassNameA(list, name, sizeof(name));
    return lstrcmpiA(name, "ComboBox") == 0 ? kComboBox : kListBox;
}

}  // namespace

DialogFrameCL::~DialogFrameCL() {
    if (!window_) return;
    SetWindowLongPtrA(window_, DWLP_USER, 0);
    DestroyWindow(window_);
}

bool DialogFrameCL::runModal(HWND owner) {
    isModal_ = true;
    const WindowsBehind behind(owner);
    return DialogBoxParamA(Program(), MAKEINTRESOURCEA(resource_), owner, &DialogFrameCL::Procedure,
                           reinterpret_cast<LPARAM>(this)) == IDOK;
}

bool DialogFrameCL::openModeless(HWND owner) {
    isModal_ = false;
    return CreateDialogParamA(Program(), MAKEINTRESOURCEA(resource_), owner, &DialogFrameCL::Procedure,
                              reinterpret_cast<LPARAM>(this)) != nullptr;
}

void DialogFrameCL::close(bool accepted) {
    if (!window_) return;
    if (isModal_) {
        EndDialog(window_, accepted ? IDOK : IDCANCEL);
    } else {
        DestroyWindow(window_);
    }
}

// ---- messages ----------------------------------------------------------------------------------------------------

INT_PTR CALLBACK DialogFrameCL::Procedure(HWND window, UINT number, WPARAM wParam, LPARAM lParam) noexcept {
    auto* dialog = reinterpret_cast<DialogFrameCL*>(GetWindowLongPtrA(window, DWLP_USER));
    if (number == WM_INITDIALOG) {
        if (dialog) return FALSE;  // another program's: the system sends one alone
        SetWindowLongPtrA(window, DWLP_USER, lParam);
        dialog = reinterpret_cast<DialogFrameCL*>(lParam);
        dialog->window_ = window;
    }
    if (!dialog) return FALSE;
    try {
        return dialog->receive(number, wParam, lParam);
    } catch (...) {
        OutputDebugStringA("A dialog's handler failed.");
        return FALSE;
    }
}

INT_PTR DialogFrameCL::receive(UINT number, WPARAM wParam, LPARAM lParam) {
    switch (number) {
        case WM_INITDIALOG:
            open();
            return !IsChild(window_, GetFocus());  // a handler may have chosen the control to begin with
        case WM_COMMAND:
            command(LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        case WM_HELP:
            onHelp();
            return TRUE;
        case WM_DRAWITEM:
            return onDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        case WM_ACTIVATE:
            onActivate(LOWORD(wParam) != WA_INACTIVE);
            return FALSE;
        case WM_DESTROY:
            keepPosition();
            return FALSE;
        case WM_NCDESTROY:
            SetWindowLongPtrA(window_, DWLP_USER, 0);
            window_ = nullptr;
            onGone();
            return FALSE;
        default:
            return FALSE;
    }
}

void DialogFrameCL::open() {
    placeAtOpening();
    onOpen();
    unmarkOtherCombos();
}

// The system marks the text of each combo box that is filled, and shows that also where the focus is not.
void DialogFrameCL::unmarkOtherCombos() {
    const HWND chosen = GetFocus();
    const HWND focus = IsChild(window_, chosen) ? chosen : GetNextDlgTabItem(window_, nullptr, FALSE);
    for (HWND child = GetWindow(window_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (child != focus && !IsChild(child, focus)) SendMessageA(child, CB_SETEDITSEL, 0, 0);
    }
}

// What another program presses behind a box would end the dialog that the box belongs to.
void DialogFrameCL::command(int id, UINT notification) {
    struct Button {
        int id;
        void (DialogFrameCL::*press)();
    };
    static constexpr Button kButtons[] = {
        {IDOK, &DialogFrameCL::onAccept}, {IDCANCEL, &DialogFrameCL::onCancel}, {IDHELP, &DialogFrameCL::onHelp}};
    for (const Button& button : kButtons) {
        if (button.id != id) continue;
        if (IsWindowEnabled(window_)) (this->*button.press)();
        return;
    }
    onControl(id, notification);
}

// ---- position ----------------------------------------------------------------------------------------------------

void DialogFrameCL::placeAtOpening() {
    const RECT owner = AreaOf(GetWindow(window_, GW_OWNER));
    const std::optional<POINT> kept = openingCorner({owner.left, owner.top});
    const POINT corner = kept && IsOnAMonitor(*kept) ? *kept : CentredOver(owner, AreaOf(window_));
    SetWindowPos(window_, nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogFrameCL::keepPosition() {
    keepCorner(CornerOf(GetWindow(window_, GW_OWNER)), CornerOf(window_));
}

// ---- controls ----------------------------------------------------------------------------------------------------

std::string DialogFrameCL::textOf(int number) const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(control(number))), '\0');
    const int length = GetWindowTextA(control(number), text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void DialogFrameCL::setTextOf(int number, const std::string& text) {
    SetDlgItemTextA(window_, number, text.c_str());
}

void DialogFrameCL::limitTextOf(int number, std::size_t characters) {
    SendDlgItemMessageA(window_, number, EM_LIMITTEXT, characters, 0);
}

void DialogFrameCL::limitComboText(int number, std::size_t characters) {
    SendDlgItemMessageA(window_, number, CB_LIMITTEXT, characters, 0);
}

void DialogFrameCL::fillList(int number, std::span<const std::string> texts) {
    const HWND list = control(number);
    const ListMessages& messages = MessagesOf(list);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, messages.clear, 0, 0);
    for (const std::string& text : texts)
        SendMessageA(list, messages.add, 0, reinterpret_cast<LPARAM>(text.c_str()));
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(list, nullptr, TRUE);
}

void DialogFrameCL::chooseRow(int number, std::size_t row) {
    SendMessageA(control(number), MessagesOf(control(number)).choose, row, 0);
}

std::optional<std::size_t> DialogFrameCL::chosenRowOf(int number) const {
    const LRESULT row = SendMessageA(control(number), MessagesOf(control(number)).chosen, 0, 0);
    if (row < 0) return std::nullopt;  // LB_ERR, CB_ERR
    return static_cast<std::size_t>(row);
}

void DialogFrameCL::moveListFrom(int field, int list) {
    const auto original = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(control(field), GWLP_WNDPROC));
    listKeys_.push_back(std::make_unique<ListKeys>(ListKeys{original, control(list)}));
    SetWindowLongPtrA(control(field), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(listKeys_.back().get()));
    SetWindowLongPtrA(control(field), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DialogFrameCL::FieldProcedure));
}

LRESULT CALLBACK DialogFrameCL::FieldProcedure(HWND field, UINT number, WPARAM wParam, LPARAM lParam) noexcept {
    const auto* keys = reinterpret_cast<const ListKeys*>(GetWindowLongPtrA(field, GWLP_USERDATA));
    const bool moves = wParam == VK_UP || wParam == VK_DOWN || wParam == VK_PRIOR || wParam == VK_NEXT;
    if (number == WM_KEYDOWN && moves) return SendMessageA(keys->list, number, wParam, lParam);
    return CallWindowProcA(keys->original, field, number, wParam, lParam);
}

void DialogFrameCL::markComboText(int number) {
    SendDlgItemMessageA(window_, number, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

std::string DialogFrameCL::chosenTextOf(int number) const {
    const HWND combo = control(number);
    const auto chosen = static_cast<WPARAM>(SendMessageA(combo, CB_GETCURSEL, 0, 0));
    const LRESULT length = SendMessageA(combo, CB_GETLBTEXTLEN, chosen, 0);
    if (length <= 0) return {};  // CB_ERR is below 0
    std::string text(static_cast<std::size_t>(length), '\0');
    const LRESULT copied = SendMessageA(combo, CB_GETLBTEXT, chosen, reinterpret_cast<LPARAM>(text.data()));
    text.resize(copied > 0 ? static_cast<std::size_t>(copied) : 0);
    return text;
}

bool DialogFrameCL::isChecked(int number) const {
    return IsDlgButtonChecked(window_, number) == BST_CHECKED;
}

void DialogFrameCL::setChecked(int number, bool checked) {
    CheckDlgButton(window_, number, checked ? BST_CHECKED : BST_UNCHECKED);
}

void DialogFrameCL::enable(int number, bool enabled) {
    EnableWindow(control(number), enabled);
}

void DialogFrameCL::focusOn(int number) {
    SendMessageA(window_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control(number)), TRUE);
}

}  // namespace vexa
