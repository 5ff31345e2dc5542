// A flag that is set for as long as something goes on, however that ends.
#pragma once

namespace vexa {

class ScopedFlag {
  public:
    explicit ScopedFlag(bool& flag) : flag_(flag) { flag_ = true; }
    ~ScopedFlag() { flag_ = false; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

  private:
    bool& flag_;
};

}  // namespace vexa
