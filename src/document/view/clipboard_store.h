// The system's clipboard as the editor needs it. The program's windows implement it; tests keep a text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "document/text/marked_area.h"

namespace vexa {

// Holds a text and, where the editor itself has put it there, the kind of block that it is.
class ClipboardStore {
  public:
    virtual ~ClipboardStore() = default;

    // Replaces what the clipboard holds by the text, which the system ends at its first byte 0, and the kind. False,
    // with the clipboard as it was, when another program holds it open or there is no memory.
    virtual bool put(std::string_view text, MarkMode kind) = 0;
    virtual bool hasText() const = 0;
    // None when there is no text or another program holds the clipboard open.
    virtual std::optional<std::string> getText() const = 0;
    // Whole lines for a text that no editor of ours has put there. Any other number may have been stored.
    virtual MarkMode getKind() const = 0;
};

}  // namespace vexa
