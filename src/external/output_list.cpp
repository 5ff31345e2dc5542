#include "external/output_list.h"

#include "base/strings.h"

namespace vexa {

bool OutputList::LoadCapture(const std::string& path, const std::string& errorPath, const std::string& directory) {
    setBaseDirectory(directory);
    const auto added = [](std::string_view) {};
    if (!loadLines(path, added)) return false;
    if (!errorPath.empty()) loadLines(errorPath, added);
    addClosing({"", LoadText(TextId::CommandCompleted)});
    belongTo(nullptr);
    show();
    return true;
}

void OutputList::OnDocumentClosed(const SourceDocument& document) {
    if (document_ == &document) document_ = nullptr;
}

void OutputList::activateRow() {
    const std::string line = selectedText();
    if (!(document_ ? goToNumberedLine(line) : openNamedFile(line))) tell(LoadText(TextId::NoFileNameInLine));
}

bool OutputList::openNamedFile(const std::string& line) {
    return parser().FindFileName(line) && openAt(parser().fileName(), 0);
}

bool OutputList::goToNumberedLine(const std::string& line) {
    if (!parser().FindLineNumber(line)) return false;
    document_->moveCaret(LineIndex(parser().lineNumber() - 1));
    document_->activate();
    return true;
}

}  // namespace vexa
