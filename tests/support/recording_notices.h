// Notices that remember what the user would have seen, and answer questions as the test says.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "base/notices.h"

namespace vexa::test {

struct StatusNotice {
    std::string text;
    bool beep = false;
    bool highlight = false;

    bool operator==(const StatusNotice&) const = default;
};

struct BoxNotice {
    std::string text;
    std::string caption;
    BoxButtons buttons = BoxButtons::Ok;

    bool operator==(const BoxNotice&) const = default;
};

class RecordingNotices : public Notices {
  public:
    void status(std::string_view text, bool beep, bool highlight) override;
    // Gives the next of the answers. A box with one button needs none; a question without one fails the test, and is
    // cancelled.
    BoxAnswer box(std::string_view text, TextId caption, BoxButtons buttons) override;
    void setBusy(bool busy) override;
    bool pumpMessages() override;

    // The text last shown in the status line; empty when there was none.
    std::string lastStatus() const { return statuses.empty() ? std::string() : statuses.back().text; }

    std::function<void()> onPump;  // what else happens when messages run
    std::vector<StatusNotice> statuses;
    std::vector<BoxNotice> boxes;
    std::deque<BoxAnswer> answers;
    int busyDepth = 0;   // cursors shown and not yet taken away
    int busyCount = 0;   // cursors ever shown
    int pumpCount = 0;   // calls of pumpMessages
    int quitAtPump = 0;  // the call that finds the end of the program, and every one after it; 0 for none
};

}  // namespace vexa::test
