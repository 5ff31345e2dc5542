// Which key does what in the edit view.
#include "document/view/view_keys.h"

#include <algorithm>
#include <string_view>

#include "document/view/edit_view.h"

namespace vexa {

// A movement is free to come with Shift, which marks; every other row wants Shift as it stands.
struct ViewKeys {
    enum Kind { kMove, kEdit };
    enum Modifier : unsigned { kPlain = 0, kShift = 1, kControl = 2, kAlt = 4 };
    struct Row {
        std::uint16_t key;
        unsigned modifiers;
        Kind kind;
        EditView::Movement action;
        std::string_view description;
    };

    static const Row* find(const KeyEvent& event);
    static const Row kRows[];
};

const ViewKeys::Row ViewKeys::kRows[] = {
    {kKeyLeft, kPlain, kMove, &EditView::charLeft, "Move one character to the left"},
    {kKeyRight, kPlain, kMove, &EditView::charRight, "Move one character to the right"},
    {kKeyUp, kPlain, kMove, &EditView::lineUp, "Move one line up"},
    {kKeyDown, kPlain, kMove, &EditView::lineDown, "Move one line down"},
    {kKeyLeft, kControl, kMove, &EditView::wordLeft, "Move to the word before"},
    {kKeyRight, kControl, kMove, &EditView::wordRight, "Move to the next word"},
    {kKeyPageUp, kPlain, kMove, &EditView::pageUp, "Turn one page up"},
    {kKeyPageDown, kPlain, kMove, &EditView::pageDown, "Turn one page down"},
    {kKeyPageUp, kControl, kMove, &EditView::windowStart, "Move to the first line of the window"},
    {kKeyPageDown, kControl, kMove, &EditView::windowEnd, "Move to the last line of the window"},
    {kKeyHome, kPlain, kMove, &EditView::home,
     "Move to the start of the line; again, of the window; again, of the document"},
    {kKeyEnd, kPlain, kMove, &EditView::end,
     "Move to the end of the line; again, of the window; again, of the document"},
    {kKeyHome, kControl, kMove, &EditView::documentStart, "Move to the start of the document"},
    {kKeyEnd, kControl, kMove, &EditView::documentEnd, "Move to the end of the document"},

    {kKeyEnter, kPlain, kEdit, &EditView::enter, "Begin a new line"},
    {kKeyEnter, kShift, kEdit, &EditView::enter, "Begin a new line"},
    {kKeyTab, kPlain, kEdit, &EditView::tab, "Insert a tab or blanks; with marked lines, indent them"},
    {kKeyTab, kShift, kEdit, &EditView::backTab, "Move back one tab stop; with marked lines, outdent them"},
    {kKeyBackspace, kPlain, kEdit, &EditView::backspace, "Delete the character before the caret or the marked area"},
    {kKeyBackspace, kShift, kEdit, &EditView::backspace, "Delete the character before the caret or the marked area"},
    {kKeyBackspace, kControl, kEdit, &EditView::deleteWord, "Delete the word before the caret"},
    {kKeyDelete, kPlain, kEdit, &EditView::deleteKey, "Delete the character at the caret or the marked area"},
    {'D', kAlt, kEdit, &EditView::deleteLine, "Delete the line"},
    {'K', kAlt, kEdit, &EditView::deleteToEnd, "Delete to the end of the line"},
    {'K', kControl, kEdit, &EditView::deleteToStart, "Delete to the start of the line"},
    {'A', kAlt, kEdit, &EditView::markStream, "Start or stop marking characters"},
    {'L', kAlt, kEdit, &EditView::markLines, "Start or stop marking lines"},
    {'C', kAlt, kEdit, &EditView::markColumn, "Start or stop marking a column"},
    {kKeyAdd, kPlain, kEdit, &EditView::copyBlock, "Copy the line or the marked area to the clipboard"},
    {kKeySubtract, kPlain, kEdit, &EditView::cutBlock, "Cut the line or the marked area to the clipboard"},
    {kKeyInsert, kPlain, kEdit, &EditView::pasteBlock, "Paste what is on the clipboard"},
    {kKeyEscape, kPlain, kEdit, &EditView::clearMark, "Take the marking away"},
    {'I', kAlt, kEdit, &EditView::toggleInsert, "Switch between inserting and overwriting"},
    {'0', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 0"},
    {'1', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 1"},
    {'2', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 2"},
    {'3', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 3"},
    {'4', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 4"},
    {'5', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 5"},
    {'6', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 6"},
    {'7', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 7"},
    {'8', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 8"},
    {'9', kAlt, kEdit, &EditView::dropBookmarkOfKey, "Drop bookmark 9"},
};

const ViewKeys::Row* ViewKeys::find(const KeyEvent& event) {
    const unsigned chord = (event.control ? kControl : 0u) | (event.alt ? kAlt : 0u);
    for (const Row& row : kRows) {
        const unsigned shift = event.shift && row.kind != kMove ? kShift : 0u;
        if (row.key == event.key && row.modifiers == (chord | shift)) return &row;
    }
    return nullptr;
}

namespace {

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

std::string NameOf(const ViewKeys::Row& row) {
    std::string text;
    if (row.modifiers & ViewKeys::kShift) text += "Shift+";
    if (row.modifiers & ViewKeys::kControl) text += "Ctrl+";
    if (row.modifiers & ViewKeys::kAlt) text += "Alt+";
    const auto* named = std::ranges::find(kKeyNames, row.key, &KeyName::key);
    if (named == std::end(kKeyNames)) return text + static_cast<char>(row.key);
    return text.append(named->name);
}

}  // namespace

std::vector<ViewKeyHelp> ViewKeyList() {
    std::vector<ViewKeyHelp> list;
    for (const ViewKeys::Row& row : ViewKeys::kRows)
        list.push_back({NameOf(row), row.description, row.kind == ViewKeys::kMove});
    return list;
}

bool EditView::typedCharacter(const KeyEvent& event) {
    for (std::uint16_t n = 0; n < event.repeat; ++n)
        typeCharacter(static_cast<char>(event.character));
    lastKey_ = event;
    finish();
    return true;
}

bool EditView::key(const KeyEvent& event) {
    if (event.key == kKeyNone) return typedCharacter(event);
    const ViewKeys::Row* row = ViewKeys::find(event);
    if (row == nullptr) return false;
    for (std::uint16_t n = 0; n < event.repeat; ++n) {
        pressesInARow_ = event == lastKey_ ? pressesInARow_ + 1 : 1;
        lastKey_ = event;
        if (row->kind == ViewKeys::kMove) {
            move(row->action, event.shift);
        } else {
            (this->*row->action)();
        }
    }
    finish();
    return true;
}

}  // namespace vexa
