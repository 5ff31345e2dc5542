#include "document/view/edits.h"

#include <algorithm>
#include <string>

#include "base/strings.h"
#include "document/view/clipboard_block.h"
#include "document/view/electric_expansion.h"
#include "document/view/word_motion.h"

namespace vexa {

namespace {

bool ExpandWord(Editing& editing) {
    return editing.electric && editing.options.InsertMode &&
           ExpandElectricWord(editing.document, editing.editor, editing.electric->list());
}

ClipboardBlock BlockOf(Editing& editing) {
    return {editing.document, editing.editor, editing.marker, *editing.clipboard};
}

}  // namespace

// ---- typing ------------------------------------------------------------------------------------------------------

void TypeCharacter(Editing& editing, char c) {
    editing.marker.deleteMarked();
    if (c == ' ' && ExpandWord(editing)) return;
    const EditorOptions& options = editing.options;
    if (options.LineWrap && editing.document.displayColumn().value >= options.WrapColumn) editing.editor.wordWrap();
    editing.editor.type(c, 1);
}

void Enter(Editing& editing) {
    if (editing.options.InsertMode || editing.options.habits.keepMarking) editing.marker.deleteMarked();
    editing.editor.newLine(false);
}

void Tab(Editing& editing) {
    if (editing.marker.shiftLines(true)) return;
    if (editing.options.UseTabs) return TypeCharacter(editing, '\t');
    editing.marker.deleteMarked();
    const std::int32_t size = editing.document.tabSize();
    editing.editor.type(' ', size - editing.document.displayColumn().value % size);
}

// Without marked lines the cursor goes back to the tab stop before it.
void BackTab(Editing& editing) {
    if (editing.marker.shiftLines(false)) return;
    const std::int32_t size = editing.document.tabSize();
    const std::int32_t column = editing.document.displayColumn().value;
    editing.editor.moveToDisplayColumn(DisplayColumn(std::max(column - 1, 0) / size * size));
}

void ToggleInsert(Editing& editing) {
    editing.options.InsertMode = !editing.options.InsertMode;
}

// ---- deleting ----------------------------------------------------------------------------------------------------

void Backspace(Editing& editing) {
    if (!editing.marker.deleteMarked()) editing.editor.backspace(1);
}

void DeleteKey(Editing& editing) {
    if (!editing.marker.deleteMarked()) editing.editor.deleteChars(1);
}

void DeleteWord(Editing& editing) {
    const TextDocument& document = editing.document;
    const CharColumn before = document.column();
    const auto start = PreviousWordStart(document.text(document.currentLine()), before);
    editing.editor.moveToColumn(start.value_or(CharColumn(0)));
    editing.editor.deleteInLine(before - document.column());
}

void DeleteLine(Editing& editing) {
    editing.editor.deleteLine();
}

void DeleteToEnd(Editing& editing) {
    editing.editor.deleteToEnd();
}

void DeleteToStart(Editing& editing) {
    editing.editor.deleteToStart();
}

// ---- marking -----------------------------------------------------------------------------------------------------

void MarkStream(Editing& editing) {
    editing.marker.toggle(MarkMode::Stream);
}

void MarkLines(Editing& editing) {
    editing.marker.toggle(MarkMode::Lines);
}

void MarkColumn(Editing& editing) {
    editing.marker.toggle(MarkMode::Column);
}

void MarkAll(Editing& editing) {
    editing.marker.markAll();
}

void Unmark(Editing& editing) {
    editing.marker.clear();
}

void DropBookmark(Editing& editing, std::int32_t n) {
    if (editing.document.dropBookmark(n) == BookmarkResult::Done) {
        editing.notices.status(FillText(TextId::BookmarkDropped, {std::to_string(n)}), true, false);
    } else {
        editing.notices.status(LoadText(TextId::BadBookmark), true, true);
    }
}

// ---- clipboard ---------------------------------------------------------------------------------------------------

void Cut(Editing& editing) {
    if (editing.clipboard) BlockOf(editing).cut();
}

void Copy(Editing& editing) {
    if (editing.clipboard) BlockOf(editing).copy();
}

void Paste(Editing& editing) {
    if (editing.clipboard) BlockOf(editing).paste();
}

}  // namespace vexa
