// The steps that insert, delete, split and join lines. A line that is out of the document belongs to the step that
// holds it.
#pragma once

#include "document/text/text_actions.h"
#include "document/text/text_line.h"

namespace vexa {

// Inserts a line before the current one.
class InsertLine : public TextAction {
  public:
    InsertLine(TextDocument& document, LinePtr line) : TextAction(document), line_(std::move(line)) {}

  protected:
    bool change() override;
    void takeBack() override;

  private:
    LinePtr line_;
};

class InsertEmptyLine : public InsertLine {
  public:
    explicit InsertEmptyLine(TextDocument& document) : InsertLine(document, nullptr) {}
};

// Takes a line out. Taking back puts it before the current line.
class DeleteLine : public TextAction {
  public:
    static constexpr LineIndex kCurrent{-1};

    explicit DeleteLine(TextDocument& document, LineIndex index = kCurrent) : TextAction(document), index_(index) {}

  private:
    bool change() override;
    void takeBack() override;
    LineIndex index_;
    LinePtr line_;
};

// Moves the text from the cursor on to a new line below, with the end of the line; the line gets that of new lines.
class SplitLine : public TextAction {
  public:
    using TextAction::TextAction;

  private:
    bool change() override;
    void takeBack() override;
};

// Appends the next line to the current one, which gets that one's end. On the last line nothing is joined, but an end
// that is kept goes; it counts as a change in any case.
class JoinLines : public TextAction {
  public:
    using TextAction::TextAction;

  private:
    bool change() override;
    void takeBack() override;
    CharColumn joint_;
    LinePtr next_;
    LineEnd end_ = LineEnd::None;
    bool changed_ = false;
};

}  // namespace vexa
