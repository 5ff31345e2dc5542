// The clipboard that all programs share.
#pragma once

#include <windows.h>

#include "document/view/clipboard_store.h"

namespace vexa {

// The text is on it in the system's own text format, the kind of block as a 32-bit number beside it, in a format that
// is known to all editors of this name.
class SystemClipboard : public ClipboardStore {
  public:
    SystemClipboard();
    // The window that owns what is put; the system takes nothing without one.
    void setOwner(HWND owner) { owner_ = owner; }

    bool put(std::string_view text, MarkMode kind) override;
    bool hasText() const override;
    std::optional<std::string> getText() const override;
    MarkMode getKind() const override;

  private:
    const UINT kindFormat_;
    HWND owner_ = nullptr;
};

}  // namespace vexa
