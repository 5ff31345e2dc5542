#include "document/text/line_actions.h"

#include <algorithm>

#include "document/text/document_line_ends.h"
#include "document/text/text_document.h"

namespace vexa {

namespace {

// A vacant slot is taken out as the empty line that it reads as.
LinePtr TakeOut(TextDocument& document, LineIndex index) {
    document.editableLine(index);
    return document.lines().detach(index.value);
}

// The line stays where it is when there is no memory to store it.
void PutBack(TextDocument& document, LinePtr& line, LineIndex index) {
    document.lines().reserve(index.value);
    document.lines().insertAt(std::move(line), index.value);
}

}  // namespace

bool InsertLine::change() {
    if (!line_) line_ = NewLine(document(), {});
    PutBack(document(), line_, document().currentLine());
    return true;
}

void InsertLine::takeBack() {
    line_ = TakeOut(document(), document().currentLine());
}

bool DeleteLine::change() {
    const LineIndex index = index_ == kCurrent ? document().currentLine() : index_;
    if (document().line(index) == nullptr) return false;
    line_ = TakeOut(document(), index);
    return true;
}

void DeleteLine::takeBack() {
    if (line_) PutBack(document(), line_, document().currentLine());
}

bool SplitLine::change() {
    TextLine& line = document().current();
    const CharColumn end = std::min(line.column(), CharColumn(line.length()));
    LinePtr tail = document().makeLine(line.text().substr(static_cast<std::size_t>(end.value)));
    document().lines().reserve(document().currentLine().value + 1);
    tail->setEnd(line.end());
    if (!tail->text().empty()) line.truncate(end);
    line.setEnd(NewLineEnd(document()));
    PutBack(document(), tail, document().currentLine() + 1);
    return true;
}

void SplitLine::takeBack() {
    const LineIndex tail = document().currentLine() + 1;
    const TextLine& below = document().editableLine(tail);
    TextLine& line = document().current();
    if (!below.text().empty()) line.append(below.text());
    line.setEnd(below.end());
    document().lines().detach(tail.value);
}

bool JoinLines::change() {
    const LineIndex here = document().currentLine();
    const bool isLast = here.value >= document().lines().lastUsed(LastUsed::Plain);
    const TextLine* own = document().line(here);
    end_ = own ? own->end() : LineEnd::None;
    changed_ = !isLast || end_ != LineEnd::None;
    if (!changed_) return false;
    const TextLine* next = isLast ? nullptr : &document().editableLine(here + 1);
    TextLine& line = document().current();
    joint_ = CharColumn(line.length());
    if (next) line.append(next->text());
    line.setEnd(next ? next->end() : LineEnd::None);
    if (next) next_ = document().lines().detach(here.value + 1);
    return true;
}

void JoinLines::takeBack() {
    if (!changed_) return;
    document().lines().reserve(document().currentLine().value + 1);
    TextLine& line = document().current();
    if (next_) line.truncate(joint_);
    line.setEnd(end_);
    if (next_) PutBack(document(), next_, document().currentLine() + 1);
}

}  // namespace vexa
