// The steps that change the characters of the current line at the cursor.
#pragma once

#include "document/text/edit_action.h"

namespace vexa {

// The base of all steps that change text: each doing counts as one change of the document, each taking back as one
// less.
class TextAction : public EditAction {
  public:
    using EditAction::EditAction;
    bool perform() final;
    void undo() final;

  protected:
    virtual bool change() = 0;
    virtual void takeBack() = 0;
};

// Replaces the character at the cursor. Nothing changes where there is none.
class OverwriteChar : public TextAction {
  public:
    OverwriteChar(TextDocument& document, char c) : TextAction(document), new_(c) {}

  private:
    bool change() override;
    void takeBack() override;
    char new_;
    char old_ = 0;
    bool changed_ = false;
};

// Puts a character before the one at the cursor, or at the end of a text that ends before the cursor.
class InsertChar : public TextAction {
  public:
    InsertChar(TextDocument& document, char c) : TextAction(document), new_(c) {}

  private:
    bool change() override;
    void takeBack() override;
    char new_;
};

// Takes the character at the cursor out. Nothing changes where there is none.
class DeleteChar : public TextAction {
  public:
    using TextAction::TextAction;

  private:
    bool change() override;
    void takeBack() override;
    char old_ = 0;
    bool changed_ = false;
};

}  // namespace vexa
