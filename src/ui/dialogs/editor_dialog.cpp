#include "ui/dialogs/editor_dialog.h"

#include "base/dialog_position.h"
#include "base/strings.h"
#include "framework/message_box.h"
#include "ui/help/help.h"

namespace vexa {

void EditorDialog::onHelp() {
    ShowHelp(window(), HELP_CONTEXT, kHelpOnDialogs + static_cast<DWORD>(dialog_));
}

void EditorDialog::tell(const std::string& text) const {
    ShowBox(window(), text, std::string(LoadText(TextId::ErrorCaption)), MB_OK);
}

std::optional<POINT> EditorDialog::openingCorner(POINT owner) {
    const auto corner = RestoreDialogPosition(store_, dialog_, {owner.x, owner.y});
    if (!corner) return std::nullopt;
    return POINT{corner->x, corner->y};
}

void EditorDialog::keepCorner(POINT owner, POINT corner) {
    SaveDialogPosition(store_, dialog_, {owner.x, owner.y}, {corner.x, corner.y});
}

}  // namespace vexa
