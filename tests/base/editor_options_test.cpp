// The editor options in the settings file and in their dialog, and the places of dialogs.
#include "base/editor_options.h"

#include <gtest/gtest.h>

#include "base/dialog_position.h"
#include "base/editor_options_model.h"
#include "base/platform.h"
#include "support/case_files.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

class Options : public testing::Test {
  protected:
    EditorOptions loaded() {
        EditorOptions options;
        options.Load(store);
        return options;
    }

    test::TestDisk disk;
    ConfigStore store{disk.path("VEXA.INI")};
};

TEST_F(Options, AMissingFileGivesDefaultsAndSavingWritesTheWholeSections) {
    loaded().Save(store);
    EXPECT_EQ(disk.get("VEXA.INI").substr(0, 16), "[Editor Options]");
    const std::pair<const char*, int> numbers[] = {
        {"WrapColumn", 80}, {"RestoreSize", 0},    {"FileRead", 0},     {"FileWrite", 0},        {"LineWrap", 0},
        {"DisplayMode", 3}, {"MultipleCopies", 0}, {"HasMargin", 1},    {"ToolBar", 1},          {"StatusBar", 1},
        {"InsertMode", 1},  {"SmartIndent", 1},    {"UseExplorer", 0},  {"TabSize", 4},          {"UseTabs", 0},
        {"AutoBackup", 1},  {"BackupInterval", 4}, {"RestoreFiles", 1}, {"RestoreDirectory", 1}, {"DocumentTabs", 0}};
    for (const auto& [key, value] : numbers)
        EXPECT_EQ(store.ReadInt("Editor Options", key, -1), value) << key;
    for (const char* key : {"Filter1", "Filter2"})
        EXPECT_EQ(store.ReadString("Editor Options", key, "missing", 50), "") << key;
    EXPECT_EQ(store.ReadString("History", "LastDirectoryUsed", "", 255), platform::CurrentDirectory());
}

TEST_F(Options, ADirectoryOfMoreThan254CharactersIsNotNoted) {
    for (const std::size_t length : {std::size_t{254}, std::size_t{255}}) {
        std::string directory = disk.path();
        while (directory.size() < length) {
            const std::size_t room = length - directory.size() - 1;
            directory += "\\" + std::string(room <= 50 ? room : std::min<std::size_t>(50, room - 2), 'd');
            ASSERT_TRUE(platform::MakeDirectory(directory));
        }
        ASSERT_TRUE(platform::ChangeDirectory(directory));
        loaded().Save(store);
        const bool isNoted = store.ReadString("History", "LastDirectoryUsed", "", 300) == directory;
        EXPECT_EQ(isNoted, length == 254);
        ASSERT_TRUE(platform::ChangeDirectory(disk.path() + "\\"));
    }
}

TEST_F(Options, EveryFieldSurvivesARun) {
    EditorOptions options;
    for (bool EditorOptions::*flag :
         {&EditorOptions::ToolBar, &EditorOptions::StatusBar, &EditorOptions::FileRead, &EditorOptions::FileWrite,
          &EditorOptions::SmartIndent, &EditorOptions::InsertMode, &EditorOptions::HasMargin,
          &EditorOptions::MultipleCopies, &EditorOptions::UseExplorer, &EditorOptions::LineWrap,
          &EditorOptions::UseTabs, &EditorOptions::RestoreDirectory, &EditorOptions::RestoreSize,
          &EditorOptions::RestoreFiles, &EditorOptions::AutoBackup, &EditorOptions::DocumentTabs}) {
        options.*flag = !(options.*flag);
        options.Save(store);
        EXPECT_EQ(loaded().*flag, options.*flag);
    }
    options.DisplayMode = 9;
    options.WrapColumn = 72;
    options.TabSize = 8;
    options.BackupInterval = 15;
    options.Filter1 = " \"*.c\"";
    options.Filter2 = "*.txt";
    options.Save(store);
    const EditorOptions again = loaded();
    EXPECT_EQ(again.DisplayMode, 9);
    EXPECT_EQ(again.WrapColumn, 72);
    EXPECT_EQ(again.TabSize, 8);
    EXPECT_EQ(again.BackupInterval, 15);
    EXPECT_EQ(again.Filter1, " \"*.c\"");
    EXPECT_EQ(again.Filter2, "*.txt");
    EXPECT_EQ(again.LastDirectoryUsed, options.LastDirectoryUsed);
}

