// Nobody sees and nobody stops what a benchmark does.
#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

#include "base/notices.h"
#include "search/search_progress.h"

namespace vexa::bench {

using Clock = std::chrono::steady_clock;

class SilentNotices : public Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    BoxAnswer box(std::string_view, TextId, BoxButtons) override { return BoxAnswer::Ok; }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

class PatientWatch : public SearchWatch {
  public:
    std::int64_t milliseconds() override {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now().time_since_epoch()).count();
    }
    bool stopAsked() override { return false; }
};

}  // namespace vexa::bench
