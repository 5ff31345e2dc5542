#include "ui/frame/search_commands.h"

#include "base/platform.h"
#include "document/view/marked_text.h"
#include "search/caret_text.h"
#include "ui/dialogs/find_dialog.h"
#include "ui/dialogs/find_in_files_dialog.h"
#include "ui/dialogs/replace_dialog.h"
#include "ui/frame/command_rows.h"
#include "ui/lists/list_window.h"

namespace vexa {

void SearchCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<SearchCommands> kRows[] = {
        {CommandId::Find, &SearchCommands::openFind},
        {CommandId::Replace, &SearchCommands::openReplace},
        {CommandId::FindNext, &SearchCommands::findNext},
        {CommandId::FindPrevious, &SearchCommands::findPrevious},
        {CommandId::FindInFiles, &SearchCommands::openFindInFiles},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void SearchCommands::registerKeys(KeyActions& keys) {
    static constexpr KeyRow<SearchCommands> kRows[] = {
        {FrameAction::ToggleMatchCase, &SearchCommands::toggleMatchCase},
        {FrameAction::ToggleRegularExpression, &SearchCommands::toggleRegularExpression},
        {FrameAction::FindAtCaret, &SearchCommands::findAtCaret},
    };
    RegisterRows(keys, *this, kRows);
}

bool SearchCommands::useKey(MSG& message, const KeyEvent& event) {
    return dialog_ && dialog_->useKey(message, event);
}

template <class Dialog, class... More>
void SearchCommands::openDialog(More&... more) {
    if (dialog_) dialog_->close(false);
    dialog_ = std::make_unique<Dialog>(application_, commands_, static_cast<SearchHost&>(*this), more...);
    if (!dialog_->openModeless(documents_.frame().window())) return;
    loop_.setModelessDialog(dialog_->window());
    if (const DocumentWindow* active = documents_.active()) showMatchBesideDialog(*active);
}

void SearchCommands::openFind() {
    openDialog<FindDialog>();
}

void SearchCommands::openReplace() {
    openDialog<ReplaceDialog>();
}

// What the caret is at is the first proposal.
void SearchCommands::openFindInFiles() {
    FileSearchFields& fields = files_.fields();
    std::string text;
    if (const DocumentWindow* active = documents_.active()) {
        const TextDocument& document = active->document();
        if (const auto span = SpanAtCaret(document))
            text =
                FindTextFor(TextOf(document, document.currentLine(), *span), commands_.options().regularExpression());
        if (fields.folder.empty() && document.isNamed())
            fields.folder = document.fullPath().substr(0, document.fullPath().rfind('\\'));
    }
    if (fields.folder.empty()) fields.folder = platform::CurrentDirectory();
    openDialog<FindInFilesDialog>(files_.searcher(), fields, text);
}

void SearchCommands::findNext() {
    search([this](const SearchTarget& active) { commands_.findNext(active); });
}

void SearchCommands::findPrevious() {
    search([this](const SearchTarget& active) { commands_.findPrevious(active); });
}

void SearchCommands::findAtCaret() {
    search([this](const SearchTarget& active) {
        if (commands_.findAtCaret(active) && dialog_) dialog_->takeSearch();
    });
}

void SearchCommands::toggleMatchCase() {
    commands_.toggleMatchCase();
    if (dialog_) dialog_->refreshOptions(application_.searchOptions);
}

void SearchCommands::toggleRegularExpression() {
    commands_.toggleRegularExpression();
    if (dialog_) dialog_->refreshOptions(application_.searchOptions);
}

// The keyboard stays where it is, so that a search dialog can search on.
void SearchCommands::search(const Search& search) {
    DocumentWindow* active = documents_.active();
    const ListWindow* list = documents_.activeList();
    notices_.clearStatus();
    search({active ? &active->view() : nullptr, list ? &list->rows() : nullptr});
    if (list && dialog_) dialog_->keepClearOf(list->screenAreaOfSelection());
    if (!active) return;
    active->refresh();
    showMatchBesideDialog(*active);
}

void SearchCommands::showMatchBesideDialog(const DocumentWindow& active) {
    const SearchOptions& options = application_.searchOptions;
    if (!dialog_ || !options.matchPending() || options.lastMatch.isNone()) return;
    const LastMatch& match = options.lastMatch;
    dialog_->keepClearOf(active.screenAreaOf(match.line, match.displayStart, match.displayEnd));
}

}  // namespace vexa
