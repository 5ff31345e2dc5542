// Menus made from rows at run time.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "framework/handle.h"

namespace vexa {

// An item, or a separator when it has no text.
struct MenuItem {
    WORD id = 0;
    std::string text;
};

struct MenuRows {
    std::string heading;
    std::vector<MenuItem> items;
};

// How an item is shown at the moment its menu opens.
struct ItemState {
    bool enabled = true;
    bool checked = false;
};

MenuHandle MakePopupMenu(const std::vector<MenuItem>& items);
// Lets the user choose from a pop-up menu; the item's number, 0 for none. The corner is one of the screen.
WORD ChooseFromMenu(HWND owner, POINT corner, const std::vector<MenuItem>& items);
MenuHandle MakeMenuBar(const std::vector<MenuRows>& menus);

// Puts items in before the one with a number, in the place of those that it put there before, and a separator
// after them. The items and the separator must have numbers of their own.
void ReplaceItemsBefore(HMENU menu, WORD before, const std::vector<WORD>& numbers, const std::vector<MenuItem>& items,
                        WORD separator);

// Puts items in at the end of a menu, in the place of those that it put there before, and a separator above them.
void ReplaceItemsAtEnd(HMENU menu, const std::vector<WORD>& numbers, const std::vector<MenuItem>& items,
                       WORD separator);
// The menu of a menu bar that has the item; none when there is none.
HMENU SubmenuWith(HMENU bar, WORD item);

// Greys and checks the items of an opened menu. Items that stateOf knows nothing of (none) stay as they are.
using StateQuery = std::function<std::optional<ItemState>(WORD id)>;
void RefreshMenu(HMENU menu, const StateQuery& stateOf);

}  // namespace vexa
