// How the frame lets the user find and replace.
#include <algorithm>

#include "ui/find_dialog.h"
#include "ui/replace_dialog.h"
#include "ui/vexa_frame.h"

namespace vexa {
namespace {

// The options that keys switch, each together with Ctrl.
struct OptionKey {
    std::uint16_t key;
    void (FindCommands::*toggle)();
};
constexpr OptionKey kOptionKeys[] = {
    {VK_F5, &FindCommands::toggleMatchCase},
    {VK_F6, &FindCommands::toggleRegularExpression},
};

KeyEvent KeyEventOf(const MSG& message) {
    KeyEvent event;
    event.key = static_cast<std::uint16_t>(message.wParam);
    event.shift = GetKeyState(VK_SHIFT) < 0;
    event.control = GetKeyState(VK_CONTROL) < 0;
    event.alt = GetKeyState(VK_MENU) < 0;
    return event;
}

}  // namespace

// ---- commands ----------------------------------------------------------------------------------------------------

template <class Dialog>
void VexaFrame::openSearchDialog() {
    if (searchDialog_) searchDialog_->close(false);
    searchDialog_ = std::make_unique<Dialog>(application_, search_, static_cast<SearchHost&>(*this));
    if (searchDialog_->openModeless(window())) loop_.setModelessDialog(searchDialog_->window());
}

void VexaFrame::find() {
    openSearchDialog<FindDialog>();
}

void VexaFrame::replace() {
    openSearchDialog<ReplaceDialog>();
}

void VexaFrame::findNext() {
    search([this](EditView* active) { search_.findNext(active); });
}

void VexaFrame::findPrevious() {
    search([this](EditView* active) { search_.findPrevious(active); });
}

// The keyboard stays where it is, so that a dialog that searches can search on.
void VexaFrame::search(const Search& search) {
    DocumentWindow* active = activeDocument();
    notices_.clearStatus();
    search(active ? &active->view() : nullptr);
    if (active) active->refresh();
}

// ---- keys --------------------------------------------------------------------------------------------------------

// The frame looks at these keys before the system does, which would go to the next window with Ctrl+F6.
bool VexaFrame::translate(MSG& message) {
    if (!IsWindowEnabled(window())) return false;  // a dialog has the keys
    if (message.message == WM_KEYDOWN) {
        const KeyEvent event = KeyEventOf(message);
        if (useOptionKey(event)) {
            macro_.recordKey(event);
            return true;
        }
    }
    return MDIframeCL::translate(message);
}

bool VexaFrame::useOptionKey(const KeyEvent& event) {
    if (!event.control || event.shift || event.alt) return false;
    const auto row = std::ranges::find(kOptionKeys, event.key, &OptionKey::key);
    if (row == std::end(kOptionKeys)) return false;
    (search_.*row->toggle)();
    if (searchDialog_) searchDialog_->refreshOptions(application_.searchOptions);
    return true;
}

}  // namespace vexa
