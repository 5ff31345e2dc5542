#include "ui/frame/external_commands.h"

#include <algorithm>

#include "base/history_list.h"
#include "framework/menu.h"
#include "ui/dialogs/compiler_setup_dialog.h"
#include "ui/dialogs/run_program_dialog.h"
#include "ui/dialogs/tools_dialog.h"
#include "ui/frame/command_rows.h"
#include "ui/resources/dialog_controls.h"

namespace vexa {
namespace {

constexpr UINT_PTR kProgramTimer = 3;
constexpr UINT_PTR kCompilerTimer = 4;
constexpr WORD kToolsSeparator = 101;

constexpr WORD NumberOf(CommandId id) {
    return static_cast<WORD>(id);
}

constexpr WORD ToolNumber(std::size_t index) {
    return static_cast<WORD>(NumberOf(CommandId::Tool1) + index);
}
static_assert(ToolNumber(kMostTools - 1) == NumberOf(CommandId::Tool15));

}  // namespace

ExternalCommands::ExternalCommands(OpenDocuments& documents, Application& application, FrameNotices& notices,
                                   FrameLists& lists)
    : documents_(documents),
      application_(application),
      notices_(notices),
      steps_(lists.steps()),
      programTimer_(documents.frame(), kProgramTimer),
      compilerTimer_(documents.frame(), kCompilerTimer),
      output_(*this, notices),
      messages_(*this, notices),
      outputWindow_(TextId::OutputTitle, output_, documents.frame(), lists, application),
      messageWindow_(TextId::MessageTitle, messages_, documents.frame(), lists, application),
      tools_(application.directories),
      programs_(application.directories, output_, programTimer_, notices),
      compiler_(application.compilerSetup, application.directories, messages_, compilerTimer_, notices) {
    output_.attach(&outputWindow_);
    messages_.attach(&messageWindow_);
    steps_.add(messages_);
    tools_.LoadTools();
}

void ExternalCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<ExternalCommands> kRows[] = {
        {CommandId::Copy, &ExternalCommands::copy},
        {CommandId::ChangeTools, &ExternalCommands::changeTools},
        {CommandId::DosCommandLine, &ExternalCommands::runCommandLine},
        {CommandId::DosShell, &ExternalCommands::runShell},
        {CommandId::ShowOutput, &ExternalCommands::showOutput},
        {CommandId::ShowMessages, &ExternalCommands::showMessages},
        {CommandId::NextError, &ExternalCommands::nextError},
        {CommandId::PreviousError, &ExternalCommands::previousError},
        {CommandId::Compile, &ExternalCommands::compile},
        {CommandId::SetUpCompiler, &ExternalCommands::setUpCompiler},
    };
    RegisterRows(dispatcher, *this, kRows);
    for (std::size_t i = 0; i < kMostTools; ++i)
        dispatcher.RegisterCommand(CommandId{ToolNumber(i)}, [this, i](CommandId) { runTool(i); });
}

// ---- lists -------------------------------------------------------------------------------------------------------

// What is copied are the rows of a list where one is active.
void ExternalCommands::copy() {
    if (ListWindow* list = documents_.activeList()) return list->copy();
    documents_.operate(&OnView<&EditView::copy>);
}

bool ExternalCommands::openFileAtLine(const std::string& path, std::int32_t line) {
    return documents_.opening().OpenFileAtLine(path, line);
}

void ExternalCommands::showRows(DocumentWindow& window, const std::vector<std::string>& rows) {
    output_.belongTo(&sourceOf(window));
    for (const std::string& row : rows)
        output_.AddLine(row);
    outputWindow_.show();
}

void ExternalCommands::showMessages() {
    steps_.use(messages_);
    messageWindow_.show();
}

// A window that comes up would take the keyboard from a dialog that is open; the timer asks again.
bool ExternalCommands::useTimer(UINT_PTR timer) {
    if (timer != programTimer_.number() && timer != compilerTimer_.number()) return false;
    if (!documents_.frame().takesCommands()) return true;
    if (timer == programTimer_.number()) {
        programs_.Tick();
    } else {
        compiler_.Tick();
    }
    return true;
}

// ---- programs ----------------------------------------------------------------------------------------------------

void ExternalCommands::runCommandLine() {
    if (!programs_.MayStart()) return;
    ProgramRequest request = CommandLineRequest();
    if (askForArguments(request, IDD_DOS_COMMAND_LINE)) programs_.RunCommandLine(request);
}

bool ExternalCommands::askForArguments(ProgramRequest& request, int dialog) {
    const std::string directory = application_.directories.GetDirectory(kConfigDirectory);
    HistoryList directories(directory, RunProgramModel::kDirectoryHistoryFile);
    HistoryList argumentHistory(directory, RunProgramModel::kArgumentHistoryFile);
    RunProgramDialog question(application_.store, dialog, request, directories, argumentHistory);
    if (!question.runModal(frameWindow())) return false;
    directories.Save();
    argumentHistory.Save();
    return true;
}

void ExternalCommands::runTool(std::size_t index) {
    if (index >= tools_.tools().size()) return;
    ProgramRequest request = tools_.tools()[index];
    if (request.askForArguments && !askForArguments(request, IDD_PROGRAM_ARGUMENTS)) return;
    programs_.RunTool(request);
}

void ExternalCommands::changeTools() {
    ToolsDialog dialog(application_, notices_, tools_, [this] { showTools(); });
    dialog.runModal(frameWindow());
}

void ExternalCommands::showTools() {
    std::vector<WORD> numbers;
    for (std::size_t i = 0; i < kMostTools; ++i)
        numbers.push_back(ToolNumber(i));
    std::vector<MenuItem> items;
    for (std::size_t i = 0; i < tools_.tools().size(); ++i)
        items.push_back({ToolNumber(i), ToolMenuText(tools_.tools()[i], i)});
    const HMENU menu = SubmenuWith(GetMenu(frameWindow()), NumberOf(CommandId::DosCommandLine));
    ReplaceItemsAtEnd(menu, numbers, items, kToolsSeparator);
    DrawMenuBar(frameWindow());
}

// ---- compiler ----------------------------------------------------------------------------------------------------

SourceDocument& ExternalCommands::sourceOf(DocumentWindow& window) {
    const auto found =
        std::ranges::find_if(sources_, [&window](const auto& source) { return &source->window() == &window; });
    if (found != sources_.end()) return **found;
    return *sources_.emplace_back(std::make_unique<DocumentSource>(documents_, window));
}

void ExternalCommands::documentCloses(const DocumentWindow& window) {
    const auto found =
        std::ranges::find_if(sources_, [&window](const auto& source) { return &source->window() == &window; });
    if (found == sources_.end()) return;
    compiler_.OnDocumentClosed(**found);
    output_.OnDocumentClosed(**found);
    sources_.erase(found);
}

void ExternalCommands::compile() {
    steps_.use(messages_);
    compiler_.Compile(sourceOf(*documents_.active()));
}

void ExternalCommands::setUpCompiler() {
    CompilerSetupDialog dialog(application_.store, notices_, application_.compilerSetup);
    dialog.runModal(frameWindow());
}

}  // namespace vexa
