#include "ui/editor.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "ui/key_script.h"

namespace vexa::test {
namespace {

constexpr const char* kDialogClass = "#32770";

BOOL CALLBACK AddToList(HWND child, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
    return TRUE;
}

std::vector<HWND> CollectChildren(HWND parent) {
    std::vector<HWND> children;
    EnumChildWindows(parent, &AddToList, reinterpret_cast<LPARAM>(&children));
    return children;
}

std::string CommandLineOf(const std::vector<std::string>& names) {
    std::string line;
    for (const std::string& name : names)
        line += " \"" + name + "\"";
    return line;
}

// Places of the mouse are given to the system in 65536ths of the screen.
INPUT MouseInput(POINT screenPosition, DWORD flags, DWORD time = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.time = time;
    input.mi.dx = MulDiv(screenPosition.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = MulDiv(screenPosition.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
    return input;
}

}  // namespace

std::string TextOf(HWND window) {
    char text[2000] = "";
    DWORD_PTR length = 0;
    SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text), SMTO_NORMAL, kPatience,
                        &length);
    return text;
}

std::string NameShownBy(HWND window) {
    std::string text = TextOf(window);
    const std::size_t directory = text.find(":\\");
    if (directory == std::string::npos) return text;
    const std::size_t begin = text.rfind(" - ", directory);
    return text.erase(begin, text.size() - begin - (text.ends_with(']') ? 1 : 0));
}

std::string ClassOf(HWND window) {
    char name[100] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
}

std::vector<HWND> ChildrenOf(HWND parent, const std::string& className) {
    std::vector<HWND> children = CollectChildren(parent);
    std::erase_if(children, [&](HWND child) { return ClassOf(child) != className; });
    return children;
}

// ---- start and end -----------------------------------------------------------------------------------------------

StartedProgram::StartedProgram(const TestFolder& folder, const std::string& arguments, const std::string& directory) {
    std::string line = "\"" + folder.program() + "\" " + arguments;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    const std::string current = directory.empty() ? folder.path() : directory;
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, current.c_str(), &startup,
                        &started)) {
        throw std::runtime_error("the editor does not start");
    }
    CloseHandle(started.hThread);
    process_ = started.hProcess;
    processId_ = started.dwProcessId;
}

StartedProgram::~StartedProgram() {
    kill();
    CloseHandle(process_);
}

void StartedProgram::kill() {
    if (!isRunning()) return;
    TerminateProcess(process_, 1);
    WaitForSingleObject(process_, kPatience);
}

bool StartedProgram::ends() const {
    return WaitForSingleObject(process_, kPatience) == WAIT_OBJECT_0;
}

std::vector<HWND> StartedProgram::topWindows() const {
    std::vector<HWND> found;
    for (HWND window = GetTopWindow(nullptr); window; window = GetWindow(window, GW_HWNDNEXT)) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == processId_ && IsWindowVisible(window)) found.push_back(window);
    }
    return found;
}

HWND StartedProgram::findDialog(const std::string& caption) const {
    for (const HWND window : topWindows()) {
        if (ClassOf(window) == kDialogClass && (caption.empty() || TextOf(window) == caption)) return window;
    }
    return nullptr;
}

HWND StartedProgram::dialog(const std::string& caption) const {
    HWND found = nullptr;
    WaitUntil([&] { return (found = findDialog(caption)) != nullptr; });
    return found;
}

Editor::Editor(const TestFolder& folder, const std::vector<std::string>& names, const std::string& directory)
    : program_(folder, CommandLineOf(names), directory) {
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1);  // over no menu or button
    WaitUntil([this] { return (frame_ = findFrame()) != nullptr; });
    // Idle: everything the command line asks for has been done, or stands in a box.
    WaitForInputIdle(process(), kPatience);
    if (!frame_ || !isRunning()) throw std::runtime_error("the editor shows no window");
}

HWND Editor::findFrame() const {
    for (const HWND window : program_.topWindows()) {
        if (ClassOf(window) == "AppFrameCL") return window;
    }
    return nullptr;
}

