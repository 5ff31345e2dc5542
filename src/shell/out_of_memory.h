// What the user is told when memory runs out.
#pragma once

namespace vexa {

// While it lives (one at a time), every allocation that fails shows a message first and then does what it did before.
class OutOfMemoryHandler {
  public:
    // Shows a box with one button and no owner; must get by without new memory.
    using Show = void (*)(const char* text, const char* caption);

    explicit OutOfMemoryHandler(Show show);
    ~OutOfMemoryHandler();
    OutOfMemoryHandler(const OutOfMemoryHandler&) = delete;
    OutOfMemoryHandler& operator=(const OutOfMemoryHandler&) = delete;
};

}  // namespace vexa
