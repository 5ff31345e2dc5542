// The settings of the "Editor Options" dialog, the directories beside the executable, and when they are kept.
#pragma once

#include <cstdint>
#include <string>

#include "base/config_store.h"
#include "base/directories.h"
#include "base/habits.h"

namespace vexa {

// How a new document window is shown.
enum DisplayModeValue : std::int32_t {
    kCreateTiled = 1,
    kCreateMinimized = 2,
    kCreateMaximized = 3,
    kCreateDefault = 9
};

// Limits of the two text fields, in characters.
inline constexpr std::size_t kFilterLimit = 49;
inline constexpr std::size_t kLastDirectoryLimit = 254;

// One record for the whole program; every reader takes a value at the moment it needs it, so a changed option takes
// effect at its next use. Numbers are as the file has them: nothing is range-checked on reading.
struct EditorOptions {
    bool ToolBar = true;
    bool StatusBar = true;
    bool DocumentTabs = false;
    bool FileRead = false;   // kept and shown; loading does not look at it
    bool FileWrite = false;  // files are bytes: LF line ends, and a Ctrl-Z at the end of a written file
    bool SmartIndent = true;
    bool InsertMode = true;
    bool HasMargin = true;
    bool LineNumbers = true;  // in the margin
    bool MultipleCopies = false;
    bool UseExplorer = false;
    std::int32_t DisplayMode = kCreateMaximized;
    std::int32_t WrapColumn = 80;
    bool LineWrap = false;
    std::int32_t TabSize = 4;
    bool UseTabs = false;
    bool RestoreDirectory = true;
    bool RestoreSize = false;
    bool RestoreFiles = true;
    bool AutoBackup = true;
    std::int32_t BackupInterval = 4;  // minutes
    std::string Filter1;
    std::string Filter2;
    std::string LastDirectoryUsed;
    Habits habits;

    void Load(const ConfigStore& store);
    // Also notes the current directory as LastDirectoryUsed, in the record and in the file.
    void Save(ConfigStore& store);
};

// Changes to the drive and directory that were current at the last exit, if the options ask for it.
void ApplyStartDirectory(const EditorOptions& options);

}  // namespace vexa
