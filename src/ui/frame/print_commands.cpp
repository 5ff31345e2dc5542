#include "ui/frame/print_commands.h"

#include "ui/frame/command_rows.h"
#include "ui/print/document_pages.h"

namespace vexa {

void PrintCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<PrintCommands> kRows[] = {
        {CommandId::PrintSetup, &PrintCommands::setUp},
        {CommandId::Print, &PrintCommands::printActive},
    };
    RegisterRows(dispatcher, *this, kRows);
}

void PrintCommands::setUp() {
    desk_.setUp(documents_.frame().window());
}

void PrintCommands::printActive() {
    const TextDocument& document = documents_.active()->document();
    DocumentPages pages(document);
    tell(desk_.print(documents_.frame().window(), document.marked().active, pages), pages.name());
}

void PrintCommands::tell(PrintResult result, const std::string& name) {
    const std::string text = TextOf(result, name);
    if (text.empty()) return;
    const bool isDone = result == PrintResult::Done;
    if (result <= PrintResult::Cancelled) return notices_.status(text, !isDone, !isDone);
    notices_.box(text, TextId::ErrorCaption, BoxButtons::Ok);
}

}  // namespace vexa