// A row for each habit: in the file, and in the record.
struct HabitRow {
    const char* key;
    bool Habits::*habit;
};
constexpr HabitRow kHabits[] = {
    {"KeepFiles", &Habits::keepFiles},           {"LargeFiles", &Habits::largeFiles},
    {"LargeClipboard", &Habits::largeClipboard}, {"WholeSession", &Habits::wholeSession},
    {"LanguageQuotes", &Habits::languageQuotes}, {"ReplacementGroups", &Habits::replacementGroups},
    {"SearchAround", &Habits::searchAround},     {"KeepMarking", &Habits::keepMarking}};

TEST_F(Options, EachHabitIsKeptByItselfAndNoneIsChosenWithoutTheSection) {
    EXPECT_EQ(loaded().habits, Habits());
    for (const HabitRow& row : kHabits) {
        EditorOptions options;
        options.habits.*row.habit = true;
        options.Save(store);
        EXPECT_EQ(loaded().habits, options.habits) << row.key;
        EXPECT_EQ(store.ReadInt("Extended", row.key, -1), 1);
    }
    for (const char* bytes : {"", "=", "yes", "\xFF\x80", "[", "0"}) {
        disk.put("VEXA.INI", std::string("[Extended]\r\nKeepFiles=") + bytes);
        EXPECT_EQ(loaded().habits, Habits()) << bytes;
    }
}

constexpr test::CaseFile kShippedSettings[] = {
#include "shipped_settings.inc"
};

TEST_F(Options, TheShippedSettingsChooseEveryHabit) {
    disk.put("VEXA.INI", kShippedSettings[0].content);
    const EditorOptions options = loaded();
    for (const HabitRow& row : kHabits)
        EXPECT_TRUE(options.habits.*row.habit) << row.key;
    EXPECT_TRUE(options.UseExplorer);
}

TEST_F(Options, ValuesOfTheFileAreTakenAsTheyAreAndFlagsWrittenAsOneOrZero) {
    disk.put(
        "VEXA.INI",
        "[Editor Options]\r\nTabSize=12\r\nWrapColumn=-1\r\nDisplayMode=5\r\nToolBar=7\r\nUseTabs=yes\r\nFilter1=" +
            std::string(60, 'f') + "\r\n[History]\r\nLastDirectoryUsed=" + std::string(300, 'd') + "\r\n");
    EditorOptions options = loaded();
    EXPECT_EQ(options.TabSize, 12);
    EXPECT_EQ(options.WrapColumn, -1);
    EXPECT_EQ(options.DisplayMode, 5);
    EXPECT_TRUE(options.ToolBar);
    EXPECT_FALSE(options.UseTabs);
    EXPECT_EQ(options.Filter1.size(), 49u);
    EXPECT_EQ(options.LastDirectoryUsed.size(), 254u);
    options.Save(store);
    EXPECT_EQ(store.ReadString("Editor Options", "ToolBar", "", 10), "1");
    EXPECT_EQ(store.ReadString("Editor Options", "TabSize", "", 10), "12");
    EXPECT_EQ(options.LastDirectoryUsed, disk.path().size() > 2 ? disk.path() : "C:\\");
}

TEST_F(Options, TheStartDirectoryIsThatOfTheLastExitIfAsked) {
    disk.makeDirectory("Work");
    const std::string start = platform::CurrentDirectory();
    EditorOptions options;
    options.LastDirectoryUsed = disk.path("Work");
    options.RestoreDirectory = false;
    ApplyStartDirectory(options);
    EXPECT_EQ(platform::CurrentDirectory(), start);
    options.RestoreDirectory = true;
    for (const char* nowhere : {"", "Q:\\NONE", "\\\\server\\none", "?"}) {
        options.LastDirectoryUsed = nowhere;
        ApplyStartDirectory(options);
        EXPECT_EQ(platform::CurrentDirectory(), start) << nowhere;
    }
    options.LastDirectoryUsed = disk.path("Work");
    ApplyStartDirectory(options);
    EXPECT_EQ(platform::CurrentDirectory(), disk.path("Work"));
}

TEST(OptionsModel, RefusesTabSizesBeyondOneToNineAndThenStoresNothing) {
    for (const char* typed : {"", "0", "10", "12", "-4", "x", "4294967300"}) {
        EditorOptions options;
        EditorOptionsModel model(options);
        model.tabSize = typed;
        model.wrapColumn = "60";
        model.options.HasMargin = false;
        EXPECT_EQ(model.update(options), TextId::BadTabSize) << typed;
        EXPECT_EQ(options.TabSize, 4);
        EXPECT_EQ(options.WrapColumn, 80);
        EXPECT_TRUE(options.HasMargin);
    }
    for (const char* typed : {"1", "9", " 5", "7 columns"}) {
        EditorOptions options;
        EditorOptionsModel model(options);
        model.tabSize = typed;
        EXPECT_EQ(model.update(options), std::nullopt) << typed;
    }
}

