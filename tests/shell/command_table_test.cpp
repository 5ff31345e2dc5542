#include "shell/command_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace vexa {
namespace {

// The command that a key reaches; 0 for a key that is free.
int CommandOf(std::uint16_t key, const std::string& modifiers) {
    for (const Accelerator& accelerator : Accelerators()) {
        std::string held;
        if (accelerator.shift) held += 'S';
        if (accelerator.control) held += 'C';
        if (accelerator.alt) held += 'A';
        if (accelerator.key == key && held == modifiers) return static_cast<int>(accelerator.id);
    }
    return 0;
}

// A menu as a line: its heading, the numbers of what it shows, "-" for a separator.
std::vector<std::string> MenusAsText() {
    std::vector<std::string> menus;
    for (const MenuEntry& entry : MenuEntries()) {
        if (entry.kind < MenuEntryKind::Command) {
            menus.emplace_back(entry.text);
        } else if (entry.kind == MenuEntryKind::Separator) {
            menus.back() += " -";
        } else if (!entry.text.empty()) {
            menus.back() += ' ' + std::to_string(static_cast<int>(entry.id));
        }
    }
    return menus;
}

TEST(CommandTable, MenusStandInTheirOrderWithTheirSeparators) {
    const std::vector<std::string> menus = MenusAsText();
    ASSERT_EQ(menus.size(), 12u);
    EXPECT_EQ(menus[0], "&File 200 201 202 203 204 205 - 206 207 - 208");
    EXPECT_EQ(menus[9], " 802 801 800 803 - 302 303 304 312");
    EXPECT_EQ(menus[10], " 203 205 202 - 1022 1021 1020");
}

TEST(CommandTable, IdsAreUniqueAndAllButContextAndInstalledCommandsHaveAHelpText) {
    std::set<CommandId> seen;
    for (const CommandRow& row : Commands()) {
        EXPECT_TRUE(seen.insert(row.id).second) << static_cast<int>(row.id);
        const bool isContextCommand = row.id >= CommandId::ToggleCase && row.id < CommandId::MatchingBracket;
        const bool isInstalled = row.menuText.empty() && row.id < CommandId::ToggleCase;
        EXPECT_EQ(row.statusText.empty(), isContextCommand || isInstalled) << static_cast<int>(row.id);
        EXPECT_EQ(FindCommand(row.id), &row);
    }
    EXPECT_EQ(FindCommand(CommandId{703}), nullptr);
    EXPECT_EQ(StatusTextOf(CommandId{703}), "");
}

// What every key means is held in docs/keys.md; this is how the names of keys are read.
TEST(CommandTable, KeysReachTheirCommands) {
    const std::tuple<std::uint16_t, const char*, int> rows[] = {
        {'E', "A", 201},  {0xBD, "C", 202}, {0x6D, "C", 202}, {0x2E, "S", 302}, {0x2D, "C", 303},
        {0x74, "", 306},  {0x75, "A", 310}, {0x80, "S", 446}, {0x21, "C", 901}, {0x22, "C", 902},
        {0x24, "C", 903}, {0x23, "C", 904}, {'E', "C", 0},
    };
    for (const auto& [key, modifiers, command] : rows)
        EXPECT_EQ(CommandOf(key, modifiers), command) << modifiers << '+' << key;
}

TEST(CommandTable, FindNextHidesTheKeyOfCascadeAndNothingElseIsHidden) {
    EXPECT_EQ(CommandOf(0x74, "S"), 307);
    std::vector<int> hidden;
    for (const Accelerator& accelerator : Accelerators()) {
        std::string held =
            std::string(accelerator.shift ? "S" : "") + (accelerator.control ? "C" : "") + (accelerator.alt ? "A" : "");
        const int id = static_cast<int>(accelerator.id);
        if (CommandOf(accelerator.key, held) != id) hidden.push_back(id);
    }
    EXPECT_EQ(hidden, std::vector<int>{601});
}

}  // namespace
}  // namespace vexa
