#include "document/text/line_actions.h"

#include <algorithm>

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
    if (!line_) line_ = document().makeLine({});
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
    line.truncate(end);
    PutBack(document(), tail, document().currentLine() + 1);
    return true;
}

void SplitLine::takeBack() {
    const LineIndex tail = document().currentLine() + 1;
    const std::string_view text = document().editableLine(tail).text();
    document().current().append(text);
    document().lines().detach(tail.value);
}

bool JoinLines::change() {
    const LineIndex here = document().currentLine();
    if (here.value >= document().lines().lastUsed(LastUsed::Plain)) return false;
    const std::string_view text = document().editableLine(here + 1).text();
    TextLine& line = document().current();
    joint_ = CharColumn(line.length());
    line.append(text);
    next_ = document().lines().detach(here.value + 1);
    return true;
}

void JoinLines::takeBack() {
    if (!next_) return;
    document().lines().reserve(document().currentLine().value + 1);
    document().current().truncate(joint_);
    PutBack(document(), next_, document().currentLine() + 1);
}

}  // namespace vexa
