// The help file made of the manual, as the program and Quick Help use it. That every topic is laid out and every link
// leads somewhere is a test of its reader (manual_is_read).
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "quickhelp/help_index.h"
#include "quickhelp/topic_numbers.h"
#include "quickhelp/topics/help_file.h"
#include "shell/command_table.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

std::string BytesOf(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::map<std::string, int> DialogNumbers() {
    std::map<std::string, int> numbers;
    std::ifstream header(VEXA_RESOURCES "dialog_controls.h");
    std::string define, name, number;
    for (std::string line; std::getline(header, line);) {
        if (std::istringstream(line) >> define >> name >> number && name.starts_with("IDD_"))
            numbers[name] = std::stoi(number);
    }
    return numbers;
}

// The numbers of the dialogs with a Help button.
std::vector<int> DialogsWithHelp() {
    const std::map<std::string, int> numbers = DialogNumbers();
    std::vector<int> dialogs;
    std::ifstream script(VEXA_RESOURCES "dialogs.rc");
    int dialog = 0;
    for (std::string line; std::getline(script, line);) {
        if (line.starts_with("IDD_")) dialog = numbers.at(line.substr(0, line.find(' ')));
        if (line.find(", IDHELP,") != std::string::npos) dialogs.push_back(dialog);
    }
    return dialogs;
}

class Manual : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(file_); }
    bool hasTopic(std::uint32_t number) const {
        const auto offset = file_->index().offsetOfNumber(static_cast<std::int32_t>(number));
        return offset && file_->topicOffset(*file_->topicAt(*offset)) == *offset;
    }

    const std::unique_ptr<topics::HelpFile> file_ = topics::HelpFile::open(BytesOf(VEXA_HELP_FILE));
};

TEST_F(Manual, EveryCommandHasItsTopic) {
    for (const CommandRow& command : Commands())
        EXPECT_TRUE(hasTopic(static_cast<std::uint32_t>(command.id))) << static_cast<int>(command.id);
    EXPECT_TRUE(hasTopic(kHelpOnKeys));
    EXPECT_EQ(file_->index().offsetOfNumber(kHelpOnKeys),
              file_->index().offsetOfNumber(static_cast<std::int32_t>(CommandId::HelpOnKeys)));
}

TEST_F(Manual, EveryHelpButtonHasItsTopic) {
    const std::vector<int> dialogs = DialogsWithHelp();
    EXPECT_GT(dialogs.size(), 10U);
    for (const int dialog : dialogs)
        EXPECT_TRUE(hasTopic(kHelpOnDialogs + static_cast<std::uint32_t>(dialog))) << dialog;
}

TEST_F(Manual, QuickHelpCanIndexIt) {
    test::TestDisk disk;
    disk.put("VEXA.HLP", BytesOf(VEXA_HELP_FILE));
    ASSERT_EQ(BuildHelpIndex("VEXA.HLP", disk.path("VEXA.ZIX")), IndexResult::Written);
    const auto keywords = file_->index().keywords();
    EXPECT_GT(keywords.size(), 100U);
    const std::string index = disk.get("VEXA.ZIX");
    EXPECT_EQ(static_cast<std::size_t>(std::stoi(index)), keywords.size());
    EXPECT_TRUE(index.ends_with("\r\n" + std::string(keywords.back().text) + "\r\n"));
}

}  // namespace
}  // namespace vexa
