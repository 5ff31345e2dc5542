#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

// Waits until it is told to begin, or to end when nothing is to be done.
struct BackgroundWork::Thread {
    static DWORD WINAPI Run(void* context) {
        BackgroundWork& work = *static_cast<BackgroundWork*>(context);
        while (WaitForSingleObject(reinterpret_cast<HANDLE>(work.begins_), INFINITE) == WAIT_OBJECT_0 &&
               work.isRunning_) {
            Sleep(1);  // a thread that has just been woken may hold up the one that woke it, as long as it likes
            work.run();
        }
        return 0;
    }
    static void Start(BackgroundWork& work) {
        constexpr LONG kMostBegins = 2;  // of the work, and of its object's end
        if (work.begins_ == 0)
            work.begins_ = reinterpret_cast<std::intptr_t>(CreateSemaphoreA(nullptr, 0, kMostBegins, nullptr));
        DWORD number = 0;  // Windows 98 wants to tell it
        if (work.begins_ != 0)
            work.thread_ = reinterpret_cast<std::intptr_t>(CreateThread(nullptr, 0, &Run, &work, 0, &number));
    }
    static void Wake(BackgroundWork& work) { ReleaseSemaphore(reinterpret_cast<HANDLE>(work.begins_), 1, nullptr); }
};

// The thread still comes to what was begun last before it is told to end.
BackgroundWork::~BackgroundWork() {
    if (thread_ != 0) {
        Thread::Wake(*this);
        WaitForSingleObject(reinterpret_cast<HANDLE>(thread_), INFINITE);
        CloseHandle(reinterpret_cast<HANDLE>(thread_));
    }
    if (begins_ != 0) CloseHandle(reinterpret_cast<HANDLE>(begins_));
}

void BackgroundWork::begin() {
    isRunning_ = true;
    if (thread_ == 0) Thread::Start(*this);
    if (thread_ != 0) {
        Thread::Wake(*this);
    } else {
        run();
    }
}

bool BackgroundWork::isRunning() {
    return isRunning_;
}

void BackgroundWork::run() {
    function_(context_);
    isRunning_ = false;
}

}  // namespace vexa::platform
