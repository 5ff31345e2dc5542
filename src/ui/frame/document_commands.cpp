#include "ui/frame/document_commands.h"

#include "ui/dialogs/file_selection.h"
#include "ui/frame/command_rows.h"
#include "ui/frame/file_request.h"

namespace vexa {

void DocumentCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<DocumentCommands> kRows[] = {
        {CommandId::FileNew, &DocumentCommands::newDocument}, {CommandId::FileOpen, &DocumentCommands::open},
        {CommandId::FileClose, &DocumentCommands::close},     {CommandId::FileSave, &DocumentCommands::save},
        {CommandId::FileSaveAs, &DocumentCommands::saveAs},   {CommandId::FileSaveAll, &DocumentCommands::saveAll},
        {CommandId::CloseAll, &DocumentCommands::closeAll},   {CommandId::Exit, &DocumentCommands::exit},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void DocumentCommands::open() {
    const HWND owner = documents_.frame().window();
    const std::optional<std::string> answer = AskOpenFiles(FileRequest(owner, TextId::OpenTitle, options_));
    if (!answer) return;
    const std::vector<std::string> paths = SplitSelection(*answer);
    const DrawingPause pause = documents_.pauseFor(paths.size());
    for (const std::string& path : paths)
        documents_.opening().OpenFileAtLine(path, 0);
}

void DocumentCommands::close() {
    documents_.frame().closeChild(*documents_.frame().activeChild());
}

void DocumentCommands::save() {
    DocumentWindow& active = *documents_.active();
    documents_.files().save(active.document());
    active.refresh();
}

void DocumentCommands::saveAs() {
    DocumentWindow& active = *documents_.active();
    documents_.files().saveAs(active.document());
    active.refresh();
}

// Only what has changed is written: an untouched new document needs no name yet.
void DocumentCommands::saveAll() {
    documents_.each([this](DocumentWindow& window) {
        if (window.document().isModified()) documents_.files().save(window.document());
        window.refresh();
    });
}

void DocumentCommands::exit() {
    PostMessageA(documents_.frame().window(), WM_CLOSE, 0, 0);
}

}  // namespace vexa
