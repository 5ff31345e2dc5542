// An open document and the opening of files, as far as compiling and stepping through its messages need them.
#pragma once

#include <cstdint>
#include <string>

#include "base/units.h"

namespace vexa {

// One for each open document, for as long as it is open: the address tells documents apart.
class SourceDocument {
  public:
    virtual ~SourceDocument() = default;
    // The full path; empty when the document has no file yet.
    virtual std::string path() const = 0;
    virtual bool isModified() const = 0;
    // True when the text is on the disk. A document without a file asks for its name.
    virtual bool save() = 0;
    // The caret goes to a line, or to the nearest that the document has.
    virtual void moveCaret(LineIndex line) = 0;
    virtual void activate() = 0;
    virtual bool isActive() const = 0;
};

class FileOpener {
  public:
    virtual ~FileOpener() = default;
    // Opens the file of a full path, or activates the window that shows it, with the caret at a line counted from 1; 0
    // is the first, too. False when it could not be opened.
    virtual bool openFileAtLine(const std::string& path, std::int32_t line) = 0;
};

}  // namespace vexa
