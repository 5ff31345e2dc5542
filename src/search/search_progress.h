// What the user sees and can do while a search takes long: a text on the status line, and Esc to stop it.
#pragma once

#include <cstdint>

#include "base/notices.h"

namespace vexa {

// What a long search asks the window that it runs in.
class SearchWatch {
  public:
    virtual ~SearchWatch() = default;
    // Of a clock that never goes back.
    virtual std::int64_t milliseconds() = 0;
    // Whether the user has asked to stop (with Esc) since the search began. Must let no other command run.
    virtual bool stopAsked() = 0;
};

// Shows the busy cursor while it lives.
class SearchProgress {
  public:
    static constexpr std::int64_t kPatience = 1000;  // milliseconds without a text
    static constexpr std::int64_t kInterval = 250;   // milliseconds from one text to the next
    static constexpr int kStepsPerLook = 64;         // lines and changes from one look at the clock to the next

    SearchProgress(Notices& notices, SearchWatch& watch);

    void countReplacement() { ++replacements_; }
    std::int32_t replacements() const { return replacements_; }
    // To be asked at each line and each change: whether to stop here.
    bool mustStop() { return stopped_ || (++steps_ % kStepsPerLook == 0 && look()); }
    bool stopped() const { return stopped_; }

  private:
    bool look();
    void tell();

    Notices& notices_;
    SearchWatch& watch_;
    BusyCursor busy_;
    std::int64_t nextText_;  // on the watch's clock
    std::int32_t replacements_ = 0;
    int steps_ = 0;
    bool stopped_ = false;
};

}  // namespace vexa
