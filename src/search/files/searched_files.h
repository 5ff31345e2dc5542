// The open documents, as far as searching in files needs them.
#pragma once

#include <cstdint>
#include <string>

#include "document/text/text_document.h"
#include "document/view/edit_view.h"
#include "external/source_document.h"

namespace vexa {

class SearchedFiles : public FileOpener {
  public:
    // The open document of a file, given by any full path of it and its size (0 for one that cannot be read); none when
    // the file is not open.
    virtual const TextDocument* documentOf(const std::string& path, std::uint64_t size) const = 0;
    // The characters that end a whole word in a file of that name; valid until the next call.
    virtual std::string_view delimitersOf(const std::string& path) = 0;
    // The view of the active document; none when the active window is no document's.
    virtual EditView* activeView() = 0;
    // Shows what was done in that view.
    virtual void refreshActive() = 0;
};

}  // namespace vexa
