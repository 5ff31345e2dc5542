#include "support/recording_notices.h"

#include <gtest/gtest.h>

namespace vexa::test {

void RecordingNotices::status(std::string_view text, bool beep, bool highlight) {
    statuses.push_back({std::string(text), beep, highlight});
}

BoxAnswer RecordingNotices::box(std::string_view text, TextId caption, BoxButtons buttons) {
    boxes.push_back({std::string(text), std::string(LoadText(caption)), buttons});
    if (buttons == BoxButtons::Ok) return BoxAnswer::Ok;
    if (answers.empty()) {
        ADD_FAILURE() << "unexpected question: " << text;
        return buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
    }
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    return answer;
}

void RecordingNotices::setBusy(bool busy) {
    busyDepth += busy ? 1 : -1;
    busyCount += busy ? 1 : 0;
    EXPECT_GE(busyDepth, 0) << "a busy cursor taken away that was not shown";
}

bool RecordingNotices::pumpMessages() {
    ++pumpCount;
    if (onPump) onPump();
    return quitAtPump != 0 && pumpCount >= quitAtPump;
}

}  // namespace vexa::test
