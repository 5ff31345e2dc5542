#include "base/editor_options.h"

#include <variant>

#include "base/ascii.h"
#include "base/platform.h"

namespace vexa {

namespace {

constexpr const char* kOptionsSection = "Editor Options";
constexpr const char* kHistorySection = "History";
constexpr const char* kLastDirectoryKey = "LastDirectoryUsed";

struct OptionKey {
    const char* key;
    std::variant<bool EditorOptions::*, std::int32_t EditorOptions::*> member;
};

// The flags and numbers in the order in which they are written; a default is the record's own initial value.
constexpr OptionKey kOptionKeys[] = {
    {"WrapColumn", &EditorOptions::WrapColumn},
    {"RestoreSize", &EditorOptions::RestoreSize},
    {"FileRead", &EditorOptions::FileRead},
    {"FileWrite", &EditorOptions::FileWrite},
    {"LineWrap", &EditorOptions::LineWrap},
    {"DisplayMode", &EditorOptions::DisplayMode},
    {"MultipleCopies", &EditorOptions::MultipleCopies},
    {"HasMargin", &EditorOptions::HasMargin},
    {"ToolBar", &EditorOptions::ToolBar},
    {"StatusBar", &EditorOptions::StatusBar},
    {"InsertMode", &EditorOptions::InsertMode},
    {"SmartIndent", &EditorOptions::SmartIndent},
    {"UseExplorer", &EditorOptions::UseExplorer},
    {"TabSize", &EditorOptions::TabSize},
    {"UseTabs", &EditorOptions::UseTabs},
    {"AutoBackup", &EditorOptions::AutoBackup},
    {"BackupInterval", &EditorOptions::BackupInterval},
    {"RestoreFiles", &EditorOptions::RestoreFiles},
    {"RestoreDirectory", &EditorOptions::RestoreDirectory},
    {"LineNumbers", &EditorOptions::LineNumbers},
    {"DocumentTabs", &EditorOptions::DocumentTabs},
};

std::int32_t ReadValue(const ConfigStore& store, const char* key, std::int32_t fallback) {
    return store.ReadInt(kOptionsSection, key, fallback);
}

}  // namespace

void EditorOptions::Load(const ConfigStore& store) {
    const EditorOptions defaults;
    for (const OptionKey& option : kOptionKeys) {
        if (const auto* flag = std::get_if<bool EditorOptions::*>(&option.member))
            this->** flag = ReadValue(store, option.key, defaults.**flag) != 0;
        else if (const auto* number = std::get_if<std::int32_t EditorOptions::*>(&option.member))
            this->** number = ReadValue(store, option.key, defaults.**number);
    }
    Filter1 = store.ReadGuarded(kOptionsSection, "Filter1", "", kFilterLimit).substr(0, kFilterLimit);
    Filter2 = store.ReadGuarded(kOptionsSection, "Filter2", "", kFilterLimit).substr(0, kFilterLimit);
    LastDirectoryUsed = store.ReadString(kHistorySection, kLastDirectoryKey, "", kLastDirectoryLimit + 1);
    habits.Load(store);
}

void EditorOptions::Save(ConfigStore& store) {
    for (const OptionKey& option : kOptionKeys) {
        const auto write = [&](auto member) { store.WriteInt(kOptionsSection, option.key, this->*member); };
        std::visit(write, option.member);
    }
    store.WriteGuarded(kOptionsSection, "Filter1", Filter1);
    store.WriteGuarded(kOptionsSection, "Filter2", Filter2);
    // A directory that does not fit is not noted: cut short, its name would be that of another.
    if (std::string current = platform::CurrentDirectory(); current.size() <= kLastDirectoryLimit)
        LastDirectoryUsed = std::move(current);
    store.WriteString(kHistorySection, kLastDirectoryKey, LastDirectoryUsed);
    habits.Save(store);
}

void ApplyStartDirectory(const EditorOptions& options) {
    if (!options.RestoreDirectory || options.LastDirectoryUsed.empty()) return;
    platform::ChangeDrive(LowerAscii(options.LastDirectoryUsed.front()) - 'a');
    platform::ChangeDirectory(options.LastDirectoryUsed);
}

}  // namespace vexa
