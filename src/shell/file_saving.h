// Writing a document to its file, with all that the user is asked and told on the way.
#pragma once

#include "base/notices.h"
#include "document/text/text_document.h"

namespace vexa {

class FileSaving {
  public:
    explicit FileSaving(Notices& notices) : notices_(notices) {}

    // Asks before the first save of what is no text changes bytes that nobody has edited.
    bool mayChangeBytes(const TextDocument& document);
    // Writes the document to the file of its name. Asks before it writes over what another program has changed, and
    // before it writes without a safety copy. False when the user has refused, or has been told of a failure; the file
    // is then as it was.
    bool write(TextDocument& document);

  private:
    bool isYes(const std::string& question);
    bool mayGoOn(TextDocument& document, const WriteOutcome& outcome);

    Notices& notices_;
};

}  // namespace vexa
