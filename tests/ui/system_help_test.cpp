// The help program of Wine reads the manual, which is in the format of WinHelp. That of Windows only says that there is
// no help any more.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

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

constexpr const char* kTextClass = "RichEdit20A";

HWND Viewer() {
    return FindWindowA(nullptr, "Vexa Help");
}

// The window on the desktop that shows a topic with this part; null when none does.
HWND WindowWithTopic(const std::string& part) {
    HWND window = nullptr;
    do {
        window = FindWindowExA(nullptr, window, nullptr, nullptr);
    } while (window && !(IsWindowVisible(window) && ChildWithText(window, kTextClass, part)));
    return window;
}

bool Shows(HWND viewer, const std::string& part) {
    return WaitUntil([&] { return viewer && ChildWithText(viewer, kTextClass, part); });
}

// The position of a character of the topic, in pixels. The answer is written into the viewer's own memory.
LPARAM PositionOf(HWND text, const std::string& part) {
    const std::string all = TextOf(text);
    const std::string before = all.substr(0, all.find(part));
    const auto lineEnds = std::count(before.begin(), before.end(), '\n');  // two characters here, one there
    DWORD processId = 0;
    GetWindowThreadProcessId(text, &processId);
    const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, processId);
    void* const there = VirtualAllocEx(process, nullptr, sizeof(POINT), MEM_COMMIT, PAGE_READWRITE);
    SendMessageA(text, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(there),
                 static_cast<LPARAM>(before.size()) - static_cast<LPARAM>(lineEnds));
    POINT position{};
    ReadProcessMemory(process, there, &position, sizeof(position), nullptr);
    VirtualFreeEx(process, there, 0, MEM_RELEASE);
    CloseHandle(process);
    return MAKELPARAM(position.x + 3, position.y + 3);
}

void ClickOn(HWND viewer, const std::string& link) {
    const HWND text = ChildrenOf(viewer, kTextClass).at(0);
    const LPARAM position = PositionOf(text, link);
    PostMessageA(text, WM_LBUTTONDOWN, MK_LBUTTON, position);
    PostMessageA(text, WM_LBUTTONUP, 0, position);
}

// An editor that shows the manual in the viewer of the system.
class SystemHelp : public testing::Test {
  protected:
    void SetUp() override {
        if (!IsWine()) GTEST_SKIP() << "Windows has no such viewer any more";
        folder_.putFromProgramFolder("Vexa.hlp");
        folder_.put("vexa.INI", "[Editor Options]\r\nHelpViewer=System\r\n");
        editor_ = std::make_unique<Editor>(folder_);
        editor_->keys("{F1}");
        ASSERT_TRUE(WaitUntil([] { return WindowWithTopic("Vexa is a text editor") != nullptr; }));
    }
    void TearDown() override {
        if (!Viewer()) return;
        PostMessageA(Viewer(), WM_CLOSE, 0, 0);
        EXPECT_TRUE(WaitUntil([] { return Viewer() == nullptr; }));
    }
    void press(const char* button) { PostMessageA(ChildWithText(Viewer(), "Button", button), BM_CLICK, 0, 0); }
    const Editor& editor() const { return *editor_; }

  private:
    const TestFolder folder_;
    std::unique_ptr<Editor> editor_;
};

TEST_F(SystemHelp, ViewerOfWineShowsContentsAndIndexOfTheManual) {
    const auto index = [] { return FindWindowA(nullptr, "Help topics: Vexa Help"); };
    editor().takePicture("winhlp32-contents");
    press("&Index");
    EXPECT_TRUE(WaitUntil([&] {
        const std::vector<HWND> lists = index() ? ChildrenOf(index(), "ListBox") : std::vector<HWND>{};
        return !lists.empty() && SendMessageA(lists[0], LB_GETCOUNT, 0, 0) > kMoreKeywordsThan;
    }));
    editor().takePicture("winhlp32-index");
    EXPECT_TRUE(Press(index(), IDCANCEL));
}

TEST_F(SystemHelp, ViewerOfWineFollowsJumpsShowsPopUpsAndGoesBack) {
    const HWND viewer = Viewer();  // a pop-up has the same caption
    ClickOn(viewer, "Editing and marking");
    ASSERT_TRUE(Shows(viewer, "What you type is inserted"));
    editor().takePicture("winhlp32-jump");
    ClickOn(viewer, "caret. Alt+I");
    ASSERT_TRUE(WaitUntil([] { return WindowWithTopic("The blinking bar") != nullptr; }));
    EXPECT_NE(WindowWithTopic("The blinking bar"), viewer);
    editor().takePicture("winhlp32-pop-up");
    ClickOn(WindowWithTopic("The blinking bar"), "The blinking bar");
    EXPECT_TRUE(WaitUntil([] { return WindowWithTopic("The blinking bar") == nullptr; }));
    press("&Back");
    EXPECT_TRUE(Shows(viewer, "Vexa is a text editor"));
}

}  // namespace
}  // namespace vexa::test
