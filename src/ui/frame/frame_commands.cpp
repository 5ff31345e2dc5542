// The keys that the frame carries out itself.
#include "ui/frame/vexa_frame.h"

namespace vexa {
namespace {

KeyEvent KeyEventOf(const MSG& message) {
    KeyEvent event;
    event.key = static_cast<std::uint16_t>(message.wParam);
    event.shift = GetKeyState(VK_SHIFT) < 0;
    event.control = GetKeyState(VK_CONTROL) < 0;
    event.alt = GetKeyState(VK_MENU) < 0;
    return event;
}

}  // namespace

struct FrameKeys {
    struct Row {
        FrameAction action;
        void (VexaFrame::*run)();
    };
    static constexpr Row kRows[] = {
        {FrameAction::ToggleMatchCase, &VexaFrame::toggleMatchCase},
        {FrameAction::ToggleRegularExpression, &VexaFrame::toggleRegularExpression},
        {FrameAction::OpenInclude, &VexaFrame::dispatchOpenInclude},
        {FrameAction::ListFunctions, &VexaFrame::listFunctions},
        {FrameAction::FindAtCaret, &VexaFrame::findAtCaret},
        {FrameAction::ResetZoom, &VexaFrame::resetZoom},
    };
};

// The frame looks at these keys before the system does, which would go to the next window with Ctrl+F6.
bool VexaFrame::translate(MSG& message) {
    if (!takesCommands()) return false;  // a dialog has the keys
    if (macro_.isPlaying() && holdKey(message)) return true;
    const KeyEvent event = KeyEventOf(message);
    const bool isKey = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (isKey && searchDialog_ && searchDialog_->useKey(message, event)) return true;
    if (message.message == WM_KEYDOWN) {
        const DocumentWindow* active = activeDocument();
        const bool inText = active && IsChild(active->window(), message.hwnd);
        if (inText && event.key == kKeyEscape && searchDialog_ && searchDialog_->leave()) return true;
        if (useFrameKey(event, inText)) {
            macro_.recordKey(event);
            return true;
        }
    }
    return MDIframeCL::translate(message);
}

bool VexaFrame::holdKey(const MSG& message) {
    const bool stops = message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE;
    if (!stops) return heldKeys_.hold(message);
    macro_.stop();
    heldKeys_.drop();
    return true;
}

bool VexaFrame::useFrameKey(const KeyEvent& event, bool inText) {
    const auto action = FrameActionOf(event, inText);
    if (!action) return false;
    for (const FrameKeys::Row& row : FrameKeys::kRows) {
        if (row.action == *action) (this->*row.run)();
    }
    return true;
}

void VexaFrame::toggleMatchCase() {
    search_.toggleMatchCase();
    if (searchDialog_) searchDialog_->refreshOptions(application_.searchOptions);
}

void VexaFrame::toggleRegularExpression() {
    search_.toggleRegularExpression();
    if (searchDialog_) searchDialog_->refreshOptions(application_.searchOptions);
}

void VexaFrame::dispatchOpenInclude() {
    dispatcher_.Dispatch(CommandId::OpenInclude, CommandOrigin::Step);
}

}  // namespace vexa
