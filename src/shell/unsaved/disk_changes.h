// Files of open documents that other programs have changed.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/notices.h"
#include "shell/unsaved/document_choice.h"

namespace vexa {

class TextDocument;

// What showing differences asks of the main window.
class DifferenceView {
  public:
    virtual ~DifferenceView() = default;
    // Shows in which lines a document and its file differ, beginning with a heading.
    virtual void showRows(TextDocument& document, const std::vector<std::string>& rows) = 0;
};

// Only other contents are a change: a touched time stamp is none, and neither is a file that is missing or locked just
// now, which is looked at again.
class DiskChanges : public DocumentChoice {
  public:
    DiskChanges(DifferenceView& view, Notices& notices) : view_(view), notices_(notices) {}

    // Reads the changed files of unmodified documents anew, and tells. The modified ones are the rows from then on.
    // True when the text of any document has become another. The documents must stay open until the rows are dealt
    // with.
    bool look(std::span<TextDocument* const> documents);
    // The user has put the answer to the rows off; they are asked about no more until the file changes again or is
    // saved.
    void putOff();

    const Texts& texts() const override;
    std::vector<std::string> rows() const override;
    bool mayAct(std::size_t, std::size_t) override { return true; }
    void act(std::size_t button, std::size_t row) override;

  private:
    struct Change {
        TextDocument* document;
        std::uint64_t checksum;  // of what the file holds now
    };

    void showDifferences(TextDocument& document);

    DifferenceView& view_;
    Notices& notices_;
    std::vector<Change> changes_;
};

}  // namespace vexa
