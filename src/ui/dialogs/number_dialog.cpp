#include "ui/dialogs/number_dialog.h"

#include "ui/resources/dialog_controls.h"

namespace vexa {

void NumberDialog::onOpen() {
    constexpr std::size_t kDigits = 9;
    limitTextOf(IDC_NUMBER, kDigits);
    setTextOf(IDC_NUMBER, number_);
}

void NumberDialog::onAccept() {
    if (use_(textOf(IDC_NUMBER))) {
        close(true);
    } else {
        focusOn(IDC_NUMBER);
    }
}

}  // namespace vexa
