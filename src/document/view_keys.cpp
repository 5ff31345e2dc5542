// Which key does what in the edit view.
#include "document/edit_view.h"

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
    };

    static const Row* find(const KeyEvent& event);
    static const Row kRows[];
};

const ViewKeys::Row ViewKeys::kRows[] = {
    {kKeyLeft, kPlain, kMove, &EditView::charLeft},
    {kKeyRight, kPlain, kMove, &EditView::charRight},
    {kKeyUp, kPlain, kMove, &EditView::lineUp},
    {kKeyDown, kPlain, kMove, &EditView::lineDown},
    {kKeyLeft, kControl, kMove, &EditView::wordLeft},
    {kKeyRight, kControl, kMove, &EditView::wordRight},
    {kKeyPageUp, kPlain, kMove, &EditView::pageUp},
    {kKeyPageDown, kPlain, kMove, &EditView::pageDown},
    {kKeyPageUp, kControl, kMove, &EditView::windowStart},
    {kKeyPageDown, kControl, kMove, &EditView::windowEnd},
    {kKeyHome, kPlain, kMove, &EditView::home},
    {kKeyEnd, kPlain, kMove, &EditView::end},
    {kKeyHome, kControl, kMove, &EditView::documentStart},
    {kKeyEnd, kControl, kMove, &EditView::documentEnd},

    {kKeyEnter, kPlain, kEdit, &EditView::enter},
    {kKeyEnter, kShift, kEdit, &EditView::enter},
    {kKeyTab, kPlain, kEdit, &EditView::tab},
    {kKeyTab, kShift, kEdit, &EditView::backTab},
    {kKeyBackspace, kPlain, kEdit, &EditView::backspace},
    {kKeyBackspace, kShift, kEdit, &EditView::backspace},
    {kKeyBackspace, kControl, kEdit, &EditView::deleteWord},
    {kKeyDelete, kPlain, kEdit, &EditView::deleteKey},
    {'D', kAlt, kEdit, &EditView::deleteLine},
    {'K', kAlt, kEdit, &EditView::deleteToEnd},
    {'K', kControl, kEdit, &EditView::deleteToStart},
    {'A', kAlt, kEdit, &EditView::markStream},
    {'L', kAlt, kEdit, &EditView::markLines},
    {'C', kAlt, kEdit, &EditView::markColumn},
    {kKeyEscape, kPlain, kEdit, &EditView::clearMark},
    {'I', kAlt, kEdit, &EditView::toggleInsert},
};

const ViewKeys::Row* ViewKeys::find(const KeyEvent& event) {
    const unsigned chord = (event.control ? kControl : 0u) | (event.alt ? kAlt : 0u);
    for (const Row& row : kRows) {
        const unsigned shift = event.shift && row.kind != kMove ? kShift : 0u;
        if (row.key == event.key && row.modifiers == (chord | shift)) return &row;
    }
    return nullptr;
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
