#include "ui/frame/document_tabs.h"

#include <algorithm>
#include <utility>

#include "ui/frame/open_documents.h"

namespace vexa {
namespace {

// The mark is in front, where a name that is cut short does not hide it.
TabLabel LabelOf(MDIchildCL& child) {
    const DocumentWindow* shown = OpenDocuments::DocumentOf(&child);
    if (!shown) return {child.text(), child.text()};
    const TextDocument& document = shown->document();
    return {(document.isModified() ? "* " : "") + document.baseName(), document.fullPath()};
}

}  // namespace

const MDIchildCL* DocumentTabs::childOf(UseOrder::Key key) const {
    for (const auto& child : frame_.children()) {
        if (child.get() == key) return child.get();
    }
    return nullptr;
}

void DocumentTabs::refresh() {
    const MDIchildCL* active = frame_.activeChild();
    std::size_t activeIndex = frame_.children().size();
    std::vector<UseOrder::Key> open;
    std::vector<TabLabel> labels;
    for (const auto& child : frame_.children()) {
        if (child.get() == active) activeIndex = open.size();
        open.push_back(child.get());
        labels.push_back(LabelOf(*child));
    }
    uses_.take(open);
    if (GetKeyState(VK_CONTROL) >= 0) uses_.endWalk();  // also when another program has seen the key go up
    uses_.use(active);
    strip_.take(std::move(labels), activeIndex);
}

bool DocumentTabs::useMessage(const MSG& message) {
    if (message.message != WM_MOUSEWHEEL) return useKey(message);
    const POINT position{static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
    const bool isOverTabs = message.hwnd != strip_.window() && WindowFromPoint(position) == strip_.window();
    if (isOverTabs) strip_.turnWheel(static_cast<short>(HIWORD(message.wParam)));
    return isOverTabs;
}

bool DocumentTabs::useKey(const MSG& message) {
    if (message.message == WM_KEYUP && message.wParam == VK_CONTROL) uses_.endWalk();
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || GetKeyState(VK_CONTROL) >= 0) return false;
    if (!uses_.isWalking()) refresh();
    if (const MDIchildCL* next = childOf(uses_.step(GetKeyState(VK_SHIFT) < 0))) frame_.activate(*next);
    return true;
}

void DocumentTabs::chooseTab(std::size_t index) {
    if (index < frame_.children().size()) frame_.activate(*frame_.children()[index]);
}

// The window asks about changes that are not saved.
void DocumentTabs::closeTab(std::size_t index) {
    if (index < frame_.children().size()) PostMessageA(frame_.children()[index]->window(), WM_CLOSE, 0, 0);
}

void DocumentTabs::moveTab(std::size_t from, std::size_t to) {
    if (std::max(from, to) < frame_.children().size()) frame_.moveChild(from, to);
    refresh();
}

}  // namespace vexa
