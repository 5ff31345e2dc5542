#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

// Waits until it is told to begin, or to end when nothing is to be done.
struct BackgroundWork::Thread {
    explicit Thread(BackgroundWork& done) : work(done) {
        constexpr LONG kMostBegins = 2;  // of the work, and of its object's end
        begins = CreateSemaphoreA(nullptr, 0, kMostBegins, nullptr);
        DWORD number = 0;  // Windows 98 wants to tell it
        if (begins) handle = CreateThread(nullptr, 0, &Run, this, 0, &number);
    }
    // Still comes to what was begun last before it is told to end.
    ~Thread() {
        if (handle) {
            wake();
            WaitForSingleObject(handle, INFINITE);
            CloseHandle(handle);
        }
        if (begins) CloseHandle(begins);
    }
    Thread(const Thread&) = delete;
    Thread& operator=(const Thread&) = delete;

    void wake() { ReleaseSemaphore(begins, 1, nullptr); }

    static DWORD WINAPI Run(void* context) {
        const Thread& thread = *static_cast<Thread*>(context);
        while (WaitForSingleObject(thread.begins, INFINITE) == WAIT_OBJECT_0 && thread.work.isRunning_) {
            Sleep(1);  // a thread that has just been woken may hold up the one that woke it, as long as it likes
            thread.work.run();
        }
        return 0;
    }

    BackgroundWork& work;
    HANDLE begins = nullptr;
    HANDLE handle = nullptr;  // of the thread, if it could be started
};

BackgroundWork::BackgroundWork(Function function, void* context) : function_(function), context_(context) {}

BackgroundWork::~BackgroundWork() = default;

void BackgroundWork::begin() {
    isRunning_ = true;
    if (!thread_) {
        auto thread = std::make_unique<Thread>(*this);
        if (thread->handle) thread_ = std::move(thread);
    }
    if (thread_) {
        thread_->wake();
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
