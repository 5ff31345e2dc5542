#include "ui/dialogs.h"

#include "ui/editor.h"

namespace vexa::test {

std::string BoxText(HWND box) {
    std::string text;
    for (const HWND part : ChildrenOf(box, "Static")) {
        if (std::string line = TextOf(part); line.size() > text.size()) text = line;
    }
    return text;
}

bool Press(HWND box, int button) {
    if (!GetDlgItem(box, button)) return false;
    PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button), reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
    return WaitUntil([box] { return !IsWindow(box) || !IsWindowVisible(box); });
}

bool EnterFileName(HWND dialog, const std::string& name) {
    const std::vector<HWND> fields = ChildrenOf(dialog, "Edit");
    if (fields.empty()) return false;
    SendMessageA(fields[0], WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
    return Press(dialog, IDOK);
}

}  // namespace vexa::test
