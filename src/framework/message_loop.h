// The program's message loop, and letting messages run in the middle of long work.
#pragma once

#include <windows.h>

namespace vexa {

class AppFrameCL;

// Takes the next message of a range out of the queue, and none when the program is to end: that message is in every
// range and stays for the loop.
bool TakeMessage(MSG& message, UINT first, UINT last);

class MessageLoop {
  public:
    explicit MessageLoop(AppFrameCL& frame) : frame_(frame) {}

    // Runs until the program is told to end; its exit code.
    int run();
    // Processes everything that is queued. False when the queue is empty; true, at once, when the next message is the
    // one that ends the program, which stays in the queue.
    bool PumpMessages();
    // Processes a key that was taken out of the queue before, and the character that the system makes of it.
    void processKey(MSG& message);
    // A dialog that is open beside the frame and gets its keys first; null when it closes.
    void setModelessDialog(HWND dialog) { modelessDialog_ = dialog; }
    HWND modelessDialog() const { return modelessDialog_; }

  private:
    // Lets the frame work until a message comes or nothing is left to do.
    void idle();
    void process(MSG& message);
    // True for a command key of the frame, and for what belongs to the dialog beside it.
    bool use(MSG& message);
    static LRESULT CALLBACK OnDialogMessage(int code, WPARAM wParam, LPARAM lParam) noexcept;

    inline static MessageLoop* running_ = nullptr;
    AppFrameCL& frame_;
    HWND modelessDialog_ = nullptr;
    bool isUsing_ = false;
};

}  // namespace vexa
