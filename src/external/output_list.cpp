#include "external/output_list.h"

#include "base/strings.h"

namespace vexa {

bool OutputList::LoadCapture(const std::string& path, const std::string& errorPath, const std::string& directory) {
    setBaseDirectory(directory);
    belongTo(nullptr);
    const auto added = [](std::string_view) {};
    if (!loadLines(path, added)) return false;
    if (!errorPath.empty()) loadLines(errorPath, added);
    addClosing({"", LoadText(TextId::CommandCompleted)});
    show();
    return true;
}

void OutputList::OnDocumentClosed(const SourceDocument& document) {
    for (Part& part : parts_) {
        if (part.document == &document) part.document = nullptr;
    }
}

void OutputList::clearRows() {
    parts_.clear();
    LineList::clearRows();
}

SourceDocument* OutputList::documentOf(std::size_t row) const {
    SourceDocument* document = nullptr;
    for (const Part& part : parts_) {
        if (part.firstRow <= row) document = part.document;
    }
    return document;
}

void OutputList::activateRow() {
    const std::string line = selectedText();
    SourceDocument* document = documentOf(selectedRow().value_or(0));
    const bool isShown = document ? goToNumberedLine(*document, line) : openNamedFile(line);
    if (!isShown) tell(LoadText(TextId::NoFileNameInLine));
}

bool OutputList::openNamedFile(const std::string& line) {
    return parser().FindFileName(line) && openAt(parser().fileName(), 0);
}

bool OutputList::goToNumberedLine(SourceDocument& document, const std::string& line) {
    if (!parser().FindLineNumber(line)) return false;
    document.moveCaret(LineIndex(parser().lineNumber() - 1));
    document.activate();
    return true;
}

}  // namespace vexa
