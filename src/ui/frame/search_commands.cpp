// How the frame lets the user find and replace.
#include "ui/dialogs/find_dialog.h"
#include "ui/dialogs/replace_dialog.h"
#include "ui/frame/vexa_frame.h"

namespace vexa {

template <class Dialog>
void VexaFrame::openSearchDialog() {
    if (searchDialog_) searchDialog_->close(false);
    searchDialog_ = std::make_unique<Dialog>(application_, search_, static_cast<SearchHost&>(*this));
    if (!searchDialog_->openModeless(window())) return;
    loop_.setModelessDialog(searchDialog_->window());
    if (const DocumentWindow* active = activeDocument()) showMatchBesideDialog(*active);
}

void VexaFrame::find() {
    openSearchDialog<FindDialog>();
}

void VexaFrame::replace() {
    openSearchDialog<ReplaceDialog>();
}

void VexaFrame::findNext() {
    search([this](EditView* active) { search_.findNext(active); });
}

void VexaFrame::findPrevious() {
    search([this](EditView* active) { search_.findPrevious(active); });
}

void VexaFrame::findAtCaret() {
    search([this](EditView* active) { search_.findAtCaret(active); });
}

// The keyboard stays where it is, so that a dialog that searches can search on.
void VexaFrame::search(const Search& search) {
    DocumentWindow* active = activeDocument();
    notices_.clearStatus();
    search(active ? &active->view() : nullptr);
    if (!active) return;
    active->refresh();
    showMatchBesideDialog(*active);
}

void VexaFrame::showMatchBesideDialog(const DocumentWindow& active) {
    const SearchOptions& options = application_.searchOptions;
    if (!searchDialog_ || !options.matchPending() || options.lastMatch.isNone()) return;
    const LastMatch& match = options.lastMatch;
    searchDialog_->keepClearOf(active.screenPlaceOf(match.line, match.displayStart, match.displayEnd));
}

}  // namespace vexa
