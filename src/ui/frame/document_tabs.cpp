#include "ui/frame/document_tabs.h"

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

MDIchildCL* DocumentTabs::childOf(TabOrder::Key key) const {
    for (const auto& child : frame_.children()) {
        if (child.get() == key) return child.get();
    }
    return nullptr;
}

MDIchildCL* DocumentTabs::childAt(std::size_t index) const {
    return index < order_.keys().size() ? childOf(order_.keys()[index]) : nullptr;
}

void DocumentTabs::refresh() {
    std::vector<TabOrder::Key> open;
    for (const auto& child : frame_.children())
        open.push_back(child.get());
    order_.take(open);
    uses_.take(open);
    if (GetKeyState(VK_CONTROL) >= 0) uses_.endWalk();  // also when another program has seen the key go up
    const MDIchildCL* active = frame_.activeChild();
    uses_.use(active);
    std::vector<TabLabel> labels;
    for (const TabOrder::Key key : order_.keys())
        labels.push_back(LabelOf(*childOf(key)));
    strip_.take(std::move(labels), order_.indexOf(active).value_or(open.size()));
}

bool DocumentTabs::useMessage(const MSG& message) {
    if (message.message != WM_MOUSEWHEEL) return useKey(message);
    const POINT place{static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
    const bool isOverTabs = message.hwnd != strip_.window() && WindowFromPoint(place) == strip_.window();
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
    if (const MDIchildCL* child = childAt(index)) frame_.activate(*child);
}

// The window asks about changes that are not saved.
void DocumentTabs::closeTab(std::size_t index) {
    if (const MDIchildCL* child = childAt(index)) PostMessageA(child->window(), WM_CLOSE, 0, 0);
}

void DocumentTabs::moveTab(std::size_t from, std::size_t to) {
    order_.move(from, to);
    refresh();
}

}  // namespace vexa
