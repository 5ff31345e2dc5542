#include "ui/frame/edit_commands.h"

#include "document/view/bookmark_model.h"
#include "document/view/goto_line_model.h"
#include "ui/dialogs/number_dialog.h"
#include "ui/frame/command_rows.h"
#include "ui/lists/list_window.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr ViewCommandRow kViewRows[] = {
    {CommandId::Undo, &OnView<&EditView::undo>},
    {CommandId::Redo, &OnView<&EditView::redo>},
    {CommandId::Cut, &OnView<&EditView::cut>},
    {CommandId::Copy, &OnView<&EditView::copy>},
    {CommandId::Paste, &OnView<&EditView::paste>},
    {CommandId::Clear, &OnView<&EditView::clear>},
    {CommandId::SelectAll, &OnView<&EditView::selectAll>},
    {CommandId::ToggleCase, &OnView<&EditView::changeCase, CaseChange::Toggle>},
    {CommandId::LowerCase, &OnView<&EditView::changeCase, CaseChange::Lower>},
    {CommandId::UpperCase, &OnView<&EditView::changeCase, CaseChange::Upper>},
    {CommandId::MatchingBracket, &OnView<&EditView::toMatchingBracket>},
    {CommandId::WindowStart, &OnView<&EditView::moveBy, WindowStart>},
    {CommandId::WindowEnd, &OnView<&EditView::moveBy, WindowEnd>},
};

}  // namespace

void EditCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<EditCommands> kRows[] = {
        {CommandId::GotoLine, &EditCommands::gotoLine},
        {CommandId::GotoBookmark, &EditCommands::gotoBookmark},
        {CommandId::DocumentStart, &EditCommands::move<DocumentStart, VK_HOME>},
        {CommandId::DocumentEnd, &EditCommands::move<DocumentEnd, VK_END>},
    };
    RegisterRows(dispatcher, *this, kRows);
    RegisterRows(dispatcher, documents_, kViewRows);
}

template <auto movement, UINT keyOfList>
void EditCommands::move() {
    if (ListWindow* list = documents_.activeList()) return list->takeKey(keyOfList);
    documents_.operate(&OnView<&EditView::moveBy, movement>);
}

void EditCommands::gotoLine() {
    const GotoLineModel model(store_);
    NumberDialog dialog(store_, IDD_GOTO_LINE, model.line, [this](const std::string& number) {
        documents_.operate([this, &number](EditView& view) {
            GotoLineModel answer(store_);
            answer.line = number;
            answer.go(view, store_);
        });
        return true;
    });
    dialog.runModal(documents_.frame().window());
}

void EditCommands::gotoBookmark() {
    const BookmarkModel model(store_);
    NumberDialog dialog(store_, IDD_JUMP_TO_BOOKMARK, model.number, [this](const std::string& number) {
        bool closes = false;
        notices_.clearStatus();
        documents_.operate([&](EditView& view) {
            BookmarkModel answer(store_);
            answer.number = number;
            closes = answer.jump(view, store_, notices_);
        });
        return closes;
    });
    dialog.runModal(documents_.frame().window());
}

}  // namespace vexa
