#include "framework/menu.h"

namespace vexa {
namespace {

void AppendItem(HMENU menu, const MenuItem& item) {
    if (item.text.empty()) {
        AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
    } else {
        AppendMenuA(menu, MF_STRING, item.id, item.text.c_str());
    }
}

void DeleteItems(HMENU menu, const std::vector<WORD>& numbers, WORD separator) {
    for (const WORD number : numbers)
        DeleteMenu(menu, number, MF_BYCOMMAND);
    DeleteMenu(menu, separator, MF_BYCOMMAND);
}

}  // namespace

MenuHandle MakePopupMenu(const std::vector<MenuItem>& items) {
    MenuHandle menu(CreatePopupMenu());
    for (const MenuItem& item : items)
        AppendItem(menu.get(), item);
    return menu;
}

WORD ChooseFromMenu(HWND owner, POINT corner, const std::vector<MenuItem>& items) {
    const MenuHandle menu = MakePopupMenu(items);
    constexpr UINT kFlags = TPM_LEFTALIGN | TPM_RETURNCMD | TPM_NONOTIFY;
    return static_cast<WORD>(TrackPopupMenu(menu.get(), kFlags, corner.x, corner.y, 0, owner, nullptr));
}

MenuHandle MakeMenuBar(const std::vector<MenuRows>& menus) {
    MenuHandle bar(CreateMenu());
    for (const MenuRows& rows : menus) {
        MenuHandle popup = MakePopupMenu(rows.items);
        const auto id = reinterpret_cast<UINT_PTR>(popup.get());
        // The bar now owns the menu.
        if (AppendMenuA(bar.get(), MF_POPUP, id, rows.heading.c_str())) static_cast<void>(popup.release());
    }
    return bar;
}

void ReplaceItemsBefore(HMENU menu, WORD before, const std::vector<WORD>& numbers, const std::vector<MenuItem>& items,
                        WORD separator) {
    DeleteItems(menu, numbers, separator);
    for (const MenuItem& item : items)
        InsertMenuA(menu, before, MF_BYCOMMAND | MF_STRING, item.id, item.text.c_str());
    if (!items.empty()) InsertMenuA(menu, before, MF_BYCOMMAND | MF_SEPARATOR, separator, nullptr);
}

void ReplaceItemsAtEnd(HMENU menu, const std::vector<WORD>& numbers, const std::vector<MenuItem>& items,
                       WORD separator) {
    DeleteItems(menu, numbers, separator);
    if (!items.empty()) AppendMenuA(menu, MF_SEPARATOR, separator, nullptr);
    for (const MenuItem& item : items)
        AppendItem(menu, item);
}

HMENU SubmenuWith(HMENU bar, WORD item) {
    for (int i = 0; i < GetMenuItemCount(bar); ++i) {
        const HMENU menu = GetSubMenu(bar, i);
        if (menu && GetMenuState(menu, item, MF_BYCOMMAND) != static_cast<UINT>(-1)) return menu;
    }
    return nullptr;
}

void RefreshMenu(HMENU menu, const StateQuery& stateOf) {
    const int count = GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position) {
        const UINT id = GetMenuItemID(menu, position);
        const auto state = id == 0 || id > 0xFFFF ? std::nullopt : stateOf(static_cast<WORD>(id));
        if (!state) continue;
        const auto item = static_cast<UINT>(position);
        EnableMenuItem(menu, item, MF_BYPOSITION | (state->enabled ? MF_ENABLED : MF_GRAYED));
        CheckMenuItem(menu, item, MF_BYPOSITION | (state->checked ? MF_CHECKED : MF_UNCHECKED));
    }
}

}  // namespace vexa
