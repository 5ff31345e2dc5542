// The clipboard as another program sees it.
#pragma once

#include <string>

namespace vexa::test {

// Keeps the clipboard open, which no other program can then open.
class OpenedClipboard {
  public:
    OpenedClipboard();
    ~OpenedClipboard();
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

  private:
    bool isOpen_ = false;
};

std::string ClipboardText();
// As another program would: text alone.
void PutForeignText(const std::string& text);

}  // namespace vexa::test
