// What is known of every command: its place in the menus, its keys, its help text, and what it needs. The rows stand in
// commands.def; menus, accelerators and status help are all read off them here.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "shell/command_id.h"

namespace vexa {

// What must be there before a command can run.
enum class CommandNeed : std::uint8_t {
    Nothing,
    Window,    // some window inside the frame
    Document,  // the active window shows a document
    EditArea,  // the active window takes the editing commands: a document, or a list of output lines
};

// Whether choosing the command while a macro is recorded warns that the macro will not hold it.
enum class MacroUse : std::uint8_t { Silent, Warns };

struct CommandRow {
    CommandId id{};
    std::string_view menuText;  // with the key shown after a tab; empty when no menu shows it of itself
    std::string_view keys;      // "Alt+E", several separated by ", "
    std::string_view statusText;
    MacroUse macro = MacroUse::Silent;
    CommandNeed need = CommandNeed::Nothing;
};

enum class MenuEntryKind : std::uint8_t {
    Bar,         // opens a menu of the menu bar
    WindowList,  // the same; the document windows are listed at its end
    Context,     // opens the edit view's pop-up menu
    KeysOnly,    // the commands below are in no menu
    Command,
    Separator,
};

// One entry of the menus in their order; those up to the next opening one belong to a menu.
struct MenuEntry {
    MenuEntryKind kind = MenuEntryKind::Separator;
    std::string_view text;
    CommandId id{};
};

// A key with exactly these modifiers. The key is a virtual-key code as Windows numbers them.
struct Accelerator {
    std::uint16_t key = 0;
    bool shift = false;
    bool control = false;
    bool alt = false;
    CommandId id{};
};

std::span<const CommandRow> Commands();
std::span<const MenuEntry> MenuEntries();
// In the order of the commands; of two equal keys the first one counts.
std::span<const Accelerator> Accelerators();

// None for a number that is no command.
const CommandRow* FindCommand(CommandId id);
// The help text that the status bar shows for a command; empty when it has none.
std::string_view StatusTextOf(CommandId id);

}  // namespace vexa
