// What the user sees at once: status-line texts, message boxes, the busy cursor, and the message pump of long work.
// The frame implements it; tests record it.
#pragma once

#include <string_view>

#include "base/strings.h"

namespace vexa {

enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

class Notices {
  public:
    virtual ~Notices() = default;

    // Shows text in the status line's message area, with the warning beep and highlighted if asked.
    virtual void status(std::string_view text, bool beep, bool highlight) = 0;
    // Shows a message box after the exclamation beep, and returns the button that the user chose.
    virtual BoxAnswer box(std::string_view text, TextId caption, BoxButtons buttons) = 0;
    // Shows or takes away the busy cursor. Calls nest: the cursor is busy until each true is matched by a false.
    virtual void setBusy(bool busy) = 0;
    // Lets queued messages run. Returns true, at once, when the next message is the one that ends the program.
    virtual bool pumpMessages() = 0;
};

// Shows the busy cursor while it lives.
class BusyCursor {
  public:
    explicit BusyCursor(Notices& notices) : notices_(notices) { notices_.setBusy(true); }
    ~BusyCursor() { notices_.setBusy(false); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

  private:
    Notices& notices_;
};

}  // namespace vexa
