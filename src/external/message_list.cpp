#include "external/message_list.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/strings.h"

namespace vexa {

// The document may get its name only when it is saved for the compiler.
void MessageList::takeDocumentName() {
    std::string name = document_ ? document_->path() : std::string();
    name.erase(0, name.rfind('\\') + 1);
    std::ranges::transform(name, name.begin(), LowerAscii);
    setDocumentName(name);
}

void MessageList::Reset(SourceDocument* document) {
    document_ = document;
    errorsSeen_ = false;
    warningsSeen_ = false;
    takeDocumentName();
    clearRows();
    if (document) AddBanner();
}

void MessageList::OnDocumentClosed(const SourceDocument& document) {
    if (document_ == &document) document_ = nullptr;
}

void MessageList::note(std::string_view line) {
    if (errorsSeen_) return;
    parser().Parse(documentName(), line);
    errorsSeen_ = parser().level() == ErrorLevel::Error;
    warningsSeen_ = warningsSeen_ || parser().level() == ErrorLevel::Warning;
}

void MessageList::Load(const std::string& path, const std::string& errorPath, const std::string& directory) {
    if (!document_) return;
    setBaseDirectory(directory);
    takeDocumentName();
    const auto added = [this](std::string_view line) { note(line); };
    const bool opened = loadLines(path, added);
    if (!errorPath.empty()) loadLines(errorPath, added);
    if (opened) {
        addClosing({"", LoadText(errorsSeen_     ? TextId::CompiledWithErrors
                                 : warningsSeen_ ? TextId::CompiledWithWarnings
                                                 : TextId::Compiled)});
    } else {
        addClosing({FillText(TextId::CannotOpenErrorFile, {path}), "", LoadText(TextId::CheckCompilerSetup)});
    }
    show();
}

void MessageList::selectRow(std::size_t row) {
    if (row >= rowCount()) return;
    select(row);
    followSelection();
}

// The caret goes along while the user moves through the list, which keeps the focus.
void MessageList::followSelection() {
    const std::string line = selectedText();
    parser().Parse(documentName(), line);
    const bool namesLine = parser().level() != ErrorLevel::None && parser().lineNumber() != ErrorLineParser::kNoLine;
    if (document_ && namesLine && !parser().isExternal()) {
        document_->moveCaret(LineIndex(parser().lineNumber() - 1));
        if (!(view() && view()->isActive()) && !document_->isActive()) document_->activate();
    }
    tell(line);
}

bool MessageList::namesOtherLine() {
    return parser().isExternal() && parser().lineNumber() != ErrorLineParser::kNoLine;
}

bool MessageList::openNamedFile() {
    return openAt(parser().fileName(), parser().lineNumber());
}

void MessageList::activateRow() {
    if (!selectedRow()) return;
    const std::string line = selectedText();
    parser().Parse(documentName(), line);
    if (parser().level() == ErrorLevel::None) {
        if (!parser().FindFileName(line) || !openAt(parser().fileName(), 0)) tell(LoadText(TextId::NoErrorLine));
        return;
    }
    bool shown = true;
    if (namesOtherLine()) {
        shown = openNamedFile();
    } else if (document_) {
        document_->activate();
    }
    followSelection();
    if (!shown) tell(LoadText(TextId::NoFileNameInLine));
}

bool MessageList::stopsAt(std::size_t row) {
    parser().Parse(documentName(), rowText(row));
    return parser().level() != ErrorLevel::None;
}

void MessageList::showStop() {
    if (namesOtherLine()) openNamedFile();
}

void MessageList::closed() {
    tell({});
    if (document_) document_->activate();
}

}  // namespace vexa
