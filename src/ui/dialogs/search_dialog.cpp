#include "ui/dialogs/search_dialog.h"

#include "base/strings.h"
#include "framework/dialog_fields.h"
#include "framework/menu.h"
#include "framework/screen.h"
#include "ui/dialogs/dialog_corner.h"
#include "ui/dialogs/dialog_keys.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr CheckBox<FindDialogModel> kSwitches[] = {
    {IDC_WHOLE_WORD, &FindDialogModel::wholeWord},
    {IDC_MATCH_CASE, &FindDialogModel::matchCase},
    {IDC_REGULAR_EXPRESSION, &FindDialogModel::regularExpression},
};
constexpr RadioButton<FindDialogModel, bool> kDirections[] = {
    {IDC_SEARCH_UP, &FindDialogModel::forward, false},
    {IDC_SEARCH_DOWN, &FindDialogModel::forward, true},
};

bool IsTextField(HWND control) {
    return SendMessageA(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL;
}

// What the user has typed into a field shows no mnemonics.
bool ShowsMnemonic(HWND control) {
    const LRESULT kind = SendMessageA(control, WM_GETDLGCODE, 0, 0);
    return IsWindowVisible(control) && (kind & (DLGC_STATIC | DLGC_BUTTON)) != 0;
}

std::vector<std::string> ControlTexts(HWND dialog) {
    std::vector<std::string> texts;
    for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
        char text[100] = "";
        if (ShowsMnemonic(control) && GetWindowTextA(control, text, sizeof(text)) > 0) texts.emplace_back(text);
    }
    return texts;
}

}  // namespace

SearchDialog::SearchDialog(int dialog, Application& application, SearchHost& host)
    : EditorDialog(application.store, dialog),
      host_(host),
      findHistory_(application.directories.GetDirectory(kConfigDirectory), FindDialogModel::kFindHistoryFile) {}

// ---- fields ------------------------------------------------------------------------------------------------------

void SearchDialog::onOpen() {
    showFields();
    enableButtons();
}

void SearchDialog::showCombo(int control, const HistoryList& history, const std::string& text, std::size_t limit) {
    limitComboText(control, limit);
    fillList(control, history.entries());
    setTextOf(control, text);
    markComboText(control);
}

void SearchDialog::showFields() {
    showCombo(IDC_FIND_TEXT, findHistory_, model().findText);
    ShowFields(*this, model(), kSwitches, kDirections);
}

void SearchDialog::readFields() {
    model().findText = textOf(IDC_FIND_TEXT);
    ReadFields(*this, model(), kSwitches, kDirections);
}

void SearchDialog::enableButtons() {
    enable(IDOK, model().canSearch());
}

void SearchDialog::refreshOptions(const SearchOptions& options) {
    setChecked(IDC_MATCH_CASE, options.matchCase());
    setChecked(IDC_REGULAR_EXPRESSION, options.regularExpression());
}

void SearchDialog::takeSearch() {
    if (!window()) return;
    readFields();
    model().takeSearch();
    showFields();
    enableButtons();
}

bool SearchDialog::useKey(MSG& message, const KeyEvent& event) {
    const HWND focus = GetFocus();
    if (!window() || !IsChild(window(), focus)) return false;
    const bool inField = IsTextField(focus);
    const DialogKeyUse use = DialogKeyUseOf(event, ControlTexts(window()), inField);
    if (use == DialogKeyUse::MarkField) SendMessageA(focus, EM_SETSEL, 0, -1);
    return use == DialogKeyUse::MarkField || (use == DialogKeyUse::Own && IsDialogMessageA(window(), &message));
}

bool SearchDialog::leave() {
    if (!window()) return false;
    onCancel();
    return true;
}

void SearchDialog::keepClearOf(const RECT& match) {
    RECT dialog{};
    if (!window() || !GetWindowRect(window(), &dialog)) return;
    const auto area = [](const RECT& r) {
        return ScreenArea{static_cast<std::int32_t>(r.left), static_cast<std::int32_t>(r.top),
                          static_cast<std::int32_t>(r.right), static_cast<std::int32_t>(r.bottom)};
    };
    const auto corner = CornerClearOf(area(match), area(dialog), area(WorkAreaNear(match)));
    if (!corner) return;
    SetWindowPos(window(), nullptr, corner->left, corner->top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// ---- what the user does ------------------------------------------------------------------------------------------

void SearchDialog::onControl(int control, UINT notification) {
    static constexpr Notification<SearchDialog> kRows[] = {
        {IDC_PATTERN_PIECES, BN_CLICKED, &SearchDialog::choosePiece},
        {IDC_REGULAR_EXPRESSION, BN_CLICKED, &SearchDialog::patternChanged},
        {IDC_FIND_TEXT, CBN_EDITCHANGE, &SearchDialog::textTyped},
        {IDC_FIND_TEXT, CBN_SELCHANGE, &SearchDialog::textChosen},
    };
    Dispatch(*this, kRows, control, notification);
}

void SearchDialog::textTyped() {
    useText(textOf(IDC_FIND_TEXT));
}

// The field itself has the chosen text only after this.
void SearchDialog::textChosen() {
    useText(chosenTextOf(IDC_FIND_TEXT));
}

void SearchDialog::useText(const std::string& text) {
    model().findText = text;
    patternChanged();
    enableButtons();
}

void SearchDialog::patternChanged() {
    model().regularExpression = isChecked(IDC_REGULAR_EXPRESSION);
    model().patternChanged();
}

// The field loses its selection when the keyboard comes back to it, so the one that it has now is kept.
void SearchDialog::choosePiece() {
    const auto selection = static_cast<DWORD>(SendMessageA(control(IDC_FIND_TEXT), CB_GETEDITSEL, 0, 0));
    std::vector<MenuItem> items;
    for (const PatternPiece& piece : PatternPieces())
        items.push_back({static_cast<WORD>(items.size() + 1), std::string(LoadText(piece.label))});
    RECT button{};
    GetWindowRect(control(IDC_PATTERN_PIECES), &button);
    const WORD chosen = ChooseFromMenu(window(), {button.left, button.bottom}, items);
    if (chosen != 0) insertPiece(PatternPieces()[chosen - 1U], selection);
}

void SearchDialog::insertPiece(const PatternPiece& piece, DWORD selection) {
    const HWND field = GetWindow(control(IDC_FIND_TEXT), GW_CHILD);
    if (piece.isRegular) setChecked(IDC_REGULAR_EXPRESSION, true);
    SetFocus(field);
    SendMessageA(field, EM_SETSEL, LOWORD(selection), HIWORD(selection));
    SendMessageA(field, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(piece.text.data()));
    const auto caret = LOWORD(selection) + static_cast<std::int32_t>(piece.text.size()) - piece.caretBack;
    SendMessageA(field, EM_SETSEL, static_cast<WPARAM>(caret), caret);
}

// The lists have grown by the texts that were used.
void SearchDialog::run(const SearchHost::Search& search) {
    readFields();
    if (!model().canSearch()) return;
    host_.search(search);
    showFields();
}

void SearchDialog::onAccept() {
    run([this](const SearchTarget& active) { model().findNext(active); });
}

void SearchDialog::onCancel() {
    model().cancel();
    close(false);
}

void SearchDialog::onGone() {
    if (!host_.isShuttingDown()) saveHistories();
    host_.searchDialogGone();
}

}  // namespace vexa
