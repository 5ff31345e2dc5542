#include "ui/dialogs/dialog_keys.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>

#include "shell/command_table.h"

namespace vexa {
namespace {

const char kDialogs[] =
#include "dialogs.inc"
    ;

// The texts of the controls of each dialog that is open beside the frame, by the dialog's name.
std::map<std::string, std::vector<std::string>> ModelessDialogs() {
    std::map<std::string, std::vector<std::string>> dialogs;
    std::istringstream lines(kDialogs);
    std::string name;
    bool isModeless = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("IDD_")) name = line.substr(0, line.find(' '));
        if (line.starts_with("STYLE ")) isModeless = line == "STYLE MODELESS_STYLE";
        const std::size_t quote = line.starts_with("    ") ? line.find('"') : std::string::npos;
        if (isModeless && quote != std::string::npos)
            dialogs[name].push_back(line.substr(quote + 1, line.find('"', quote + 1) - quote - 1));
    }
    return dialogs;
}

std::set<CommandId> CommandsThatLose(const std::vector<std::string>& texts, bool inField) {
    std::set<CommandId> commands;
    for (const Accelerator& accelerator : Accelerators()) {
        KeyEvent event{
            .key = accelerator.key, .shift = accelerator.shift, .control = accelerator.control, .alt = accelerator.alt};
        if (DialogKeyUseOf(event, texts, inField) != DialogKeyUse::None) commands.insert(accelerator.id);
    }
    return commands;
}

// Every other command's key reaches the frame.
TEST(DialogKeys, EachModelessDialogKeepsItsMnemonicsAndEditingKeysFromTheFrame) {
    using enum CommandId;
    const std::map<std::string, std::set<CommandId>> byMnemonic = {
        {"IDD_FIND", {FileSave, Exit, Find, NextWindow, HelpIndex}},
        {"IDD_REPLACE", {FileSave, Print, Exit, Find, NextWindow, HelpIndex}},
        {"IDD_FIND_IN_FILES", {FileSave, FileSaveAs, Exit, Find, Replace, NextWindow, HelpIndex, MatchingBracket}},
        {"IDD_PRINTING", {HelpIndex}},
    };
    const std::set<CommandId> ofFields = {Undo,  Redo,        Cut,       Copy,          Paste,
                                          Clear, WindowStart, WindowEnd, DocumentStart, DocumentEnd};
    const auto dialogs = ModelessDialogs();
    ASSERT_EQ(dialogs.size(), byMnemonic.size());
    for (const auto& [name, texts] : dialogs) {
        std::set<CommandId> expected = byMnemonic.at(name);
        EXPECT_EQ(CommandsThatLose(texts, false), expected) << name;
        expected.insert(ofFields.begin(), ofFields.end());
        EXPECT_EQ(CommandsThatLose(texts, true), expected) << name;
    }
}

TEST(DialogKeys, MnemonicsAreTheLetterBehindASingleAmpersand) {
    const std::pair<const char*, char> rows[] = {
        {"Fi&nd What:", 'N'}, {"B && W &Name", 'N'}, {"plain", '\0'}, {"a&&b", '\0'}, {"end&", '\0'}};
    for (const auto& [text, mnemonic] : rows)
        EXPECT_EQ(MnemonicOf(text), mnemonic) << text;
}

}  // namespace
}  // namespace vexa
