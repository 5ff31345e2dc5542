// What other programs send at the wrong moment changes nothing that the user is asked about.
#include <windows.h>

#include <gtest/gtest.h>
#include <tlhelp32.h>

#include <filesystem>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

// Each opens a dialog that is in the way of all others.
struct ModalCommand {
    CommandId id;
    const char* caption;
};
constexpr ModalCommand kDialogs[] = {
    {CommandId::FileSaveAs, "Save As"},           {CommandId::FileOpen, "Open"},
    {CommandId::GotoLine, "Goto Line"},           {CommandId::GotoBookmark, "Jump to Bookmark"},
    {CommandId::ChangeOptions, "Editor Options"}, {CommandId::ChangeColours, "Color Setup"},
    {CommandId::RepeatMacro, "Macro Repeat"},     {CommandId::ChangeExtensions, "File Extensions"},
    {CommandId::PrintSetup, "Page Setup"},        {CommandId::ChangeElectric, "Electric Keyboard"},
    {CommandId::About, "About Vexa 95"},          {CommandId::ChangeFont, "Font"},
};
constexpr CommandId kCommands[] = {CommandId::FileNew,       CommandId::FileClose,   CommandId::FileSave,
                                   CommandId::FileSaveAll,   CommandId::Exit,        CommandId::Cut,
                                   CommandId::Clear,         CommandId::Find,        CommandId::GotoLine,
                                   CommandId::ChangeOptions, CommandId::RepeatMacro, CommandId::CloseAll,
                                   CommandId::NextWindow,    CommandId::ToggleCase};

TEST(Guard, NoCommandRunsBehindADialog) {
    const TestFolder folder;
    folder.put("a.txt", "one two\r\n");
    folder.put("b.txt", "three\r\n");
    const Editor editor(folder, {"b.txt", "a.txt"});
    editor.keys("x");
    ASSERT_TRUE(editor.hasCaption("a.txt *]"));
    const auto documents = editor.documents();
    for (const ModalCommand& modal : kDialogs) {
        editor.command(modal.id);
        const HWND dialog = editor.dialog(modal.caption);
        ASSERT_TRUE(dialog) << modal.caption;
        for (const CommandId id : kCommands)
            EXPECT_TRUE(editor.runCommand(id)) << modal.caption << " " << static_cast<int>(id);
        EXPECT_TRUE(SendMessageTimeoutA(editor.activeDocument(), WM_CLOSE, 0, 0, SMTO_NORMAL, kPatience, nullptr));
        EXPECT_EQ(editor.dialog(""), dialog) << modal.caption << ": no other dialog is on it";
        EXPECT_EQ(editor.documents(), documents) << modal.caption;
        PostMessageA(dialog, WM_CLOSE, 0, 0);
        ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog) && IsWindowEnabled(editor.frame()); })) << modal.caption;
    }
    editor.keys("y");
    EXPECT_TRUE(editor.showsPosition(1, 3)) << "the keyboard has come back to the text";
    EXPECT_EQ(folder.get("a.txt"), "one two\r\n");
}

TEST(Guard, FindTakesNothingBehindADialogAndHasTheKeyboardAgainAfterIt) {
    const TestFolder folder;
    folder.put("a.txt", "one two\r\n");
    const Editor editor(folder, {"a.txt"});
    editor.keys("{Alt+S}");
    const HWND find = editor.dialog("Find");
    for (const ModalCommand& modal : kDialogs) {
        editor.command(modal.id);
        const HWND dialog = editor.dialog(modal.caption);
        ASSERT_TRUE(dialog) << modal.caption;
        EXPECT_FALSE(IsWindowEnabled(find)) << modal.caption;
        PostMessageA(dialog, WM_CLOSE, 0, 0);
        ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog) && GetForegroundWindow() == find; })) << modal.caption;
    }
    editor.keys("two{Enter}");
    EXPECT_TRUE(editor.showsPosition(1, 5));
}

TEST(Guard, OddMessagesDoNotEndTheEditor) {
    const TestFolder folder;
    const Editor editor(folder);
    editor.keys("x");
    ASSERT_TRUE(editor.hasCaption("*"));
    const std::string big(20'000'000, 'x');
    COPYDATASTRUCT data{0, static_cast<DWORD>(big.size()), const_cast<char*>(big.data())};
    DWORD_PTR ignored = 0;
    SendMessageTimeoutA(editor.frame(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data), SMTO_NORMAL, 2000, &ignored);
    SendMessageTimeoutA(editor.activePane(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(big.c_str()), SMTO_NORMAL, 2000,
                        &ignored);
    constexpr UINT kDpiChanged = 0x02E0;
    editor.command(CommandId::GotoLine);
    const HWND dialog = editor.dialog("Goto Line");
    ASSERT_TRUE(dialog);
    // A pointer of another program points to nothing here.
    for (const LPARAM pointer : {LPARAM{0}, LPARAM{0x41414140}}) {
        for (const UINT message :
             {kDpiChanged, UINT{WM_NOTIFY}, UINT{WM_HELP}, UINT{WM_DROPFILES}, UINT{WM_INITDIALOG}}) {
            for (const HWND window : {editor.frame(), editor.activePane(), dialog}) {
                PostMessageA(window, message, static_cast<WPARAM>(pointer), pointer);
                SendMessageTimeoutA(window, message, static_cast<WPARAM>(pointer), pointer, SMTO_NORMAL, 2000,
                                    &ignored);
                ASSERT_TRUE(editor.isRunning() && editor.answers()) << message << " " << pointer;
            }
        }
    }
    PostMessageA(dialog, WM_CLOSE, 0, 0);
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(dialog); }));
    editor.keys("y");
    EXPECT_TRUE(editor.showsPosition(1, 3));
}

std::vector<std::string> ModulesOf(HANDLE process) {
    std::vector<std::string> paths;
    const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, GetProcessId(process));
    MODULEENTRY32 module{};
    module.dwSize = sizeof(module);
    for (BOOL more = Module32First(snapshot, &module); more; more = Module32Next(snapshot, &module))
        paths.emplace_back(module.szExePath);
    CloseHandle(snapshot);
    return paths;
}

TEST(Guard, LibrariesThatAreLookedUpAreTheSystems) {
    const TestFolder folder;
    std::filesystem::copy_file(folder.program(), folder.path("dwmapi.dll"));  // any file that can be loaded
    const Editor editor(folder);
    const auto modules = ModulesOf(editor.process());
    ASSERT_FALSE(modules.empty());
    for (const std::string& path : modules)
        EXPECT_TRUE(path.find(folder.path()) == std::string::npos || path.ends_with("vexa.exe")) << path;
}

}  // namespace
}  // namespace vexa::test
