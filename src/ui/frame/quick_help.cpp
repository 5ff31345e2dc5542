#include "ui/frame/quick_help.h"

#include "document/view/marked_text.h"
#include "search/caret_text.h"
#include "ui/dialogs/help_configuration_dialog.h"
#include "ui/dialogs/quick_help_dialog.h"
#include "ui/frame/command_rows.h"

namespace vexa {

QuickHelp::QuickHelp(const OpenDocuments& documents, Application& application, Notices& notices, TopicPrinter& printer)
    : documents_(documents),
      application_(application),
      notices_(notices),
      indexDirectory_(application.directories.GetDirectory(kHelpDirectory)),
      lookup_(indexDirectory_, notices),
      commands_(lookup_, notices, *this),
      desk_(application.store, indexDirectory_, notices, printer) {}

void QuickHelp::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<QuickHelp> kRows[] = {
        {CommandId::QuickHelp, &QuickHelp::helpOnWord},
        {CommandId::QuickSearch, &QuickHelp::search},
        {CommandId::ConfigureHelp, &QuickHelp::configure},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void QuickHelp::helpOnWord() {
    commands_.quickHelp(wordAtCaret());
}

void QuickHelp::search() {
    commands_.quickSearch();
}

void QuickHelp::configure() {
    HelpConfigurationDialog dialog(application_.store, indexDirectory_, notices_);
    dialog.runModal(frame());
}

std::optional<std::string> QuickHelp::wordAtCaret() const {
    const DocumentWindow* active = documents_.active();
    if (!active) return std::nullopt;
    const TextDocument& document = active->document();
    const std::optional<CharSpan> span = SpanAtCaret(document);
    return std::string(span ? TextOf(document, document.currentLine(), *span) : std::string_view());
}

bool QuickHelp::runDialog(QuickHelpDialog kind) {
    const std::string configuration = application_.directories.GetDirectory(kConfigDirectory);
    QuickHelpDialogWindow dialog(application_.store, configuration, lookup_, notices_, kind);
    return dialog.runModal(frame());
}

// A failure has been told by the desk with its reason.
bool QuickHelp::showHelp(const std::string& helpFile, const std::string& keyword) {
    desk_.showKeyword(frame(), helpFile, keyword);
    return true;
}

// The viewer that has come up keeps the keyboard.
void QuickHelp::focusEditWindow() {
    const DocumentWindow* active = documents_.active();
    if (active && GetActiveWindow() == frame()) SetFocus(active->window());
}

}  // namespace vexa
