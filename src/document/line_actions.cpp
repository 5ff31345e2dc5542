#include "document/line_actions.h"

#include <algorithm>

#include "document/text_document.h"

namespace vexa {

namespace {

// A vacant slot is taken out as the empty line that it reads as.
LinePtr TakeOut(TextDocument& document, LineIndex index) {
    document.editableLine(index);
    return document.lines().detach(index.value);
}

void PutBack(TextDocument& document, LinePtr line, LineIndex index) {
    document.lines().insertAt(std::move(line), index.value);
}

}  // namespace

bool InsertLine::change() {
    if (!line_) line_ = document().makeLine({});
    PutBack(document(), std::move(line_), document().currentLine());
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
    if (line_) PutBack(document(), std::move(line_), document().currentLine());
}

bool SplitLine::change() {
    TextLine& line = document().current();
    const CharColumn end = std::min(line.column(), CharColumn(line.length()));
    LinePtr tail = document().makeLine(line.text().substr(static_cast<std::size_t>(end.value)));
    line.truncate(end);
    PutBack(document(), std::move(tail), document().currentLine() + 1);
    return true;
}

void SplitLine::takeBack() {
    const LinePtr tail = TakeOut(document(), document().currentLine() + 1);
    document().current().append(tail->text());
}

bool JoinLines::change() {
    const LineIndex here = document().currentLine();
    if (here.value >= document().lines().lastUsed(LastUsed::Plain)) return false;
    next_ = TakeOut(document(), here + 1);
    TextLine& line = document().current();
    joint_ = CharColumn(line.length());
    line.append(next_->text());
    return true;
}

void JoinLines::takeBack() {
    if (!next_) return;
    document().current().truncate(joint_);
    PutBack(document(), std::move(next_), document().currentLine() + 1);
}

}  // namespace vexa
