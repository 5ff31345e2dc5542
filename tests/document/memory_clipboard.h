// A clipboard of its own for each test, which another program can hold open.
#pragma once

#include <optional>
#include <string>

#include "document/view/clipboard_store.h"

namespace vexa::test {

class MemoryClipboard : public ClipboardStore {
  public:
    bool put(std::string_view newText, MarkMode newKind) override {
        if (isHeld) return false;
        text = newText.substr(0, newText.find('\0'));
        kind = newKind;
        return true;
    }
    bool hasText() const override { return text.has_value(); }
    std::optional<std::string> getText() const override { return isHeld ? std::nullopt : text; }
    MarkMode getKind() const override { return kind; }

    std::optional<std::string> text;
    MarkMode kind = MarkMode::Lines;
    bool isHeld = false;
};

}  // namespace vexa::test
