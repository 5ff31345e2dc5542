// The menus of a window, and below them a button for each of the commands that are used most.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/strings.h"

namespace vexa {

// Commands are named by their index, in the order in which they were added.
class CommandBar {
  public:
    struct Row {
        TextId text;  // of the menu's item; what stands before "\t" is the button's
        std::uint8_t menu;
        bool isButton;
    };

    void add(const Row& row) { rows_.push_back(row); }
    // Gives the owner its menus and buttons. False when there is no memory for them.
    bool open(HWND owner, std::span<const TextId> headings);
    void setFont(HFONT font);
    // Sets the buttons side by side along the upper edge of the owner; the height that they take, in pixels.
    int layOut(HFONT font);
    void enable(std::size_t command, bool isEnabled);

    // Of a message that the owner gets from a menu or a button; none of any other.
    std::optional<std::size_t> commandOf(WORD id) const;
    // Of a button; the menus have theirs by the system.
    std::optional<std::size_t> commandOfMnemonic(unsigned char character) const;

  private:
    bool openMenus(std::span<const TextId> headings) const;
    bool openButton(std::size_t command) const;
    HWND button(std::size_t command) const;

    HWND owner_ = nullptr;
    std::vector<Row> rows_;
};

}  // namespace vexa
