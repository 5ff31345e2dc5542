#include "ui/frame/frame_notices.h"

#include "base/strings.h"
#include "framework/message_box.h"
#include "ui/frame/status_panes.h"

namespace vexa {
namespace {

UINT ButtonsOf(BoxButtons buttons) {
    static constexpr UINT kButtons[] = {MB_OK, MB_YESNO, MB_YESNOCANCEL};
    return kButtons[static_cast<std::size_t>(buttons)];
}

// The close button of a box with one button answers like that button.
BoxAnswer AnswerOf(int button, BoxButtons buttons) {
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    if (button == IDYES) return BoxAnswer::Yes;
    return button == IDNO ? BoxAnswer::No : BoxAnswer::Cancel;
}

// The pointer has not moved, but what lies under it may want another shape again.
void RefreshPointer() {
    POINT position;
    if (GetCursorPos(&position)) SetCursorPos(position.x, position.y);
}

}  // namespace

void FrameNotices::showNotice() {
    if (!statusBar_.window()) return;
    statusBar_.setPane(kMessagePane, notice_, isHighlighted_);
    // In the middle of long work nobody else asks the bar to draw itself.
    if (isBusy()) RedrawWindow(statusBar_.window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void FrameNotices::status(std::string_view text, bool beep, bool highlight) {
    notice_ = text;
    isHighlighted_ = highlight;
    if (beep) MessageBeep(MB_ICONEXCLAMATION);
    showNotice();
}

void FrameNotices::clearStatus() {
    if (!notice_.empty()) status({}, false, false);
}

void FrameNotices::showHelp(std::string_view text) {
    statusBar_.setPane(kMessagePane, std::string(text));
}

void FrameNotices::endHelp() {
    showNotice();
}

// A modal dialog, which has switched the frame off, has to wait for the answer itself.
BoxAnswer FrameNotices::box(std::string_view text, TextId caption, BoxButtons buttons) {
    const HWND frame = frame_.window();
    const HWND owner = IsWindowEnabled(frame) ? frame : GetLastActivePopup(frame);
    constexpr std::size_t kLongestWord = 80;
    return AnswerOf(
        ShowBox(owner, BreakLongWords(text, kLongestWord), std::string(LoadText(caption)), ButtonsOf(buttons)),
        buttons);
}

void FrameNotices::setBusy(bool busy) {
    busyDepth_ += busy ? 1 : -1;
    if (busyDepth_ == 0) {
        RefreshPointer();
    } else if (busy && busyDepth_ == 1) {
        SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    }
}

}  // namespace vexa
