#include "search/search_progress.h"

#include <string>

#include "base/strings.h"

namespace vexa {

SearchProgress::SearchProgress(Notices& notices, SearchWatch& watch)
    : notices_(notices), watch_(watch), busy_(notices), nextText_(watch.milliseconds() + kPatience) {}

bool SearchProgress::look() {
    steps_ = 0;
    const std::int64_t now = watch_.milliseconds();
    if (now < nextText_) return false;
    nextText_ = now + kInterval;
    stopped_ = watch_.stopAsked();
    if (!stopped_) tell();
    return stopped_;
}

void SearchProgress::tell() {
    const std::string count = std::to_string(replacements_);
    notices_.status(FillText(TextId::SearchProgress, {count}), false, false);
}

}  // namespace vexa
