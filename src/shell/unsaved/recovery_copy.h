// A copy of a document's text that is made a little at a time, while the user may type on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>

#include "document/text/text_document.h"

namespace vexa {

// Some lines as a recovery file has them.
struct RecoveryPart {
    std::string text;
    std::int32_t lines = 0;
    bool isCopied = false;  // as they are now
};
using RecoveryParts = std::list<RecoveryPart>;

// What has been copied stays so when lines around it change, come or go: only the part with a change is copied again.
// So the copy becomes whole even if a key comes between any two steps.
class RecoveryCopy {
  public:
    static constexpr std::size_t kPart = 32 * 1024;

    // The document must live as long as this, and nobody else may ask its lines for what is unchanged. A step copies
    // whole lines up to about twice `part` bytes.
    explicit RecoveryCopy(TextDocument& document, std::size_t part = kPart);

    const TextDocument& document() const { return document_; }
    // Copies some lines, which takes well below a millisecond; true when the copy is that of the present text. Throws
    // std::bad_alloc and is then of no use.
    bool step();
    // The state of the document that the copy is of.
    std::uint32_t revision() const { return revision_; }
    // The whole file, without its checksum.
    RecoveryParts take();

  private:
    void noteChanges();
    void replace(std::int32_t before, std::int32_t end, std::int32_t more);
    void copy(RecoveryParts::iterator old);

    TextDocument& document_;
    std::uint32_t revision_;
    std::int32_t lines_;  // up to the last with contents
    const std::size_t part_;
    RecoveryParts parts_;
};

}  // namespace vexa