// ---- looking -----------------------------------------------------------------------------------------------------

bool Editor::hasCaption(const std::string& part) const {
    return WaitUntil([&] { return caption().find(part) != std::string::npos; });
}

std::vector<std::string> Editor::documents() const {
    std::vector<std::string> captions;
    for (const HWND window : ChildrenOf(frame_, "MDIchildCL"))
        captions.push_back(NameShownBy(window));
    return captions;
}

HWND Editor::activeDocument() const {
    const std::vector<HWND> clients = ChildrenOf(frame_, "MDIClient");
    DWORD_PTR active = 0;
    if (!clients.empty()) SendMessageTimeoutA(clients[0], WM_MDIGETACTIVE, 0, 0, SMTO_NORMAL, kPatience, &active);
    return reinterpret_cast<HWND>(active);
}

HWND Editor::activePane() const {
    for (const char* name : {"PaneWindowCL", "ListPaneCL"}) {
        const std::vector<HWND> panes = ChildrenOf(activeDocument(), name);
        if (!panes.empty()) return panes[0];
    }
    return nullptr;
}

HWND Editor::paneWindow(std::size_t index) const {
    const std::vector<HWND> bars = ChildrenOf(frame_, "StatusBarCL");
    const std::vector<HWND> panes = bars.empty() ? bars : ChildrenOf(bars[0], "CtrlWindowCL");
    return index < panes.size() ? panes[index] : nullptr;
}

LONG Editor::paneWidth(std::size_t index) const {
    RECT area{};
    GetWindowRect(paneWindow(index), &area);
    return area.right - area.left;
}

int Editor::line() const {
    int line = 0;
    std::sscanf(position().c_str(), " L:%d", &line);
    return line;
}

bool Editor::showsMessage(const std::string& text) const {
    return WaitUntil([&] { return message() == text; });
}

bool Editor::showsPosition(int line, int column) const {
    char text[40];
    std::snprintf(text, sizeof text, " L:%5.5d C:%3.3d", line, column);
    const bool isShown = WaitUntil([&] { return position() == text; });
    if (!isShown) std::fprintf(stderr, "position is%s\n", position().c_str());
    return isShown;
}

bool Editor::hasTopWindow(const std::string& className) const {
    return std::ranges::any_of(program_.topWindows(), [&](HWND window) { return ClassOf(window) == className; });
}

void Editor::takePicture(const std::string& name) const {
    const char* folder = std::getenv("VEXA_SCREENSHOTS");
    if (!folder) return;
    const std::string request = std::string(folder) + "/" + name + ".request";
    std::ofstream{request};
    WaitUntil([&] { return !std::filesystem::exists(request); });
}

// ---- doing -------------------------------------------------------------------------------------------------------

bool Editor::answers() const {
    return SendMessageTimeoutA(frame_, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, nullptr);
}

bool Editor::runCommand(CommandId id) const {
    return SendMessageTimeoutA(frame_, WM_COMMAND, static_cast<WPARAM>(id), 0, SMTO_NORMAL, kPatience, nullptr);
}

// A message of a program overtakes the release of the mouse that brings the caret back into sight.
bool Editor::send(UINT message, WPARAM parameter) const {
    WaitUntil([this] { return capture() == nullptr; });
    return SendMessageTimeoutA(activePane(), message, parameter, 0, SMTO_NORMAL, kPatience, nullptr);
}

void Editor::keys(const std::string& script) const {
    // A box of the editor that is open is in front instead of the frame. While the editor closes windows, its frame is
    // disabled and loses keys.
    WaitUntil([this] {
        const HWND front = GetForegroundWindow();
        DWORD owner = 0;
        GetWindowThreadProcessId(front, &owner);
        const bool isInFront = owner == GetProcessId(process());
        if (!isInFront) SetForegroundWindow(frame_);
        return isInFront && IsWindowEnabled(front);
    });
    PressKeys(script);
}

