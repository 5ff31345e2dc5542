#include "framework/mdi_frame.h"

#include <algorithm>

namespace vexa {
namespace {

// The numbers of the child windows' menu items, above those of all commands.
constexpr UINT kFirstChildItem = 0x6000;

// While it lives, the children of the client window come and go unseen; then all is drawn at once.
class DrawingPause {
  public:
    explicit DrawingPause(HWND client) : client_(client) { SendMessageA(client, WM_SETREDRAW, FALSE, 0); }
    ~DrawingPause() {
        SendMessageA(client_, WM_SETREDRAW, TRUE, 0);
        RedrawWindow(client_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    }
    DrawingPause(const DrawingPause&) = delete;
    DrawingPause& operator=(const DrawingPause&) = delete;

  private:
    HWND client_;
};

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

bool MDIframeCL::closeChild(MDIchildCL& child) {
    if (!child.mayClose()) return false;
    SendMessageA(client_, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child.window()), 0);
    return true;
}

bool MDIframeCL::closeChildren() {
    while (!children_.empty()) {
        const std::size_t count = children_.size();
        const bool isClosed = closeChild(*children_.front()) && children_.size() < count;
        if (!isClosed) return false;
    }
    return true;
}

void MDIframeCL::forget(const MDIchildCL& child) {
    std::erase_if(children_, [&child](const auto& owned) { return owned.get() == &child; });
    childrenChanged();
}

}  // namespace vexa
