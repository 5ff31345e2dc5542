// Settings files: what is read from any of them, and what writing leaves as it was.
#include <gtest/gtest.h>
#ifdef _WIN32
#include <windows.h>
#endif

#include <array>

#include "base/config_store.h"
#include "base/platform.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

class Settings : public testing::Test {
  protected:
    std::string text(const std::string& key, std::size_t size = 100) {
        return store.ReadString("Main", key, "default", size);
    }
    std::int32_t number(const std::string& value) {
        disk.put("VEXA.INI", "[Main]\r\nn=" + value + "\r\n");
        return store.ReadInt("Main", "n", 77);
    }

    test::TestDisk disk;
    ConfigStore store{disk.path("VEXA.INI")};
};

TEST_F(Settings, ValuesAreReadAsWindowsReadsThem) {
    disk.put("VEXA.INI",
             "stray=before any section\r\n"
             "; comment\r\n"
             "[Other]\r\n"
             "plain=other\r\n"
             "\r\n"
             "  [MAIN]  \r\n"
             "plain=value\r\n"
             ";off=hidden\r\n"
             "Mixed Case = with blanks around \t\r\n"
             "equals=a=b\r\n"
             "quoted=\"  kept  \"\r\n"
             "single='x'\r\n"
             "inner=say \"x\"\r\n"
             "half=\"x\r\n"
             "empty=\r\n"
             "plain=second\r\n"
             "bytes=\xE4\xF6\xFC\xDF\x80\r\n"
             "unix=line\n"
             "last=no line end");
    const std::pair<const char*, const char*> expected[] = {
        {"plain", "value"}, {"PLAIN", "value"},     {"off", "default"},     {"mixed case", "with blanks around"},
        {"equals", "a=b"},  {"single", "x"},        {"quoted", "  kept  "}, {"inner", "say \"x\""},
        {"half", "\"x"},    {"empty", ""},          {"stray", "default"},   {"bytes", "\xE4\xF6\xFC\xDF\x80"},
        {"unix", "line"},   {"missing", "default"}, {"last", "no line end"}};
    for (const auto& [key, value] : expected)
        EXPECT_EQ(text(key), value) << key;
    EXPECT_EQ(store.ReadString("None", "plain", "default", 100), "default");
}

TEST_F(Settings, SizesCountATerminator) {
    disk.put("VEXA.INI", "[Main]\r\nkey=0123456789\r\n");
    EXPECT_EQ(text("key", 11), "0123456789");
    EXPECT_EQ(text("key", 10), "012345678");
    EXPECT_EQ(text("key", 1), "");
    EXPECT_EQ(text("missing", 4), "def");
}

TEST_F(Settings, NumbersAreTheValuesLeadingDigits) {
    const std::pair<const char*, int> expected[] = {{"12", 12}, {"-5", -5}, {"+3", 3},    {" 8 ", 8}, {"12abc", 12},
                                                    {"abc", 0}, {"0", 0},   {"\"9\"", 9}, {"-", 0},   {"", 77},
                                                    {"007", 7}, {"4 5", 4}, {"1.9", 1},   {"--1", 0}};
    for (const auto& [value, expectedNumber] : expected)
        EXPECT_EQ(number(value), expectedNumber) << value;
    EXPECT_EQ(number("2147483647"), 2147483647);
    EXPECT_EQ(number("-2147483648"), INT32_MIN);
    EXPECT_EQ(store.ReadInt("Main", "missing", -3), -3);
}

TEST_F(Settings, WritingLeavesOtherLinesAlone) {
    disk.put("VEXA.INI",
             "; mine\r\n"
             "[First]\r\n"
             "a = 1 \r\n"
             "strange line\r\n"
             "[Main]\r\n"
             "Key = old\r\n"
             "b=2\r\n");
    store.WriteString("main", "KEY", "new");
    store.WriteInt("First", "c", -7);
    store.WriteString("Fresh", "d", "text");
    const std::string after = disk.get("VEXA.INI");
    store.WriteInt("First", "a", 1);
    EXPECT_EQ(disk.get("VEXA.INI"), after) << "what the file has already is not written";
    for (const char* kept : {"; mine\r\n[First]\r\n", "strange line\r\n", "[Main]\r\n", "b=2\r\n"})
        EXPECT_NE(after.find(kept), std::string::npos) << kept << "\n" << after;
    EXPECT_EQ(after.find("old"), std::string::npos);
    EXPECT_EQ(text("key"), "new");
    EXPECT_EQ(text("b"), "2");
    EXPECT_EQ(store.ReadInt("First", "a", 0), 1);
    EXPECT_EQ(store.ReadInt("First", "c", 0), -7);
    EXPECT_EQ(store.ReadString("Fresh", "d", "", 10), "text");
}

