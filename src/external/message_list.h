// The model of the Message window: what a compiler has reported of a document, and stepping through it.
#pragma once

#include <string>

#include "external/stepped_list.h"

namespace vexa {

class MessageList : public SteppedList {
  public:
    using SteppedList::SteppedList;

    // Begins anew for a document that is to be compiled, or for none.
    void Reset(SourceDocument* document);
    // Adds the lines of an error file, those of a second one if it has a name, and how the compilation has gone; where
    // the error file cannot be opened, what to check. File names are those of the directory. Does nothing without a
    // document.
    void Load(const std::string& path, const std::string& errorPath, const std::string& directory);
    void OnDocumentClosed(const SourceDocument& document);

    // Of all lines loaded since the reset; once an error is seen, no more warnings are looked for.
    bool ErrorsSeen() const { return errorsSeen_; }
    bool WarningsSeen() const { return warningsSeen_; }

    void selectRow(std::size_t row) override;
    void activateRow() override;
    void closed() override;

  protected:
    // At rows that report an error or a warning.
    bool stopsAt(std::size_t row) override;
    void showStop() override;
    TextId noMoreStops() const override { return TextId::NoMoreErrors; }

  private:
    void takeDocumentName();
    void note(std::string_view line);
    void followSelection();
    // Whether the line last parsed is about a line of another file.
    bool namesOtherLine();
    bool openNamedFile();

    SourceDocument* document_ = nullptr;
    bool errorsSeen_ = false;
    bool warningsSeen_ = false;
};

}  // namespace vexa
