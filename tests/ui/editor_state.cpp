#include "ui/editor_state.h"

#include <utility>

namespace vexa::test {
namespace {

GUITHREADINFO InputOf(const Editor& editor) {
    GUITHREADINFO input{};
    input.cbSize = sizeof input;
    GetGUIThreadInfo(GetWindowThreadProcessId(editor.frame(), nullptr), &input);
    return input;
}

std::string Described(const char* role, HWND window) {
    if (!window) return std::string("\n") + role + ": none";
    return std::string("\n") + role + ": " + ClassOf(window) + " \"" + TextOf(window) + "\"" +
           (IsWindowEnabled(window) ? "" : " disabled") + (IsWindowVisible(window) ? "" : " hidden");
}

}  // namespace

bool IsInMode(const Editor& editor) {
    constexpr DWORD kModes = GUI_INMENUMODE | GUI_INMOVESIZE | GUI_POPUPMENUMODE | GUI_SYSTEMMENUMODE;
    return (InputOf(editor).flags & kModes) != 0;
}

std::string StateOf(const Editor& editor, const std::string& picture) {
    const GUITHREADINFO input = InputOf(editor);
    std::string state = "\nmodes: " + std::to_string(input.flags);
    state += Described("front", GetForegroundWindow()) + Described("active", input.hwndActive) +
             Described("focus", input.hwndFocus) + Described("capture", input.hwndCapture);
    for (const HWND window : editor.program().topWindows())
        state += Described("top", window);
    state += Described("document", editor.activeDocument());
    state += "\nstatus: " + editor.message() + "|" + editor.recording() + "|" + editor.mode() + "|" + editor.position();
    editor.takePicture(picture);
    return state;
}

}  // namespace vexa::test
