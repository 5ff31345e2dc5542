#include "ui/dialogs/editor_dialog.h"

#include "base/dialog_position.h"
#include "base/notices.h"
#include "ui/help/help.h"

namespace vexa {

void EditorDialog::onHelp() {
    ShowHelp(window(), HELP_CONTEXT, kHelpOnDialogs + static_cast<DWORD>(dialog_));
}

void EditorDialog::tell(const std::string& text) const {
    MessageBeep(MB_ICONEXCLAMATION);
    MessageBoxA(window(), text.c_str(), LoadText(TextId::ErrorCaption).data(), MB_OK | MB_ICONEXCLAMATION);
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
