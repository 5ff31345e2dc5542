#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

struct BackgroundWork::Thread {
    static DWORD WINAPI Run(void* work) {
        static_cast<BackgroundWork*>(work)->run();
        return 0;
    }
};

// The thread is not asked about: its end takes a millisecond after that of the work.
BackgroundWork::BackgroundWork(Function function, void* context) : function_(function), context_(context) {
    DWORD number = 0;  // Windows 98 wants to tell it
    const HANDLE thread = CreateThread(nullptr, 0, &Thread::Run, this, 0, &number);
    if (thread) {
        CloseHandle(thread);
    } else {
        run();
    }
}

BackgroundWork::~BackgroundWork() {
    while (!hasEnded_)
        Sleep(1);
}

bool BackgroundWork::hasEnded() {
    return hasEnded_;
}

void BackgroundWork::run() {
    function_(context_);
    hasEnded_ = true;
}

}  // namespace vexa::platform
