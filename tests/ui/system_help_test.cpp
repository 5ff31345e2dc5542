// The help program of Wine reads the manual, which is in the format of WinHelp. That of Windows only says that there is
// no help any more.
#include <windows.h>

#include <gtest/gtest.h>

#include "ui/dialogs.h"
#include "ui/editor.h"

namespace vexa::test {
namespace {

constexpr int kMoreKeywordsThan = 100;

bool IsWine() {
    return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
}

HWND ChildWithText(HWND parent, const std::string& className, const std::string& part) {
    for (const HWND child : ChildrenOf(parent, className)) {
        if (TextOf(child).find(part) != std::string::npos) return child;
    }
    return nullptr;
}

TEST(SystemHelp, ViewerOfWineShowsContentsAndIndexOfTheManual) {
    if (!IsWine()) GTEST_SKIP() << "Windows has no such viewer any more";
    const TestFolder folder;
    folder.putFromProgramFolder("Vexa.hlp");
    folder.put("vexa.INI", "[Editor Options]\r\nHelpViewer=System\r\n");
    const Editor editor(folder);
    editor.keys("{F1}");
    const auto viewer = [] { return FindWindowA(nullptr, "Vexa Help"); };
    const auto index = [] { return FindWindowA(nullptr, "Help topics: Vexa Help"); };
    ASSERT_TRUE(WaitUntil([&] { return viewer() && ChildWithText(viewer(), "RichEdit20A", "Editing and marking"); }));
    editor.takePicture("winhlp32-contents");
    PostMessageA(ChildWithText(viewer(), "Button", "&Index"), BM_CLICK, 0, 0);
    EXPECT_TRUE(WaitUntil([&] {
        const std::vector<HWND> lists = index() ? ChildrenOf(index(), "ListBox") : std::vector<HWND>{};
        return !lists.empty() && SendMessageA(lists[0], LB_GETCOUNT, 0, 0) > kMoreKeywordsThan;
    }));
    editor.takePicture("winhlp32-index");
    EXPECT_TRUE(Press(index(), IDCANCEL));
    PostMessageA(viewer(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(WaitUntil([&] { return viewer() == nullptr; }));
}

}  // namespace
}  // namespace vexa::test
