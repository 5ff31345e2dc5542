// What a long search asks Windows: the time, and whether the user has pressed Esc.
#pragma once

#include <windows.h>

#include "search/search_progress.h"

namespace vexa {

class KeyboardWatch : public SearchWatch {
  public:
    // The system's count starts again every 49 days, this one does not.
    std::int64_t milliseconds() override;
    // Takes the keys out of the queue: those pressed while the program is busy are no text.
    bool stopAsked() override;

  private:
    std::int64_t elapsed_ = 0;
    DWORD lastTick_ = GetTickCount();
};

}  // namespace vexa
