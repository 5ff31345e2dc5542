#include "document/text/run_actions.h"

#include <algorithm>

#include "document/text/text_document.h"

namespace vexa {

ReplaceRun::ReplaceRun(TextDocument& document, std::int32_t count, std::string_view text)
    : EditAction(document),
      count_(count),
      inserted_(static_cast<std::int32_t>(text.size())),
      atCursor_(true),
      text_(text) {}

ReplaceRun::ReplaceRun(TextDocument& document, LineIndex line, CharColumn column, std::int32_t count,
                       std::string_view text)
    : EditAction(document),
      line_(line),
      column_(column),
      count_(count),
      inserted_(static_cast<std::int32_t>(text.size())),
      atCursor_(false),
      text_(text) {}

bool ReplaceRun::perform() {
    if (atCursor_) {
        line_ = document().currentLine();
        column_ = document().column();
    }
    changed_ = document().line(line_) != nullptr;
    if (changed_) {
        const std::int32_t length = document().editableLine(line_).length();
        column_ = std::min(column_, CharColumn(length));
        exchange(std::min(count_, length - column_.value));
    }
    document().countChange(count_ + inserted_);
    return changed_;
}

void ReplaceRun::undo() {
    if (changed_) exchange(inserted_);
    document().countChange(-count_ - inserted_);
}

// Exchanges the characters of the run and the text.
void ReplaceRun::exchange(std::int32_t count) {
    TextLine& line = document().editableLine(line_);
    std::string removed(line.text(), static_cast<std::size_t>(column_.value), static_cast<std::size_t>(count));
    line.replaceRun(column_, count, text_);
    text_ = std::move(removed);
}

}  // namespace vexa
