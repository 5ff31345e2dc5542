// The steps that move the cursor and change the marking.
#pragma once

#include "document/text/edit_action.h"
#include "document/text/marked_area.h"

namespace vexa {

// Sets the cursor's column in the current line. A negative column becomes 0 and one above the last becomes the one
// before the last, while the last itself is taken as it is.
class MoveToColumn : public EditAction {
  public:
    MoveToColumn(TextDocument& document, CharColumn column) : EditAction(document), column_(column) {}
    bool perform() override;
    void undo() override;

  private:
    CharColumn column_;
    CharColumn old_;
};

// Makes a line the current one.
class MoveToLine : public EditAction {
  public:
    MoveToLine(TextDocument& document, LineIndex line) : EditAction(document), line_(line) {}
    bool perform() override;
    void undo() override;

  private:
    LineIndex line_;
    LineIndex old_;
};

// The base of the steps that replace the marking by another and put the old one back.
class MarkAction : public EditAction {
  public:
    using EditAction::EditAction;
    bool perform() override;
    void undo() override;

  protected:
    virtual MarkedArea changed(const MarkedArea& area) const = 0;

  private:
    MarkedArea old_;
};

// Moves both ends of the marked area.
class ShiftMark : public MarkAction {
  public:
    ShiftMark(TextDocument& document, std::int32_t lines, std::int32_t columns)
        : MarkAction(document), lines_(lines), columns_(columns) {}

  private:
    MarkedArea changed(const MarkedArea& area) const override;
    std::int32_t lines_;
    std::int32_t columns_;
};

// Shows the area between two points as marked.
class SetMark : public MarkAction {
  public:
    SetMark(TextDocument& document, MarkPoint start, MarkPoint end) : MarkAction(document), start_(start), end_(end) {}

  private:
    MarkedArea changed(const MarkedArea& area) const override;
    MarkPoint start_;
    MarkPoint end_;
};

// Begins a marking at a point, nothing shown yet.
class StartMark : public MarkAction {
  public:
    StartMark(TextDocument& document, MarkPoint start) : MarkAction(document), start_(start) {}

  private:
    MarkedArea changed(const MarkedArea& area) const override;
    MarkPoint start_;
};

// Takes the marking away.
class ClearMark : public MarkAction {
  public:
    using MarkAction::MarkAction;

  private:
    MarkedArea changed(const MarkedArea& area) const override;
};

class SetMarkMode : public MarkAction {
  public:
    SetMarkMode(TextDocument& document, MarkMode mode) : MarkAction(document), mode_(mode) {}

  private:
    MarkedArea changed(const MarkedArea& area) const override;
    MarkMode mode_;
};

}  // namespace vexa
