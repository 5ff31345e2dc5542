#include "framework/tool_bar.h"

#include "framework/dpi.h"

namespace vexa {
namespace {

constexpr WindowClass kToolBarClass{.name = "CtrlWindowCL", .background = COLOR_BTNFACE};
constexpr COLORREF kMagenta = RGB(255, 0, 255);
constexpr int kGrowth = 16;  // pictures for which a full list makes room

std::vector<TBBUTTON> Items(const std::vector<ToolButton>& buttons) {
    std::vector<TBBUTTON> items;
    for (const ToolButton& button : buttons) {
        TBBUTTON item{};
        item.iBitmap = button.picture;
        item.idCommand = button.id;
        item.fsState = TBSTATE_ENABLED;
        item.fsStyle = button.id == 0 ? TBSTYLE_SEP : TBSTYLE_BUTTON;
        if (button.id == 0) item.iBitmap = 0;
        items.push_back(item);
    }
    return items;
}

// The strips have a palette of their own; a list of their depth would show them in the system's.
Handle<ImageListTraits> LoadPictures(const ToolPictures& pictures) {
    const BitmapHandle strip(static_cast<HBITMAP>(LoadImageA(
        GetModuleHandleA(nullptr), MAKEINTRESOURCEA(pictures.resource), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    Handle<ImageListTraits> images(
        ImageList_Create(pictures.height, pictures.height, ILC_COLOR24 | ILC_MASK, 0, kGrowth));
    ImageList_AddMasked(images.get(), strip.get(), kMagenta);
    return images;
}

}  // namespace

// The bar must not outlive the pictures that it shows.
ToolBarCL::~ToolBarCL() {
    destroy();
}

bool ToolBarCL::open(HWND parent) {
    return create(kToolBarClass, {.style = WS_CHILD | WS_CLIPCHILDREN, .area = {0, 0, 0, 0}, .parent = parent});
}

bool ToolBarCL::onCreate() {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_NORESIZE;
    bar_ = CreateWindowExA(0, TOOLBARCLASSNAMEA, "", kStyle, 0, 0, 0, 0, window(), nullptr, GetModuleHandleA(nullptr),
                           nullptr);
    if (!bar_) return false;
    SendMessageA(bar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    refreshPictures();
    std::vector<TBBUTTON> items = Items(buttons_);
    SendMessageA(bar_, TB_ADDBUTTONSA, items.size(), reinterpret_cast<LPARAM>(items.data()));
    return true;
}

const ToolPictures& ToolBarCL::fittingPictures() const {
    const ToolPictures* fitting = &pictures_.front();
    for (const ToolPictures& pictures : pictures_) {
        if (pictures.height <= Scaled(pictures_.front().height, DpiOf(window()))) fitting = &pictures;
    }
    return *fitting;
}

void ToolBarCL::refreshPictures() {
    const ToolPictures& pictures = fittingPictures();
    Handle<ImageListTraits> images = LoadPictures(pictures);
    SendMessageA(bar_, TB_SETBITMAPSIZE, 0, MAKELPARAM(pictures.height, pictures.height));
    SendMessageA(bar_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
    images_ = std::move(images);
}

int ToolBarCL::height() const {
    const auto size = static_cast<DWORD>(SendMessageA(bar_, TB_GETBUTTONSIZE, 0, 0));
    return HIWORD(size) + Scaled(4, DpiOf(window()));
}

bool ToolBarCL::onSize(UINT /*kind*/) {
    const RECT client = clientArea();
    const int gap = Scaled(2, DpiOf(window()));
    MoveWindow(bar_, gap, gap, client.right - gap, client.bottom - gap, TRUE);
    return true;
}

bool ToolBarCL::onCommand(WORD id, bool /*fromKey*/) {
    SendMessageA(GetParent(window()), WM_COMMAND, id, 0);
    return true;
}

bool ToolBarCL::onNotify(NMHDR& notice) {
    if (notice.code != TTN_NEEDTEXTA) return false;
    auto& request = reinterpret_cast<TOOLTIPTEXTA&>(notice);
    tip_ = tipOf_(static_cast<WORD>(notice.idFrom));
    request.lpszText = tip_.data();
    return true;
}

void ToolBarCL::showState(WORD id, const ItemState& state) {
    if ((SendMessageA(bar_, TB_ISBUTTONENABLED, id, 0) != 0) != state.enabled) {
        SendMessageA(bar_, TB_ENABLEBUTTON, id, MAKELPARAM(state.enabled, 0));
    }
    if ((SendMessageA(bar_, TB_ISBUTTONCHECKED, id, 0) != 0) != state.checked) {
        SendMessageA(bar_, TB_CHECKBUTTON, id, MAKELPARAM(state.checked, 0));
    }
}

}  // namespace vexa
