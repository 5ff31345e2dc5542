// Keys that are pressed while the program acts for the user: kept until it is done, so that they are not mixed in.
#pragma once

#include <windows.h>

#include <array>
#include <deque>

namespace vexa {

class MessageLoop;

class HeldKeys {
  public:
    // Keeps a message of the queue that tells of a key, together with the keys that are down; false for any other
    // message.
    bool hold(const MSG& message);
    void drop() { keys_.clear(); }
    // Has the loop process what is kept, in its order and as if the keys were pressed now. What is held in the course
    // of that follows.
    void giveBack(MessageLoop& loop);

  private:
    using Keyboard = std::array<BYTE, 256>;
    struct Key {
        MSG message;
        Keyboard keyboard;
    };
    static void give(Key& key, MessageLoop& loop);

    std::deque<Key> keys_;
    bool isGivingBack_ = false;
};

}  // namespace vexa
