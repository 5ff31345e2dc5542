#include "document/view/view_keys.h"

#include <algorithm>

#include "document/view/edits.h"
#include "document/view/movements.h"

namespace vexa {

namespace {

using enum ViewKey::Kind;
using enum ViewKey::Modifier;

constexpr ViewKey kKeys[] = {
    {kKeyLeft, kPlain, kMove, CharLeft, "Move one character to the left"},
    {kKeyRight, kPlain, kMove, CharRight, "Move one character to the right"},
    {kKeyUp, kPlain, kMove, LineUp, "Move one line up"},
    {kKeyDown, kPlain, kMove, LineDown, "Move one line down"},
    {kKeyLeft, kControl, kMove, WordLeft, "Move to the word before"},
    {kKeyRight, kControl, kMove, WordRight, "Move to the next word"},
    {kKeyPageUp, kPlain, kMove, PageUp, "Turn one page up"},
    {kKeyPageDown, kPlain, kMove, PageDown, "Turn one page down"},
    {kKeyPageUp, kControl, kMove, WindowStart, "Move to the first line of the window"},
    {kKeyPageDown, kControl, kMove, WindowEnd, "Move to the last line of the window"},
    {kKeyHome, kPlain, kMove, HomeKey, "Move to the start of the line; again, of the window; again, of the document"},
    {kKeyEnd, kPlain, kMove, EndKey, "Move to the end of the line; again, of the window; again, of the document"},
    {kKeyHome, kControl, kMove, DocumentStart, "Move to the start of the document"},
    {kKeyEnd, kControl, kMove, DocumentEnd, "Move to the end of the document"},

    {kKeyEnter, kPlain, kEdit, Enter, "Begin a new line"},
    {kKeyEnter, kShift, kEdit, Enter, "Begin a new line"},
    {kKeyTab, kPlain, kEdit, Tab, "Insert a tab or blanks; with marked lines, indent them"},
    {kKeyTab, kShift, kEdit, BackTab, "Move back one tab stop; with marked lines, outdent them"},
    {kKeyBackspace, kPlain, kEdit, Backspace, "Delete the character before the caret or the marked area"},
    {kKeyBackspace, kShift, kEdit, Backspace, "Delete the character before the caret or the marked area"},
    {kKeyBackspace, kControl, kEdit, DeleteWord, "Delete the word before the caret"},
    {kKeyDelete, kPlain, kEdit, DeleteKey, "Delete the character at the caret or the marked area"},
    {'D', kAlt, kEdit, DeleteLine, "Delete the line"},
    {'K', kAlt, kEdit, DeleteToEnd, "Delete to the end of the line"},
    {'K', kControl, kEdit, DeleteToStart, "Delete to the start of the line"},
    {'A', kAlt, kEdit, MarkStream, "Start or stop marking characters"},
    {'L', kAlt, kEdit, MarkLines, "Start or stop marking lines"},
    {'C', kAlt, kEdit, MarkColumn, "Start or stop marking a column"},
    {kKeyAdd, kPlain, kEdit, Copy, "Copy the line or the marked area to the clipboard"},
    {kKeySubtract, kPlain, kEdit, Cut, "Cut the line or the marked area to the clipboard"},
    {kKeyInsert, kPlain, kEdit, Paste, "Paste what is on the clipboard"},
    {kKeyEscape, kPlain, kEdit, Unmark, "Take the marking away"},
    {'I', kAlt, kEdit, ToggleInsert, "Switch between inserting and overwriting"},
    {'0', kAlt, kEdit, DropBookmark<0>, "Drop bookmark 0"},
    {'1', kAlt, kEdit, DropBookmark<1>, "Drop bookmark 1"},
    {'2', kAlt, kEdit, DropBookmark<2>, "Drop bookmark 2"},
    {'3', kAlt, kEdit, DropBookmark<3>, "Drop bookmark 3"},
    {'4', kAlt, kEdit, DropBookmark<4>, "Drop bookmark 4"},
    {'5', kAlt, kEdit, DropBookmark<5>, "Drop bookmark 5"},
    {'6', kAlt, kEdit, DropBookmark<6>, "Drop bookmark 6"},
    {'7', kAlt, kEdit, DropBookmark<7>, "Drop bookmark 7"},
    {'8', kAlt, kEdit, DropBookmark<8>, "Drop bookmark 8"},
    {'9', kAlt, kEdit, DropBookmark<9>, "Drop bookmark 9"},
};

struct KeyName {
    std::uint16_t key;
    std::string_view name;
};

constexpr KeyName kKeyNames[] = {
    {kKeyBackspace, "Backspace"}, {kKeyTab, "Tab"},       {kKeyEnter, "Enter"},       {kKeyEscape, "Esc"},
    {kKeyPageUp, "PgUp"},         {kKeyPageDown, "PgDn"}, {kKeyEnd, "End"},           {kKeyHome, "Home"},
    {kKeyLeft, "Left"},           {kKeyUp, "Up"},         {kKeyRight, "Right"},       {kKeyDown, "Down"},
    {kKeyInsert, "Ins"},          {kKeyDelete, "Del"},    {kKeyAdd, "Plus (keypad)"}, {kKeySubtract, "Minus (keypad)"},
};

std::string NameOf(const ViewKey& row) {
    std::string text;
    if (row.modifiers & kShift) text += "Shift+";
    if (row.modifiers & kControl) text += "Ctrl+";
    if (row.modifiers & kAlt) text += "Alt+";
    const auto* named = std::ranges::find(kKeyNames, row.key, &KeyName::key);
    if (named == std::end(kKeyNames)) return text + static_cast<char>(row.key);
    return text.append(named->name);
}

}  // namespace

const ViewKey* FindViewKey(const KeyEvent& event) {
    const unsigned chord = (event.control ? kControl : 0u) | (event.alt ? kAlt : 0u);
    for (const ViewKey& row : kKeys) {
        const unsigned shift = event.shift && row.kind != kMove ? kShift : 0u;
        if (row.key == event.key && row.modifiers == (chord | shift)) return &row;
    }
    return nullptr;
}

std::vector<ViewKeyHelp> ViewKeyList() {
    std::vector<ViewKeyHelp> list;
    for (const ViewKey& row : kKeys)
        list.push_back({NameOf(row), row.description, row.kind == kMove});
    return list;
}

}  // namespace vexa
