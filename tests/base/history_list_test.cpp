#include "base/history_list.h"

#include <gtest/gtest.h>

#include "support/test_disk.h"

namespace vexa {
namespace {

using Texts = std::vector<std::string>;

class HistoryListTest : public testing::Test {
  protected:
    HistoryList list() const { return HistoryList(disk_.path(), "VexaFnd.his"); }
    HistoryList read(const std::string& bytes) const {
        disk_.put("VexaFnd.his", bytes);
        return list();
    }
    std::string written(const HistoryList& list) const {
        list.Save();
        return disk_.get("VexaFnd.his");
    }

    test::TestDisk disk_;
};

TEST_F(HistoryListTest, IsARingOfFour) {
    HistoryList list = this->list();
    for (const char* text : {"a", "b", "c", "d"})
        list.Add(text);
    EXPECT_EQ(list.nextSlot(), 4u);
    list.Add("e");
    EXPECT_EQ(list.entries(), (Texts{"e", "b", "c", "d"}));
    EXPECT_EQ(list.nextSlot(), 1u);
    EXPECT_EQ(list.selection(), 0u);
    list.Add("c");
    EXPECT_EQ(list.entries(), (Texts{"e", "b", "c", "d"})) << "one that is there keeps its place";
    EXPECT_EQ(list.selection(), 2u);
    list.Add("C");
    EXPECT_EQ(list.entries(), (Texts{"e", "C", "c", "d"})) << "letter case counts";
    list.Add("");
    EXPECT_EQ(list.selection(), std::nullopt);
    EXPECT_EQ(list.entries().size(), 4u);
}

TEST_F(HistoryListTest, TheFileHasSlotCountAndEntriesInOrder) {
    HistoryList list = this->list();
    list.Add("ab");
    list.Add("\xFF!");
    EXPECT_EQ(written(list), std::string("\x02\x02\x02"
                                         "ab\0\x02\xFF!\0",
                                         10));
    EXPECT_EQ(this->list().entries(), (Texts{"ab", "\xFF!"}));
    EXPECT_EQ(this->list().nextSlot(), 2u);
    EXPECT_EQ(disk_.count(), 1u) << "nothing else is left behind";
}

TEST_F(HistoryListTest, LongTextsAreCutToWhatALengthByteCanSay) {
    HistoryList list = this->list();
    list.Add(std::string(300, 'x'));
    list.Add(std::string(300, 'x') + "y");
    EXPECT_EQ(list.entries(), Texts{std::string(255, 'x')});
    list.Add(std::string("a\0b", 3));
    written(list);
    EXPECT_EQ(this->list().entries(), (Texts{std::string(255, 'x'), "a"}));
}

TEST_F(HistoryListTest, DamagedFilesGiveWhatCanBeMadeOut) {
    using namespace std::string_literals;
    const std::pair<std::string, Texts> cases[] = {
        {"", {}},
        {"\x01", {}},
        {"\x01\x02", {}},
        {"\x02\x03\x01"
         "a\0\x01"
         "b\0"s,
         {"a", "b"}},  // fewer than it says
        {"\x02\x01\x01"
         "a\0\x01"
         "b\0"s,
         {"a"}},                            // more than it says
        {"\x00\x02\x00\0\x01z\0"s, {"z"}},  // an empty entry
        {"\x01\x01\x09short"s, {"short"}},
        {"\x01\x01\x03\0bc\0"s, {}},
    };
    for (const auto& [bytes, expected] : cases)
        EXPECT_EQ(read(bytes).entries(), expected) << testing::PrintToString(bytes);
}

TEST_F(HistoryListTest, AnOverfullFileIsUsedAsAFullOne) {
    std::string bytes("\xC8\x06", 2);
    for (const char c : std::string("abcdef"))
        bytes += std::string("\x01", 1) + c + '\0';
    HistoryList list = read(bytes);
    list.Add("x");
    EXPECT_EQ(list.entries(), (Texts{"x", "b", "c", "d", "e", "f"}));
    EXPECT_EQ(list.nextSlot(), 1u);
}

TEST_F(HistoryListTest, AFileThatCannotBeWrittenKeepsWhatItHeld) {
    HistoryList list = this->list();
    list.Add("old");
    written(list);
    disk_.setReadOnly("VexaFnd.his", true);
    list.Add("new");
    list.Save();
    disk_.setReadOnly("VexaFnd.his", false);
    EXPECT_EQ(this->list().entries(), Texts{"old"});
    HistoryList(disk_.path("NODIR"), "VexaFnd.his").Save();
}

}  // namespace
}  // namespace vexa
