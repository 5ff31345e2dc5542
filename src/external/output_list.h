// The model of the Output window: what commands and tools have printed.
#pragma once

#include <string>

#include "external/line_list.h"

namespace vexa {

class OutputList : public LineList {
  public:
    using LineList::LineList;

    // Adds the lines of a capture file, those of a second one for the errors if it has a name, and the words that close
    // a command; names in them are those of files in the directory. Shows the window. False, and nothing is added,
    // when the capture file cannot be opened.
    bool LoadCapture(const std::string& path, const std::string& errorPath, const std::string& directory);
    // The rows belong to a document from now on, whose lines they number; none, each names a file.
    void belongTo(SourceDocument* document) { document_ = document; }
    void OnDocumentClosed(const SourceDocument& document);

    void activateRow() override;

  private:
    bool openNamedFile(const std::string& line);
    bool goToNumberedLine(const std::string& line);

    SourceDocument* document_ = nullptr;
};

}  // namespace vexa
