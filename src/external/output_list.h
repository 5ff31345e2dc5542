// The model of the Output window: what commands and tools have printed.
#pragma once

#include <string>
#include <vector>

#include "external/line_list.h"

namespace vexa {

class OutputList : public LineList {
  public:
    using LineList::LineList;

    // Adds the lines of a capture file, those of a second one for the errors if it has a name, and the words that close
    // a command; names in them are those of files in the directory. Shows the window. False, and nothing is added,
    // when the capture file cannot be opened.
    bool LoadCapture(const std::string& path, const std::string& errorPath, const std::string& directory);
    // The rows that are added from now on belong to a document, whose lines they number; to none, each names a file.
    void belongTo(SourceDocument* document) { parts_.push_back({rowCount(), document}); }
    void OnDocumentClosed(const SourceDocument& document);

    void clearRows() override;
    void activateRow() override;

  private:
    struct Part {
        std::size_t firstRow;
        SourceDocument* document;
    };

    SourceDocument* documentOf(std::size_t row) const;
    bool openNamedFile(const std::string& line);
    bool goToNumberedLine(SourceDocument& document, const std::string& line);

    std::vector<Part> parts_;  // in the order of their rows
};

}  // namespace vexa
