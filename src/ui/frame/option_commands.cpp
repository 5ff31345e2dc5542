// How the frame lets the user choose colours and edit the profiles of extensions.
#include "ui/dialogs/colour_setup_dialog.h"
#include "ui/dialogs/file_extensions_dialog.h"
#include "ui/frame/for_each_document.h"
#include "ui/frame/vexa_frame.h"

namespace vexa {

// While the dialog is open the documents show what is being chosen; the colours in effect stay as they were.
void VexaFrame::changeColours() {
    ColourTable& inEffect = application_.coloursInEffect;
    ColourSetupDialog dialog(application_.store, inEffect, application_.font,
                             [this](const ColourTable& colours) { showColours(colours); });
    if (dialog.runModal(window())) {
        dialog.model().update(inEffect);
        inEffect.save(application_.store);
    }
    showColours(inEffect);
}

void VexaFrame::showColours(const ColourTable& colours) {
    if (colours == application_.colours) return;
    application_.colours = colours;
    refreshColours();
}

void VexaFrame::changeExtensions() {
    FileExtensionsDialog dialog(application_, notices_, [this] { takeProfilesAnew(); });
    dialog.runModal(window());
}

void VexaFrame::takeProfilesAnew() {
    application_.profiles.forgetLoaded();
    forEachDocument([this](DocumentWindow& window) {
        files_.takeProfile(window.document());
        window.refresh();
    });
}

}  // namespace vexa
