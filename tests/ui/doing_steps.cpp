// What the steps of a case do.
#include <windows.h>

#include <commctrl.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "quickhelp/topics/made_help_file.h"
#include "ui/dde_client.h"
#include "ui/dialogs.h"
#include "ui/key_script.h"
#include "ui/ui_stage.h"

namespace vexa::test {
namespace {

bool PutNumbered(Stage& stage, StepWords words) {
    const std::string name = words.word();
    const int count = words.number();
    std::string text;
    for (int i = 1; i <= count; ++i)
        text += "line " + std::to_string(i) + "\r\n";
    stage.folder.put(name, text);
    return true;
}

bool Start(Stage& stage, const std::string& directory, const std::string& arguments) {
    stage.editor.reset();
    stage.dialogs.clear();
    std::istringstream words(arguments);
    const std::vector<std::string> names{std::istream_iterator<std::string>(words), {}};
    stage.editor = std::make_unique<Editor>(stage.folder, names, directory);
    return true;
}

bool StartAgain(Stage& stage, StepWords words) {
    return HasReturned(StartedProgram(stage.folder, words.rest()), 0);
}

bool StartWaiting(Stage& stage, StepWords words) {
    stage.waiting = std::make_unique<StartedProgram>(stage.folder, words.rest());
    return true;
}

bool Command(Stage& stage, StepWords words) {
    if (!stage.editor->takesCommands()) return false;
    stage.editor->command(CommandNamed(words.word()));
    return true;
}

bool End(Stage& stage, StepWords) {
    if (!stage.editor->takesCommands()) return false;
    stage.editor->requestClose();
    return stage.editor->ends();
}

bool MakePrinter(Stage& stage, StepWords) {
    stage.printer = std::make_unique<TestPrinter>(stage.folder.path("printed.ps"));
    return stage.printer->isThere() ? true : throw Missing{"no printer can be made here"};
}

bool HaveNoPrinter(Stage&, StepWords) {
    RemoveTestPrinter();
    return HasPrinter() ? throw Missing{"there is a printer"} : true;
}

bool HaveCompiler(Stage&, StepWords) {
    const bool isThere = GetFileAttributesA("Z:\\usr\\bin\\i686-w64-mingw32-gcc") != INVALID_FILE_ATTRIBUTES;
    return isThere ? true : throw Missing{"this machine has no compiler"};
}

// For dialogs of the system, whose controls have no names.
bool ClickLabel(Stage& stage, StepWords words) {
    for (const HWND button : ChildrenOf(stage.dialog(), "Button")) {
        if (TextOf(button) == words.rest()) return PostMessageA(button, BM_CLICK, 0, 0);
    }
    return false;
}

bool PressButton(Stage& stage, StepWords words) {
    const bool isPressed = Press(stage.dialog(), ControlNamed(words.word()));
    stage.dialogs.pop_back();
    return isPressed;
}

bool GoTo(Stage& stage, StepWords words) {
    const HWND window = words.window(stage);
    SetForegroundWindow(window);
    return WaitUntil([&] { return GetForegroundWindow() == window; });
}

// Presses a button at a position of the tabs, in pixels, and lets it go there or at a second one.
bool PressTab(Stage& stage, StepWords words) {
    const bool isMiddle = words.word() == "middle";
    const LPARAM from = MAKELPARAM(words.number(), 8);
    const LPARAM to = words.rest().empty() ? from : MAKELPARAM(words.number(), 8);
    PostMessageA(stage.tabs(), isMiddle ? WM_MBUTTONDOWN : WM_LBUTTONDOWN, MK_LBUTTON, from);
    PostMessageA(stage.tabs(), WM_MOUSEMOVE, MK_LBUTTON, to);
    return PostMessageA(stage.tabs(), isMiddle ? WM_MBUTTONUP : WM_LBUTTONUP, 0, to);
}

bool IsTipShown(const std::string& text) {
    HWND tip = nullptr;
    while ((tip = FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr)) != nullptr) {
        if (IsWindowVisible(tip) && TextOf(tip) == text) return true;
    }
    return false;
}

// The mouse stands still where it has come to at once.
bool PointToTab(Stage& stage, StepWords words) {
    POINT tab{words.number(), 8};
    MapWindowPoints(stage.tabs(), stage.editor->activePane(), &tab, 1);
    return stage.editor->pointUntil(tab, [&] { return IsTipShown(words.rest()); });
}

bool AskForTitleMenu(Stage& stage, StepWords) {
    RECT frame{};
    GetWindowRect(stage.editor->frame(), &frame);
    const LPARAM title = MAKELPARAM((frame.left + frame.right) / 2, frame.top + 12);
    return PostMessageA(stage.editor->frame(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(stage.editor->frame()), title);
}

bool PressPane(Stage& stage, StepWords words) {
    const HWND bar = ChildrenOf(stage.editor->frame(), "StatusBarCL").at(0);
    return PostMessageA(ChildrenOf(bar, "CtrlWindowCL").at(words.pane()), WM_LBUTTONDOWN, 0, 0);
}

bool FillControl(Stage& stage, StepWords words) {
    const HWND control = words.control(stage);
    return SendMessageA(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(words.rest().c_str()));
}

bool MoveDialog(Stage& stage, StepWords words) {
    const int x = words.number();
    return SetWindowPos(stage.dialog(), nullptr, x, words.number(), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

bool MeasureCell(Stage& stage, StepWords) {
    stage.editor->keys("{Ctrl+Home}{Right}{Down}");
    if (!stage.editor->showsPosition(2, 2)) return false;
    GUITHREADINFO caret{};
    caret.cbSize = sizeof(caret);
    GetGUIThreadInfo(GetWindowThreadProcessId(stage.editor->frame(), nullptr), &caret);
    stage.cell = {caret.rcCaret.left, caret.rcCaret.top};
    return stage.cell.x > 0;
}

bool Drag(Stage& stage, StepWords words) {
    const POINT from = words.pixel(stage);
    stage.editor->drag({from, words.pixel(stage)});
    return true;
}

// The release alone tells where the mouse went to.
bool FlickMouse(Stage& stage, StepWords words) {
    const auto place = [&words, &stage] {
        const POINT pixel = words.pixel(stage);
        return MAKELPARAM(pixel.x, pixel.y);
    };
    PostMessageA(stage.editor->activePane(), WM_LBUTTONDOWN, MK_LBUTTON, place());
    return PostMessageA(stage.editor->activePane(), WM_LBUTTONUP, 0, place());
}

bool DragWithAlt(Stage& stage, StepWords words) {
    const POINT from = words.pixel(stage);
    stage.editor->dragWithAlt(from, words.pixel(stage));
    return true;
}

bool TurnWheel(Stage& stage, StepWords words) {
    static const std::map<std::string, WORD> kHeld = {{"alone", 0}, {"shift", MK_SHIFT}, {"control", MK_CONTROL}};
    const WORD held = kHeld.at(words.word());
    const WPARAM turn = MAKEWPARAM(held, static_cast<WORD>(words.number()));
    return stage.editor->send(WM_MOUSEWHEEL, turn);
}

bool Scroll(Stage& stage, StepWords words) {
    static const std::map<std::string, WORD> kRequests = {{"line-down", SB_LINEDOWN}, {"line-up", SB_LINEUP},
                                                          {"page-down", SB_PAGEDOWN}, {"page-up", SB_PAGEUP},
                                                          {"start", SB_TOP},          {"end", SB_BOTTOM}};
    const UINT bar = words.word() == "vertical" ? WM_VSCROLL : WM_HSCROLL;
    return stage.editor->send(bar, kRequests.at(words.word()));
}

// Beside NAME.png the file NAME.area says which part of the screen it is, as "WIDTHxHEIGHT+X+Y".
bool TakePictureOf(Stage& stage, StepWords words) {
    RECT area{};
    const std::string part = words.word();
    GetWindowRect(part == "frame"    ? stage.editor->frame()
                  : part == "viewer" ? FindWindowA("VexaHelp", nullptr)
                                     : stage.dialog(),
                  &area);
    if (const char* folder = std::getenv("VEXA_SCREENSHOTS"))
        std::ofstream(std::string(folder) + "/" + words.rest() + ".area")
            << area.right - area.left << 'x' << area.bottom - area.top << '+' << area.left << '+' << area.top;
    stage.editor->takePicture(words.rest());
    return true;
}

const std::map<std::string, Run> kSteps = {
    {"file", [](Stage& s, StepWords w) { return s.folder.put(w.rest(), w.lines()), true; }},
    {"numbered", &PutNumbered},
    {"folder", [](Stage& s, StepWords w) { return s.folder.makeDirectory(w.rest()), true; }},
    {"read-only", [](Stage& s, StepWords w) { return s.folder.setReadOnly(w.rest()), true; }},
    {"remove", [](Stage& s, StepWords w) { return std::filesystem::remove(s.folder.path(w.rest())); }},
    {"test-program", [](Stage& s, StepWords) { return s.folder.putTestProgram(), true; }},
    {"help-file", [](Stage& s, StepWords w) { return s.folder.put(w.rest(), topics::test::MakeHelpFile()), true; }},
    {"manual", [](Stage& s, StepWords) { return s.folder.putFromProgramFolder("Vexa.hlp"), true; }},
    {"printer", &MakePrinter},
    {"no-printer", &HaveNoPrinter},
    {"compiler", &HaveCompiler},
    {"start", [](Stage& s, StepWords w) { return Start(s, {}, w.rest()); }},
    {"start-in", [](Stage& s, StepWords w) { return Start(s, s.folder.path(w.rest()), {}); }},
    {"start-again", &StartAgain},
    {"start-waiting", &StartWaiting},
    {"end", &End},
    {"kill", [](Stage& s, StepWords) { return s.editor->kill(), true; }},
    {"keys", [](Stage& s, StepWords w) { return s.editor->keys(w.rest()), true; }},
    {"keys-there", [](Stage&, StepWords w) { return PressKeys(w.rest()), true; }},
    {"command", &Command},
    {"click-pane", &PressPane},
    {"press-tab", &PressTab},
    {"point-to-tab", &PointToTab},
    {"title-menu", &AskForTitleMenu},
    {"click", [](Stage& s, StepWords w) -> bool { return PostMessageA(w.control(s), BM_CLICK, 0, 0); }},
    {"click-label", &ClickLabel},
    {"measure-cell", &MeasureCell},
    {"mouse-click", [](Stage& s, StepWords w) { return s.editor->click(w.pixel(s)), true; }},
    {"mouse-double", [](Stage& s, StepWords w) { return s.editor->doubleClick(w.pixel(s)), true; }},
    {"mouse-triple", [](Stage& s, StepWords w) { return s.editor->tripleClick(w.pixel(s)), true; }},
    {"mouse-right", [](Stage& s, StepWords w) { return s.editor->rightClick(w.pixel(s)), true; }},
    {"mouse-drag", &Drag},
    {"mouse-flick", &FlickMouse},
    {"mouse-column", &DragWithAlt},
    {"wheel", &TurnWheel},
    {"scroll", &Scroll},
    {"fill", &FillControl},
    {"choose", [](Stage& s, StepWords w) { return EnterFileName(s.dialog(), w.rest()); }},
    {"press", &PressButton},
    {"go-to", &GoTo},
    {"move", &MoveDialog},
    {"minimise", [](Stage& s, StepWords) { return ShowWindow(s.editor->frame(), SW_MINIMIZE), true; }},
    {"dde", [](Stage&, StepWords w) { return ExecuteByDde(w.rest()); }},
    {"copy-elsewhere", [](Stage&, StepWords w) { return PutForeignText(w.lines()), true; }},
    {"hold-clipboard", [](Stage& s, StepWords) { return s.heldClipboard = std::make_unique<OpenedClipboard>(), true; }},
    {"release-clipboard", [](Stage& s, StepWords) { return s.heldClipboard.reset(), true; }},
    {"picture-of", &TakePictureOf},
    {"picture", [](Stage& s, StepWords w) { return s.editor->takePicture(w.rest()), true; }},
};

}  // namespace

const std::map<std::string, Run>& DoingSteps() {
    return kSteps;
}

}  // namespace vexa::test
