#include "ui/help/command_bar.h"

#include <string>

#include "base/ascii.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/menu.h"

namespace vexa {
namespace {

constexpr WORD kFirstId = 1;
constexpr int kGap = 3;  // pixels at the normal resolution, as is the other
constexpr int kButtonEdges = 16;

WORD IdOf(std::size_t command) {
    return static_cast<WORD>(kFirstId + command);
}

std::string ButtonText(const CommandBar::Row& row) {
    const std::string_view text = LoadText(row.text);
    return std::string(text.substr(0, text.find('\t')));
}

char MnemonicOf(std::string_view text) {
    const std::size_t mark = text.find('&');
    return mark + 1 < text.size() ? LowerAscii(text[mark + 1]) : '\0';
}

}  // namespace

bool CommandBar::open(HWND owner, std::span<const TextId> headings) {
    owner_ = owner;
    bool isMade = openMenus(headings);
    for (std::size_t i = 0; i < rows_.size(); ++i)
        isMade = isMade && (!rows_[i].isButton || openButton(i));
    return isMade;
}

bool CommandBar::openMenus(std::span<const TextId> headings) const {
    std::vector<MenuRows> menus;
    for (const TextId heading : headings)
        menus.push_back({std::string(LoadText(heading)), {}});
    for (std::size_t i = 0; i < rows_.size(); ++i)
        menus[rows_[i].menu].items.push_back({IdOf(i), std::string(LoadText(rows_[i].text))});
    MenuHandle bar = MakeMenuBar(menus);
    if (!SetMenu(owner_, bar.get())) return false;
    static_cast<void>(bar.release());  // the window now owns it
    return true;
}

bool CommandBar::openButton(std::size_t command) const {
    return CreateWindowExA(0, "BUTTON", ButtonText(rows_[command]).c_str(), WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, owner_,
                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(IdOf(command))), GetModuleHandleA(nullptr),
                           nullptr) != nullptr;
}

// None where the command has none.
HWND CommandBar::button(std::size_t command) const {
    return GetDlgItem(owner_, IdOf(command));
}

void CommandBar::setFont(HFONT font) {
    for (std::size_t i = 0; i < rows_.size(); ++i)
        SendMessageA(button(i), WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

int CommandBar::layOut(HFONT font) {
    const int dpi = DpiOf(owner_);
    const int gap = Scaled(kGap, dpi);
    const int height = static_cast<int>(MetricsOf(owner_, font).tmHeight) + Scaled(kButtonEdges, dpi) / 2;
    int x = gap;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (!rows_[i].isButton) continue;
        const int width = TextWidth(owner_, font, ButtonText(rows_[i])) + Scaled(kButtonEdges, dpi);
        MoveWindow(button(i), x, gap, width, height, TRUE);
        x += width + gap;
    }
    return height + 2 * gap;
}

void CommandBar::enable(std::size_t command, bool isEnabled) {
    EnableWindow(button(command), isEnabled);
    EnableMenuItem(GetMenu(owner_), IdOf(command), MF_BYCOMMAND | (isEnabled ? MF_ENABLED : MF_GRAYED));
}

std::optional<std::size_t> CommandBar::commandOf(WORD id) const {
    if (id < kFirstId || id >= IdOf(rows_.size())) return std::nullopt;
    return id - kFirstId;
}

std::optional<std::size_t> CommandBar::commandOfMnemonic(unsigned char character) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const bool isMeant = MnemonicOf(LoadText(rows_[i].text)) == LowerAscii(static_cast<char>(character));
        if (isMeant && IsWindowEnabled(button(i))) return i;
    }
    return std::nullopt;
}

}  // namespace vexa
