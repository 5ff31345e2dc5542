// An open document's window as compiling and stepping through messages need it.
#pragma once

#include <string>

#include "external/source_document.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class DocumentSource : public SourceDocument {
  public:
    DocumentSource(OpenDocuments& documents, DocumentWindow& window) : documents_(documents), window_(window) {}

    const DocumentWindow& window() const { return window_; }

    std::string path() const override;
    bool isModified() const override { return window_.document().isModified(); }
    bool save() override;
    void moveCaret(LineIndex line) override;
    void activate() override { documents_.frame().activate(window_); }
    bool isActive() const override { return documents_.active() == &window_; }

  private:
    OpenDocuments& documents_;
    DocumentWindow& window_;
};

}  // namespace vexa
