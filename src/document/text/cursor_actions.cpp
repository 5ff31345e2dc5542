#include "document/text/cursor_actions.h"

#include "document/text/text_document.h"

namespace vexa {

namespace {

CharColumn Limited(CharColumn column, std::int32_t last) {
    if (column.value < 0) return CharColumn(0);
    return column.value > last ? CharColumn(last - 1) : column;
}

}  // namespace

bool MoveToColumn::perform() {
    TextLine& line = document().current();
    old_ = line.column();
    line.setColumn(Limited(column_, document().rules().limits.lastColumn));
    return true;
}

void MoveToColumn::undo() {
    document().current().setColumn(old_);
}

// An index that no slot answers to, as a redo on a shorter text can have, leaves the cursor where it is.
bool MoveToLine::perform() {
    old_ = document().currentLine();
    if (document().line(line_) == nullptr) return false;
    document().setCurrentLine(line_);
    return true;
}

void MoveToLine::undo() {
    document().setCurrentLine(old_);
}

bool MarkAction::perform() {
    old_ = document().marked();
    document().marked() = changed(old_);
    return true;
}

void MarkAction::undo() {
    document().marked() = old_;
}

MarkedArea ShiftMark::changed(const MarkedArea& area) const {
    const auto shifted = [this](MarkPoint p) { return MarkPoint{p.line + lines_, p.column + columns_}; };
    return {area.mode, area.active, shifted(area.start), shifted(area.end)};
}

MarkedArea SetMark::changed(const MarkedArea& area) const {
    return {area.mode, true, start_, end_};
}

MarkedArea StartMark::changed(const MarkedArea& area) const {
    return {area.mode, false, start_, area.end};
}

MarkedArea ClearMark::changed(const MarkedArea&) const {
    return {};
}

MarkedArea SetMarkMode::changed(const MarkedArea& area) const {
    return {mode_, area.active, area.start, area.end};
}

}  // namespace vexa
