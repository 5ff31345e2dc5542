#include "shell/command_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
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
    const std::vector<std::string> expected = {
        "&File 200 201 202 203 204 205 - 206 207 - 208",
        "&Edit 300 301 - 302 303 304 305 312 - 306 310 307 308 - 309 311",
        "&View 450 451 - 452 453 454 455",
        "&Options 403 402 404 401 405 406",
        "&Macros 425 427 - 426",
        "&Tools 430 431",
        "&Compiler 500 501",
        "&Window 601 602 603 604 600 605 - 606 607",
        "&Help 700 702 701 - 705 706 704 - 707",
        " 802 801 800 803 - 302 303 304 312",
        "",
    };
    EXPECT_EQ(MenusAsText(), expected);
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

TEST(CommandTable, KeysReachTheirCommands) {
    struct Case {
        std::uint16_t key;
        const char* modifiers;
        int command;
    };
    const Case cases[] = {
        {'E', "A", 201},
        {0xBD, "C", 202},
        {0x6D, "C", 202},
        {0xBD, "A", 607},
        {'Z', "C", 300},
        {'A', "C", 301},
        {0x2E, "S", 302},
        {'X', "C", 302},
        {0x2D, "C", 303},
        {0x2D, "S", 304},
        {0x2E, "C", 305},
        {'S', "A", 306},
        {'F', "C", 306},
        {0x74, "", 306},
        {0x75, "", 310},
        {0x75, "A", 310},
        {0x74, "A", 308},
        {0x79, "", 430},
        {0x79, "A", 500},
        {0x79, "S", 439},
        {0x70, "", 701},
        {0x70, "A", 704},
        {0x70, "C", 706},
        {0x70, "S", 432},
        {0x73, "S", 435},
        {0x76, "S", 436},
        {0x80, "S", 446},
        {'B', "A", 900},
        {0x21, "C", 901},
        {0x22, "C", 902},
        {0x24, "C", 903},
        {0x23, "C", 904},
        {'S', "C", 203},
        {'Y', "C", 301},
        {'H', "C", 310},
        {0x72, "", 307},
        // Keys that menu texts name but that only the edit view answers to.
        {'U', "A", 0},
        {'U', "C", 0},
        {'E', "C", 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CommandOf(c.key, c.modifiers), c.command) << c.modifiers << '+' << c.key;
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

TEST(CommandTable, WarnedCommandsAreThoseThatNoMacroCanHold) {
    std::set<int> warned;
    for (const CommandRow& row : Commands()) {
        if (row.macro != MacroUse::Silent) warned.insert(static_cast<int>(row.id));
    }
    const std::set<int> expected = {201, 202, 203, 204, 206, 207, 300, 301, 302, 303, 304, 305,
                                    401, 402, 404, 406, 450, 451, 452, 453, 501, 704, 705, 706};
    EXPECT_EQ(warned, expected);
    for (const int id : expected) {
        const bool isEditing = id >= 300 && id <= 305;
        EXPECT_EQ(FindCommand(CommandId{static_cast<std::uint16_t>(id)})->macro == MacroUse::WarnsInMenu, isEditing)
            << id;
    }
}

}  // namespace
}  // namespace vexa