TEST(OptionsModel, NumbersLoseTheirSignAndZeroSwitchesOff) {
    struct Case {
        const char* typed;
        std::int32_t stored;
        bool on;
    };
    for (const Case& c : {Case{"-5", 5, true},
                          {"0", 0, false},
                          {"", 0, false},
                          {"words", 0, false},
                          {"72x", 72, true},
                          {"-99999999999", INT32_MAX, true}}) {
        EditorOptions options;
        EditorOptionsModel model(options);
        model.options.LineWrap = model.options.AutoBackup = true;
        model.wrapColumn = model.backupInterval = c.typed;
        EXPECT_EQ(model.update(options), std::nullopt);
        EXPECT_EQ(options.WrapColumn, c.stored) << c.typed;
        EXPECT_EQ(options.LineWrap, c.on) << c.typed;
        EXPECT_EQ(options.BackupInterval, c.stored) << c.typed;
        EXPECT_EQ(options.AutoBackup, c.on) << c.typed;
    }
}

TEST(OptionsModel, ShowsAndStoresTheDisplayMode) {
    const std::pair<int, int> shown[] = {{1, 1}, {2, 2}, {3, 3}, {9, 9}, {5, 9}, {0, 9}, {-1, 9}};
    for (const auto& [held, stored] : shown) {
        EditorOptions options;
        options.DisplayMode = held;
        const EditorOptionsModel model(options);
        EXPECT_EQ(model.options.DisplayMode, stored) << held;
        EXPECT_EQ(model.update(options), std::nullopt);
        EXPECT_EQ(options.DisplayMode, stored) << held;
    }
}

TEST(OptionsModel, StoresEveryCheckBoxAndFilterAndLeavesTheRest) {
    EditorOptions options;
    options.InsertMode = false;
    EditorOptionsModel model(options);
    EXPECT_TRUE(model.tabsAsSpaces);
    EXPECT_FALSE(model.wrapColumnEnabled());
    EXPECT_TRUE(model.backupIntervalEnabled());
    model.tabsAsSpaces = model.options.AutoBackup = model.options.RestoreDirectory = model.options.RestoreFiles = false;
    model.options.SmartIndent = model.options.HasMargin = false;
    model.options.LineWrap = model.options.RestoreSize = model.options.MultipleCopies = model.options.FileRead =
        model.options.FileWrite = true;
    model.options.Filter1 = std::string(kFilterFieldLimit, 'f');
    model.options.Filter2 = "*.h";
    EXPECT_TRUE(model.wrapColumnEnabled());
    EXPECT_FALSE(model.backupIntervalEnabled());
    EXPECT_EQ(model.update(options), std::nullopt);
    for (const bool off : {options.AutoBackup, options.RestoreDirectory, options.RestoreFiles, options.SmartIndent,
                           options.HasMargin, options.InsertMode})
        EXPECT_FALSE(off);
    for (const bool on : {options.UseTabs, options.LineWrap, options.RestoreSize, options.MultipleCopies,
                          options.FileRead, options.FileWrite, options.ToolBar, options.StatusBar})
        EXPECT_TRUE(on);
    EXPECT_EQ(options.Filter1, std::string(kFilterLimit, 'f'));
    EXPECT_EQ(options.Filter2, "*.h");
}

TEST_F(Options, DialogsReopenWhereTheyWereRelativeToTheirOwner) {
    SaveDialogPosition(store, 1500, {100, 50}, {130, 20});
    EXPECT_EQ(store.ReadString("Dialog1500", "XPos", "", 10), "30");
    EXPECT_EQ(store.ReadString("Dialog1500", "YPos", "", 10), "-30");
    EXPECT_EQ(RestoreDialogPosition(store, 1500, {200, 100}), (ScreenPoint{230, 70}));
    EXPECT_EQ(RestoreDialogPosition(store, 1500, {200, 10}), (ScreenPoint{230, 0})) << "never above the screen";
    EXPECT_EQ(RestoreDialogPosition(store, 1501, {200, 100}), std::nullopt) << "another dialog";
    for (const ScreenPoint corner : {ScreenPoint{100, 90}, ScreenPoint{140, 50}, ScreenPoint{100, 50}}) {
        SaveDialogPosition(store, 7, {100, 50}, corner);
        EXPECT_EQ(RestoreDialogPosition(store, 7, {100, 50}), std::nullopt) << "an offset of 0 is not restored";
    }
    SaveDialogPosition(store, 7, {INT32_MIN, INT32_MAX}, {INT32_MAX, INT32_MIN});
    EXPECT_EQ(RestoreDialogPosition(store, 7, {INT32_MAX, INT32_MAX}), (ScreenPoint{INT32_MAX, 0}));
}

}  // namespace
}  // namespace vexa
