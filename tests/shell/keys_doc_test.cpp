// Holds docs/keys.md against the tables that the keys are in. With VEXA_UPDATE_KEYS set in the environment it writes
// the file instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "document/view/view_keys.h"
#include "shell/command_table.h"
#include "shell/frame_keys.h"

namespace vexa {
namespace {

const char* const kFile = VEXA_TEST_DATA "/../docs/keys.md";
constexpr int kFirstTool = 432;
constexpr int kLastTool = 446;

std::string Row(const std::string& key, const std::string& command, std::string_view text) {
    return "| " + key + " | " + command + " | " + std::string(text) + " |\n";
}

// The name of a command as its menu shows it, without the key and the underline.
std::string NameOf(const CommandRow& row) {
    std::string name(row.menuText.substr(0, row.menuText.find('\t')));
    std::erase(name, '&');
    return name.substr(0, name.find_last_not_of(' ') + 1);
}

std::string TextOf(const CommandRow& row) {
    const int id = static_cast<int>(row.id);
    if (id < kFirstTool || id > kLastTool) return std::string(row.statusText);
    return "Run the installed tool " + std::to_string(id - kFirstTool + 1);
}

std::string Readable(std::string key) {
    const std::size_t keypad = key.find("Keypad");
    return keypad == std::string::npos ? key : key.insert(keypad + 6, " ").replace(keypad, 6, "keypad");
}

// A key that stands twice belongs to the first command that has it.
std::string CommandKeys() {
    std::string rows;
    std::set<std::string> taken;
    for (const CommandRow& row : Commands()) {
        std::string_view rest = row.keys;
        while (!rest.empty()) {
            const std::string key(rest.substr(0, rest.find(", ")));
            rest.remove_prefix(std::min(key.size() + 2, rest.size()));
            if (taken.insert(key).second) rows += Row(Readable(key), NameOf(row), TextOf(row));
        }
    }
    return rows;
}

std::string FrameKeys() {
    std::string rows;
    for (const FrameKeyHelp& help : FrameKeyList())
        rows += "| " + std::string(help.key) + " | " + std::string(help.description) + " |\n";
    return rows;
}

std::string ViewKeys() {
    std::string rows;
    for (const ViewKeyHelp& help : ViewKeyList())
        rows += "| " + help.key + (help.isMovement ? ", with Shift marking" : "") + " | " +
                std::string(help.description) + " |\n";
    return rows;
}

std::string KeysPage() {
    return "# Keys\n\n"
           "Made from the tables of commands and keys; a test holds it against them.\n\n"
           "## Commands\n\n| Key | Command | What it does |\n|---|---|---|\n" +
           CommandKeys() +
           "\n## Editing\n\nIn a document; a key that is also a command's is the command's.\n\n"
           "| Key | What it does |\n|---|---|\n" +
           FrameKeys() + ViewKeys();
}

TEST(KeysPage, IsWhatTheTablesSay) {
    if (std::getenv("VEXA_UPDATE_KEYS")) std::ofstream(kFile) << KeysPage();
    std::ifstream file(kFile);
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(page, KeysPage()) << "run the test once with VEXA_UPDATE_KEYS=1";
}

TEST(KeysPage, EveryKeyIsExplained) {
    for (const ViewKeyHelp& help : ViewKeyList())
        EXPECT_FALSE(help.description.empty()) << help.key;
    for (const Accelerator& accelerator : Accelerators())
        EXPECT_NE(TextOf(*FindCommand(accelerator.id)), "") << static_cast<int>(accelerator.id);
}

}  // namespace
}  // namespace vexa