bool Editor::takesCommands() const {
    return WaitUntil([this] { return !isRunning() || IsWindowEnabled(frame_); });
}

void Editor::settle() const {
    constexpr int kLooks = 5;
    RECT before{};
    takesCommands();
    WaitUntil([&] {
        RECT now{};
        GetWindowRect(activePane(), &now);
        if (sameLooks_ < kLooks) sameLooks_ = EqualRect(&now, &before) ? sameLooks_ + 1 : 0;
        before = now;
        return sameLooks_ == kLooks;
    });
}

// Alt is put into the editor's own state of the keys. As an input it would be lost at times: when the pointer moves,
// Wine takes the state of the keys from the host, which knows of none that is held here.
void Editor::dragWithAlt(POINT from, POINT to) const {
    const DWORD thread = GetWindowThreadProcessId(frame_, nullptr);
    BYTE keys[256];
    rest(from);
    AttachThreadInput(GetCurrentThreadId(), thread, TRUE);
    GetKeyboardState(keys);
    keys[VK_MENU] = 0x80;
    SetKeyboardState(keys);
    moveMouse(from, MOUSEEVENTF_LEFTDOWN);
    WaitUntil([this] { return capture() == activePane(); });
    keys[VK_MENU] = 0;
    SetKeyboardState(keys);
    AttachThreadInput(GetCurrentThreadId(), thread, FALSE);
    rest(to);
    moveMouse(to, MOUSEEVENTF_LEFTUP);
}

HWND Editor::capture() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(frame_, nullptr), &info);
    return info.hwndCapture;
}

void Editor::moveMouse(POINT position, DWORD flags, DWORD time) const {
    ClientToScreen(activePane(), &position);
    INPUT input = MouseInput(position, flags, time);
    SendInput(1, &input, sizeof input);
}

bool Editor::pointUntil(POINT position, const std::function<bool()>& condition) const {
    return WaitUntil([&] {
        if (!isAt(position)) moveMouse(position, 0);
        return condition();
    });
}

bool Editor::isAt(POINT position) const {
    POINT now{};
    GetCursorPos(&now);
    ScreenToClient(activePane(), &now);
    return now.x == position.x && now.y == position.y;
}

void Editor::rest(POINT position) const {
    constexpr int kLooks = 3;
    int looks = 0;
    settle();
    moveMouse(position, 0);
    pointUntil(position, [&] {
        AwaitDisplaysNews();
        looks = isAt(position) ? looks + 1 : 0;
        return looks == kLooks;
    });
}

void Editor::click(POINT position) const {
    drag({position});
    // A press of another button in between: the next click at this place is never the second of a double one.
    moveMouse(position, MOUSEEVENTF_MIDDLEDOWN);
    moveMouse(position, MOUSEEVENTF_MIDDLEUP);
}

void Editor::clickTimes(POINT position, int times) const {
    rest(position);
    const DWORD now = GetTickCount();
    for (int i = 0; i < times; ++i) {
        moveMouse(position, MOUSEEVENTF_LEFTDOWN, now);
        moveMouse(position, MOUSEEVENTF_LEFTUP, now);
    }
}

void Editor::doubleClick(POINT position) const {
    clickTimes(position, 2);
}

void Editor::tripleClick(POINT position) const {
    clickTimes(position, 3);
}

void Editor::rightClick(POINT position) const {
    rest(position);
    moveMouse(position, MOUSEEVENTF_RIGHTDOWN);
    moveMouse(position, MOUSEEVENTF_RIGHTUP);
}

bool Editor::drag(const std::vector<POINT>& places, const std::function<bool()>& condition) const {
    rest(places.front());
    moveMouse(places.front(), MOUSEEVENTF_LEFTDOWN);
    for (const POINT position : places)
        moveMouse(position, 0);
    rest(places.back());
    const bool holds = !condition || pointUntil(places.back(), condition);
    moveMouse(places.back(), MOUSEEVENTF_LEFTUP);
    return holds;
}

}  // namespace vexa::test
