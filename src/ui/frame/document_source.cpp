#include "ui/frame/document_source.h"

#include <algorithm>

namespace vexa {

std::string DocumentSource::path() const {
    const TextDocument& document = window_.document();
    return document.isNamed() ? document.fullPath() : std::string();
}

bool DocumentSource::save() {
    const bool saved = documents_.files().save(window_.document());
    window_.refresh();
    return saved;
}

void DocumentSource::moveCaret(LineIndex line) {
    EditView& view = window_.view();
    view.goTo(std::clamp(line, LineIndex(0), view.lastLine()), CharColumn(0));
    window_.refresh();
}

}  // namespace vexa