TEST_F(Settings, AMissingFileIsMadeAndAValueStaysOneLine) {
    EXPECT_EQ(text("key"), "default");
    EXPECT_FALSE(disk.has("VEXA.INI")) << "reading makes nothing";
    store.WriteString("Main", "key", "one\r\n[Evil]\r\nk=1");
    EXPECT_EQ(text("key"), "one");
    EXPECT_EQ(store.ReadString("Evil", "k", "none", 10), "none");
    store.WriteString("Main", "key", std::string("a\0b", 3));
    EXPECT_EQ(text("key"), "a");
    EXPECT_EQ(disk.get("VEXA.INI").find('\0'), std::string::npos);
    disk.put("VEXA.INI", std::string("[Main]\r\nkey=c\0d\re\r\n", 20));
    EXPECT_EQ(text("key"), "c");
    store.WriteString("Main", "key", "");
    EXPECT_EQ(text("key"), "");
    EXPECT_EQ(disk.count(), 1u) << "no file beside the settings file is left behind";
}

TEST_F(Settings, AFileThatCannotBeWrittenKeepsItsContents) {
    disk.put("VEXA.INI", "[Main]\r\nkey=kept\r\n");
    disk.setReadOnly("VEXA.INI", true);
    store.WriteString("Main", "key", "lost");
    EXPECT_EQ(disk.get("VEXA.INI"), "[Main]\r\nkey=kept\r\n");
    EXPECT_EQ(disk.count(), 1u);
    EXPECT_FALSE(platform::WriteSettings(disk.path("NO\\X.INI"), std::array{platform::Setting{"Main", "key", "x"}}));
}

TEST_F(Settings, ASectionThatCouldNotBeReadIsLeftAsItIs) {
    disk.put("VEXA.INI", "[Main]\r\nkey=kept\r\n[Other]\r\nkey=old\r\n");
    {
        const test::LockedFile locked(disk.path("VEXA.INI"));
        EXPECT_EQ(text("key") + std::to_string(ConfigStore(store.path()).ReadInt("Main", "n", 7)), "default7");
        for (int i = 0; i < 2000; ++i)  // a wait for each would outlast the test's time
            store.WriteString("Other", "key", "lost");
    }
    store.WriteString("Main", "key", "default");
    store.WriteString("Other", "key", "new");
    EXPECT_EQ(disk.get("VEXA.INI"), "[Main]\r\nkey=kept\r\n[Other]\r\nkey=new\r\n");
}

TEST_F(Settings, ABatchIsWrittenAtItsEndAndOfTwoValuesTheLastCounts) {
    disk.put("VEXA.INI", "[Main]\r\nkey=old\r\n");
    {
        const ConfigStore::Batch batch(store);
        for (const char* value : {"other", "old"})
            store.WriteString("Main", "key", value);
        store.WriteString("Main", "more", "new");
        EXPECT_EQ(text("more"), "default");
    }
    EXPECT_EQ(text("key") + text("more"), "oldnew");
}

#ifdef _WIN32
DWORD WINAPI WriteNew(void* store) {
    static_cast<ConfigStore*>(store)->WriteString("Main", "key", "new");
    return 0;
}

TEST_F(Settings, AFileThatAnotherProgramReadsForAMomentIsWritten) {
    disk.put("VEXA.INI", "[Main]\r\nkey=old\r\n");
    const platform::FileHandle reader = platform::OpenFile(disk.path("VEXA.INI"), platform::OpenMode::Read);
    const HANDLE writer = CreateThread(nullptr, 0, &WriteNew, &store, 0, nullptr);
    constexpr int kLooks = 5;  // at the copy that is to take the file's place: its renaming has been tried
    for (int looks = 0; looks < kLooks && WaitForSingleObject(writer, 1) == WAIT_TIMEOUT;)
        looks += disk.has("VEXA.INI.~") ? 1 : 0;
    platform::CloseFile(reader);
    WaitForSingleObject(writer, INFINITE);
    CloseHandle(writer);
    EXPECT_EQ(text("key"), "new");
}
#endif

TEST(SettingsFile, IsNamedLikeTheExecutable) {
    EXPECT_EQ(SettingsFileOf("C:\\EDIT\\VEXA.EXE"), "C:\\EDIT\\VEXA.INI");
    EXPECT_EQ(SettingsFileOf("C:\\EDIT\\VEXA"), "C:\\EDIT\\VEXA");
    EXPECT_EQ(SettingsFileOf("C:\\E.D\\VEXA"), "C:\\E.INI") << "the last dot counts wherever it stands";
    EXPECT_EQ(ConfigStore(std::string(300, 'x')).path().size(), 255u);
}

}  // namespace
}  // namespace vexa
