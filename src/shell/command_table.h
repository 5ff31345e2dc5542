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
    Window,       // some window inside the frame
    AnyDocument,  // some window that shows a document
    Document,     // the active window shows a document
    EditArea,     // the active window takes editing commands or can be searched: a document, or a list of output lines
};

// How a command that runs while a macro is recorded becomes a step of it.
enum class MacroUse : std::uint8_t {
    Silent,       // it is recorded, or has no use in a macro
    Warns,        // it is not recorded, and the user is warned of that
    WarnsInMenu,  // the same when it is chosen in a menu; its keys are recorded
};

// What a command was started by.
enum class CommandOrigin : std::uint8_t {
    Menu,  // or a button of the tool bar
    Key,
    Step,  // a step of the macro that is played, or a key that is recorded as a key
};

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
    Title,       // opens that of a document's title and tab
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
