// What the user sees at once, shown by the frame: status line, boxes, busy cursor.
#pragma once

#include <string>

#include "base/notices.h"
#include "framework/message_loop.h"
#include "framework/status_bar.h"

namespace vexa {

class FrameNotices : public Notices {
  public:
    FrameNotices(const WindowCL& frame, StatusBarCL& statusBar, MessageLoop& loop)
        : frame_(frame), statusBar_(statusBar), loop_(loop) {}

    void status(std::string_view text, bool beep, bool highlight) override;
    BoxAnswer box(std::string_view text, TextId caption, BoxButtons buttons) override;
    void setBusy(bool busy) override;
    bool pumpMessages() override { return loop_.PumpMessages(); }

    void clearStatus();
    // Lends the message area to a help text; the last notice comes back at the end of the help.
    void showHelp(std::string_view text);
    void endHelp();
    bool isBusy() const { return busyDepth_ > 0; }

  private:
    void showNotice();

    const WindowCL& frame_;
    StatusBarCL& statusBar_;
    MessageLoop& loop_;
    std::string notice_;
    bool isHighlighted_ = false;
    int busyDepth_ = 0;
};

}  // namespace vexa
