#include "framework/mdi_frame.h"

#include <algorithm>
#include <utility>

#include "framework/drawing_pause.h"
#include "framework/windows_behind.h"

namespace vexa {
namespace {

// The numbers of the child windows' menu items, above those of all commands.
constexpr UINT kFirstChildItem = 0x6000;

}  // namespace

bool MDIframeCL::openClient(HMENU windowMenu) {
    CLIENTCREATESTRUCT creation{windowMenu, kFirstChildItem};
    client_ = CreateWindowExA(WS_EX_CLIENTEDGE, "MDICLIENT", nullptr,
                              WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_VSCROLL | WS_HSCROLL, 0, 0, 0, 0, window(),
                              nullptr, GetModuleHandleA(nullptr), &creation);
    return client_ != nullptr;
}

void MDIframeCL::placeClient(const RECT& area) {
    MoveWindow(client_, area.left, area.top, area.right - area.left, area.bottom - area.top, TRUE);
}

LRESULT MDIframeCL::defaultProcedure(const Message& message) {
    return DefFrameProcA(window(), client_, message.number, message.wParam, message.lParam);
}

bool MDIframeCL::translate(MSG& message) {
    return AppFrameCL::translate(message) || (client_ && TranslateMDISysAccel(client_, &message));
}

bool MDIframeCL::onContextMenu(std::optional<POINT> screenPosition) {
    const MDIchildCL* active = activeChild();
    return screenPosition && active && IsZoomed(active->window()) && isOnTitle(*screenPosition) &&
           showTitleMenu(*screenPosition);
}

MDIchildCL* MDIframeCL::activeChild() const {
    const auto active = reinterpret_cast<HWND>(SendMessageA(client_, WM_MDIGETACTIVE, 0, 0));
    const auto isActive = [active](const auto& child) { return child->window() == active; };
    const auto found = std::ranges::find_if(children_, isActive);
    return active && found != children_.end() ? found->get() : nullptr;
}

void MDIframeCL::activate(const MDIchildCL& child) {
    if (IsIconic(child.window())) SendMessageA(client_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(child.window()), 0);
    SendMessageA(client_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(child.window()), 0);
}

void MDIframeCL::activateNext() {
    SendMessageA(client_, WM_MDINEXT, 0, 0);
}

void MDIframeCL::activatePrevious() {
    SendMessageA(client_, WM_MDINEXT, 0, 1);
}

void MDIframeCL::arrange(Arrangement arrangement) {
    struct Request {
        UINT message;
        WPARAM flags;
    };
    static constexpr Request kRequests[] = {
        {WM_MDICASCADE, 0},     {WM_MDITILE, 0}, {WM_MDITILE, MDITILE_VERTICAL}, {WM_MDITILE, MDITILE_HORIZONTAL},
        {WM_MDIICONARRANGE, 0},
    };
    const DrawingPause pause(client_);
    const Request& request = kRequests[static_cast<std::size_t>(arrangement)];
    SendMessageA(client_, request.message, request.flags, 0);
}

bool MDIframeCL::adopt(std::unique_ptr<MDIchildCL> child, const WindowClass& windowClass, const std::string& title,
                       ChildShow show) {
    MDIchildCL& opened = *child;
    children_.push_back(std::move(child));
    if (!openAs(opened, windowClass, title, show == ChildShow::Maximised)) {
        forget(opened);
        return false;
    }
    if (show == ChildShow::Minimised) ShowWindow(opened.window(), SW_MINIMIZE);
    if (show == ChildShow::Tiled) arrange(Arrangement::Tile);
    childrenChanged();
    return true;
}

// A maximised window opens in another size first, which nobody should see.
bool MDIframeCL::openAs(MDIchildCL& child, const WindowClass& windowClass, const std::string& title, bool maximised) {
    if (!maximised) return child.open(windowClass, title);
    const DrawingPause pause(client_);
    if (!child.open(windowClass, title)) return false;
    SendMessageA(client_, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(child.window()), 0);
    return true;
}

void MDIframeCL::moveChild(std::size_t from, std::size_t to) {
    auto moved = std::move(children_[from]);
    children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(from));
    children_.insert(children_.begin() + static_cast<std::ptrdiff_t>(to), std::move(moved));
}

std::vector<MDIchildCL*> MDIframeCL::childrenByUse() const {
    std::vector<MDIchildCL*> found;
    for (HWND window = GetWindow(client_, GW_CHILD); window; window = GetWindow(window, GW_HWNDNEXT)) {
        const auto child = std::ranges::find(children_, window, [](const auto& owned) { return owned->window(); });
        if (child != children_.end()) found.push_back(child->get());
    }
    return found;
}

bool MDIframeCL::owns(const MDIchildCL* child) const {
    return std::ranges::any_of(children_, [child](const auto& owned) { return owned.get() == child; });
}

bool MDIframeCL::closeChild(MDIchildCL& child) {
    if (!child.mayClose()) return false;
    closeAgreed(child);
    return true;
}

void MDIframeCL::closeAgreed(MDIchildCL& child) {
    child.onClosing();
    SendMessageA(client_, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child.window()), 0);
}

bool MDIframeCL::mayCloseChildren() const {
    return std::ranges::all_of(children_, [](const auto& child) { return child->mayClose(); });
}

// What another program asks for in the middle of that is put off, for it asks once.
bool MDIframeCL::onClose() {
    if (!isClosingChildren_) return AppFrameCL::onClose();
    isCloseWanted_ = true;
    return true;
}

// The frame and what is open beside it take nothing in meanwhile: no key may reach a document that the user has agreed
// to close.
void MDIframeCL::closeChildren(const std::vector<MDIchildCL*>& order) {
    const DrawingPause pause(client_);
    const WindowsBehind behind(window());
    EnableWindow(window(), FALSE);
    isClosingChildren_ = true;
    for (MDIchildCL* child : order) {
        if (owns(child)) closeAgreed(*child);
        if (pumpMessages()) break;
    }
    isClosingChildren_ = false;
    EnableWindow(window(), TRUE);
    if (std::exchange(isCloseWanted_, false)) PostMessageA(window(), WM_CLOSE, 0, 0);
}

void MDIframeCL::forget(const MDIchildCL& child) {
    std::erase_if(children_, [&child](const auto& owned) { return owned.get() == &child; });
    childrenChanged();
}

}  // namespace vexa
