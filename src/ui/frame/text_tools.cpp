#include "ui/frame/text_tools.h"

#include "base/strings.h"
#include "search/function_list.h"
#include "search/function_list_model.h"
#include "shell/open_include.h"
#include "ui/dialogs/electric_dialog.h"
#include "ui/dialogs/functions_dialog.h"
#include "ui/frame/command_rows.h"

namespace vexa {

void TextTools::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<TextTools> kRows[] = {
        {CommandId::ChangeElectric, &TextTools::changeElectric},
        {CommandId::OpenInclude, &TextTools::openInclude},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void TextTools::registerKeys(KeyActions& keys) {
    static constexpr KeyRow<TextTools> kRows[] = {
        {FrameAction::OpenInclude, &TextTools::openInclude},
        {FrameAction::ListFunctions, &TextTools::listFunctions},
    };
    RegisterRows(keys, *this, kRows);
}

void TextTools::changeElectric() {
    ElectricDialog(application_.store, application_.electric).runModal(documents_.frame().window());
}

void TextTools::openInclude() {
    notices_.clearStatus();
    OpenInclude(documents_.active()->document(), documents_.opening(), notices_);
}

void TextTools::listFunctions() {
    DocumentWindow& active = *documents_.active();
    notices_.clearStatus();
    FunctionListModel model(FunctionsOf(active.document()), active.document().currentLine());
    if (!model.chosenRow()) return notices_.status(LoadText(TextId::NoFunctions), true, true);
    if (!FunctionsDialog(application_.store, model).runModal(documents_.frame().window())) return;
    active.view().goTo(*model.chosenLine(), CharColumn(0));
    active.view().centreCursorLine();
    active.refresh();
}

}  // namespace vexa
