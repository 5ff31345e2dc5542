// While this lives, no file of this process grows beyond a size: a write across it takes a part and fails as on a full
// disk. On the host alone; Windows has no such limit, and its tests refuse steps by SetFileFault.
#pragma once

#ifndef _WIN32

#include <sys/resource.h>

#include <csignal>

namespace vexa::test {

class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &outer_);
        const rlimit limited{bytes, outer_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &outer_);
        std::signal(SIGXFSZ, outerHandler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit outer_{};
    // The limit would otherwise end the process.
    void (*outerHandler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

}  // namespace vexa::test

#endif
