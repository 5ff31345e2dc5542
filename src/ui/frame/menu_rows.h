// The command table's rows as the menus and keys that the framework makes.
#pragma once

#include <vector>

#include "framework/accelerators.h"
#include "framework/menu.h"

namespace vexa {

struct MenuBarRows {
    std::vector<MenuRows> menus;
    std::size_t windowMenu = 0;  // the menu at whose end the windows are listed
};

MenuBarRows MainMenuRows();
// The pop-up menus of a document's text and of its title.
std::vector<MenuItem> ContextMenuItems();
std::vector<MenuItem> TitleMenuItems();
std::vector<AcceleratorKey> AcceleratorKeys();

}  // namespace vexa
