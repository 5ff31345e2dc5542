#include "document/text/text_actions.h"

#include <algorithm>

#include "document/text/text_document.h"

namespace vexa {

namespace {

CharColumn End(const TextLine& line) {
    return CharColumn(line.length());
}

bool CursorIsInText(const TextLine& line) {
    return line.column() < End(line);
}

}  // namespace

bool TextAction::perform() {
    const bool changed = change();
    document().countChange(+1);
    return changed;
}

void TextAction::undo() {
    takeBack();
    document().countChange(-1);
}

bool OverwriteChar::change() {
    TextLine& line = document().current();
    changed_ = CursorIsInText(line);
    if (changed_) old_ = line.replace(line.column(), new_);
    return changed_;
}

void OverwriteChar::takeBack() {
    TextLine& line = document().current();
    if (changed_) line.replace(line.column(), old_);
}

bool InsertChar::change() {
    TextLine& line = document().current();
    line.insert(std::min(line.column(), End(line)), new_);
    return true;
}

void InsertChar::takeBack() {
    TextLine& line = document().current();
    line.erase(std::min(line.column(), End(line) - 1));
}

bool DeleteChar::change() {
    TextLine& line = document().current();
    changed_ = CursorIsInText(line);
    if (changed_) old_ = line.erase(line.column());
    return changed_;
}

void DeleteChar::takeBack() {
    TextLine& line = document().current();
    if (changed_) line.insert(line.column(), old_);
}

}  // namespace vexa
