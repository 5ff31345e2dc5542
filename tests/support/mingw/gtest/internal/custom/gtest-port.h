// GoogleTest's place for what a platform lacks: the win32-threads flavour of MinGW-w64 has no std::mutex and no
// std::condition_variable, which only this class needs. Only GoogleTest's own tests use it to start threads.
#pragma once

#define GTEST_HAS_NOTIFICATION_ 1

namespace testing::internal {

class Notification {
  public:
    void Notify() {}
    void WaitForNotification() {}
};

}  // namespace testing::internal
