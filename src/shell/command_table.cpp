#include "shell/command_table.h"

#include <algorithm>
#include <array>

namespace vexa {
namespace {

// clang-format off
constexpr CommandRow kCommands[] = {
#define VEXA_MENU(kind, heading)
#define VEXA_SEPARATOR()
#define VEXA_AGAIN(name, text)
#define VEXA_COMMAND(name, id, text, keys, status, macro, need) \
    {CommandId::name, text, keys, status, MacroUse::macro, CommandNeed::need},
#include "shell/commands.def"
#undef VEXA_MENU
#undef VEXA_SEPARATOR
#undef VEXA_AGAIN
#undef VEXA_COMMAND
};

constexpr MenuEntry kMenuEntries[] = {
#define VEXA_MENU(kind, heading) {MenuEntryKind::kind, heading, CommandId{}},
#define VEXA_SEPARATOR() {MenuEntryKind::Separator, {}, CommandId{}},
#define VEXA_COMMAND(name, id, text, keys, status, macro, need) {MenuEntryKind::Command, text, CommandId::name},
#define VEXA_AGAIN(name, text) {MenuEntryKind::Command, text, CommandId::name},
#include "shell/commands.def"
#undef VEXA_MENU
#undef VEXA_SEPARATOR
#undef VEXA_AGAIN
#undef VEXA_COMMAND
};
// clang-format on

struct KeyName {
    std::string_view name;
    std::uint16_t key;
};

constexpr KeyName kKeyNames[] = {
    {"Minus", 0xBD}, {"KeypadMinus", 0x6D}, {"Del", 0x2E},  {"Ins", 0x2D},
    {"PgUp", 0x21},  {"PgDn", 0x22},        {"Home", 0x24}, {"End", 0x23},
};
constexpr std::uint16_t kKeyF1 = 0x70;
constexpr std::string_view kKeySeparator = ", ";

// Key texts are read by the compiler: a throw here stops the build, it is never run.
consteval std::uint16_t FunctionKey(std::string_view digits) {
    int number = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') throw "a function key needs a number";
        number = number * 10 + (digit - '0');
    }
    if (number < 1 || number > 24) throw "no such function key";
    return static_cast<std::uint16_t>(kKeyF1 + number - 1);
}

consteval std::uint16_t KeyOf(std::string_view name) {
    for (const KeyName& known : kKeyNames) {
        if (known.name == name) return known.key;
    }
    if (name.size() == 1 && name[0] >= 'A' && name[0] <= 'Z') return static_cast<std::uint16_t>(name[0]);
    if (name.size() > 1 && name[0] == 'F') return FunctionKey(name.substr(1));
    throw "unknown key name";
}

consteval bool TakePrefix(std::string_view& text, std::string_view prefix) {
    if (!text.starts_with(prefix)) return false;
    text.remove_prefix(prefix.size());
    return true;
}

consteval Accelerator ParseAccelerator(std::string_view text, CommandId id) {
    Accelerator accelerator;
    accelerator.id = id;
    accelerator.control = TakePrefix(text, "Ctrl+");
    accelerator.shift = TakePrefix(text, "Shift+");
    accelerator.alt = TakePrefix(text, "Alt+");
    accelerator.key = KeyOf(text);
    return accelerator;
}

consteval std::size_t CountAccelerators() {
    std::size_t count = 0;
    for (const CommandRow& row : kCommands) {
        if (!row.keys.empty()) count += 1 + static_cast<std::size_t>(std::ranges::count(row.keys, ','));
    }
    return count;
}

consteval auto ParseAccelerators() {
    std::array<Accelerator, CountAccelerators()> accelerators;
    std::size_t next = 0;
    for (const CommandRow& row : kCommands) {
        std::string_view rest = row.keys;
        while (!rest.empty()) {
            const std::string_view text = rest.substr(0, rest.find(kKeySeparator));
            accelerators[next++] = ParseAccelerator(text, row.id);
            rest.remove_prefix(std::min(rest.size(), text.size() + kKeySeparator.size()));
        }
    }
    return accelerators;
}

constexpr auto kAccelerators = ParseAccelerators();

}  // namespace

std::span<const CommandRow> Commands() {
    return kCommands;
}
std::span<const MenuEntry> MenuEntries() {
    return kMenuEntries;
}
std::span<const Accelerator> Accelerators() {
    return kAccelerators;
}

const CommandRow* FindCommand(CommandId id) {
    const auto* found = std::ranges::find(kCommands, id, &CommandRow::id);
    return found == std::end(kCommands) ? nullptr : found;
}

std::string_view StatusTextOf(CommandId id) {
    const CommandRow* row = FindCommand(id);
    return row ? row->statusText : std::string_view();
}

}  // namespace vexa
