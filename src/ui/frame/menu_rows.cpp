#include "ui/frame/menu_rows.h"

#include <algorithm>

#include "shell/command_table.h"

namespace vexa {
namespace {

// All menus of some kinds, in order.
std::vector<MenuRows> MenusOf(std::initializer_list<MenuEntryKind> kinds) {
    std::vector<MenuRows> menus;
    bool isWanted = false;
    for (const MenuEntry& entry : MenuEntries()) {
        const bool opensMenu = entry.kind < MenuEntryKind::Command;
        const bool isShown = entry.kind == MenuEntryKind::Separator || !entry.text.empty();
        if (opensMenu) {
            isWanted = std::find(kinds.begin(), kinds.end(), entry.kind) != kinds.end();
            if (isWanted) menus.push_back({std::string(entry.text), {}});
        } else if (isWanted && isShown) {
            menus.back().items.push_back({static_cast<WORD>(entry.id), std::string(entry.text)});
        }
    }
    return menus;
}

}  // namespace

MenuBarRows MainMenuRows() {
    MenuBarRows rows;
    rows.menus = MenusOf({MenuEntryKind::Bar, MenuEntryKind::WindowList});
    const std::string heading = MenusOf({MenuEntryKind::WindowList}).front().heading;
    while (rows.menus[rows.windowMenu].heading != heading)
        ++rows.windowMenu;
    return rows;
}

std::vector<MenuItem> ContextMenuItems() {
    return MenusOf({MenuEntryKind::Context}).front().items;
}

std::vector<MenuItem> TitleMenuItems() {
    return MenusOf({MenuEntryKind::Title}).front().items;
}

std::vector<AcceleratorKey> AcceleratorKeys() {
    std::vector<AcceleratorKey> keys;
    for (const Accelerator& row : Accelerators()) {
        keys.push_back({row.key, row.shift, row.control, row.alt, static_cast<WORD>(row.id)});
    }
    return keys;
}

}  // namespace vexa
