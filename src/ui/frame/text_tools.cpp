// How the frame lets the user expand words, list functions and open the files that a text names.
#include "base/strings.h"
#include "search/function_list.h"
#include "search/function_list_model.h"
#include "shell/open_include.h"
#include "ui/dialogs/electric_dialog.h"
#include "ui/dialogs/functions_dialog.h"
#include "ui/frame/vexa_frame.h"

namespace vexa {

void VexaFrame::changeElectric() {
    ElectricDialog(application_.store, application_.electric).runModal(window());
}

void VexaFrame::openInclude() {
    notices_.clearStatus();
    OpenInclude(activeDocument()->document(), opening_, notices_);
}

void VexaFrame::listFunctions() {
    DocumentWindow& active = *activeDocument();
    notices_.clearStatus();
    FunctionListModel model(FunctionsOf(active.document()), active.document().currentLine());
    if (!model.chosenRow()) return notices_.status(LoadText(TextId::NoFunctions), true, true);
    if (!FunctionsDialog(application_.store, model).runModal(window())) return;
    active.view().goTo(*model.chosenLine(), CharColumn(0));
    active.view().centreCursorLine();
    active.refresh();
}

}  // namespace vexa
