// Tools, compilations and programs that really run, with their windows' and dialogs' rules, in the cases of the folder
// scripts/.
#include <deque>

#include "base/directories.h"
#include "external/captured_lines.h"
#include "external/compile_job.h"
#include "external/compiler.h"
#include "external/compiler_setup_model.h"
#include "external/external_session.h"
#include "external/program_kind.h"
#include "external/tools_model.h"
#include "support/script.h"
#include "support/test_interpreter.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "external_scripts.inc"
};

struct ExternalStage : ScriptStage {
    ExternalStage() {
        PutInterpreter(disk);
        tools.LoadTools();
    }

    FakeDocument& document() { return documents.back(); }

    Directories directories{disk.programPath()};
    RecordingOpener opener;
    RecordingTimer timer;
    RecordingView view;
    OutputList output{opener, notices};
    MessageList messages{opener, notices};
    LineList* list = &output;
    std::deque<FakeDocument> documents;
    CapturedPrograms programs{directories, output, timer, notices};
    CompilerSetup setup;
    std::optional<CompilerSetupModel> setupModel;
    Compiler compiler{setup, directories, messages, timer, notices};
    ToolList tools{directories};
    ToolsModel toolsModel{tools, notices, ";" + disk.path("none") + ";\"" + disk.path("Bin") + "\""};
};

std::size_t Index(Words& words) {
    return static_cast<std::size_t>(words.number());
}

// ---- lists ---------------------------------------------------------------------------------------------------------

Told Lines(ExternalStage& stage, Words words) {
    stage.disk.put("lines.txt", words.rest());
    std::vector<std::string> lines;
    const bool isRead = ReadCapturedLines(stage.disk.path("lines.txt"), [&lines](std::string_view line) {
        lines.emplace_back(line);
        return true;
    });
    EXPECT_TRUE(isRead);
    return lines;
}

// A compilation of main.cpp has written main.err and more.err.
Told LoadMessages(ExternalStage& stage, Words) {
    if (stage.documents.empty()) stage.documents.emplace_back(stage.disk.path("Main.cpp"));
    stage.list = &stage.messages;
    stage.messages.attach(&stage.view);
    stage.messages.Reset(&stage.document());
    return stage.messages.Load(stage.disk.path("main.err"), stage.disk.path("more.err"), stage.disk.path()), Told();
}

Told LoadWithoutDocument(ExternalStage& stage, Words) {
    stage.messages.Reset(nullptr);
    return stage.messages.Load(stage.disk.path("main.err"), {}, stage.disk.path()), Told();
}

Told LoadOutput(ExternalStage& stage, Words words) {
    const std::string name = words.word();
    return stage.output.LoadCapture(stage.disk.path(name), {}, words.more() ? stage.disk.path(words.rest()) : "");
}

Told Row(ExternalStage& stage, Words words) {
    return stage.list->rowText(Index(words));
}

Told KindOfRow(ExternalStage& stage, Words words) {
    static const std::map<RowKind, const char*> kKinds = {
        {RowKind::Plain, "plain"}, {RowKind::Warning, "warning"}, {RowKind::Error, "error"}};
    const auto kind = kKinds.find(stage.list->rowKind(Index(words)));
    return kind == kKinds.end() ? "other" : kind->second;
}

Told Activate(ExternalStage& stage, Words words) {
    stage.list->selectRow(Index(words));
    return stage.list->activateRow(), Told();
}

Told Opened(ExternalStage& stage, Words) {
    std::vector<std::string> opened;
    for (const OpenedFile& file : stage.opener.opened)
        opened.push_back(file.path + " " + std::to_string(file.line));
    return opened;
}

// ---- programs ------------------------------------------------------------------------------------------------------

Told RunCommand(ExternalStage& stage, const std::string& directory, const std::string& command) {
    ProgramRequest request = CommandLineRequest();
    request.setArguments(command);
    if (!directory.empty()) request.setDirectory(directory);
    return stage.programs.RunCommandLine(request), Told();
}

Told RunIn(ExternalStage& stage, Words words) {
    const std::string directory = words.word();
    return RunCommand(stage, directory, words.rest());
}

Told RunTool(ExternalStage& stage, Words words) {
    ProgramRequest tool = CommandLineRequest();
    tool.setArguments(words.rest());
    tool.capture = false;
    return stage.programs.RunTool(tool), Told();
}

Told Finish(ExternalStage& stage, Words) {
    return WaitFor([&stage] {
        stage.programs.Tick();
        stage.compiler.Tick();
        return stage.timer.interval == 0;
    });
}

// Of the output, without the lines with which the window begins.
Told Printed(ExternalStage& stage, Words) {
    std::vector<std::string> rows;
    for (std::size_t row = 5; row < stage.output.rowCount(); ++row) {
        rows.emplace_back(stage.output.rowText(row));
        rows.back().erase(rows.back().find_last_not_of(' ') + 1);
    }
    return rows;
}

Told Appears(ExternalStage& stage, Words words) {
    const std::string name = words.rest();
    return WaitFor([&] { return stage.disk.has(name); });
}

// ---- compilations --------------------------------------------------------------------------------------------------

Told Sample(ExternalStage&, Words words) {
    const std::optional<SampleCommand> parsed = ParseSampleCommand(words.rest());
    return parsed ? parsed->format + "|" + parsed->fileName : "none";
}

Told Use(ExternalStage& stage, Words words) {
    return stage.setup.setCommand({words.rest(), "SAMPLE.C"}), Told();
}

Told UseRunFile(ExternalStage& stage, Words words) {
    stage.setup.usesBatchFile = false;
    return stage.setup.setRunFile(words.rest()), Told();
}

// What is run, the file for errors, and the batch file with its text.
Told Job(ExternalStage& stage, Words words) {
    const CompileJob job(words.rest(), stage.setup);
    return std::vector<std::string>{job.shownCommand, job.errorPath(), job.batchPath, job.batchText};
}

Told Clash(ExternalStage& stage, Words words) {
    const CompileJob job(words.rest(), stage.setup);
    return job.errorFileIsDocument() || job.batchFileIsDocument();
}

Told MakeDocument(ExternalStage& stage, Words words) {
    return stage.documents.emplace_back(stage.disk.path(words.rest())), Told();
}

Told Compile(ExternalStage& stage, Words) {
    stage.list = &stage.messages;
    return stage.compiler.Compile(stage.document()), Told();
}

Told CompileInEndingEditor(ExternalStage& stage, Words) {
    Compiler ended(stage.setup, stage.directories, stage.messages, stage.timer, stage.notices);
    ended.Compile(stage.document());
    return ended.IsActive();
}

CompilerSetupModel& SetupModel(ExternalStage& stage) {
    return stage.setupModel ? *stage.setupModel : stage.setupModel.emplace(stage.setup);
}

Told UpdateSetup(ExternalStage& stage, Words) {
    static const char* const kOutcomes[] = {"close", "stay at command", "stay at run file"};
    return kOutcomes[static_cast<std::size_t>(SetupModel(stage).update(stage.notices))];
}

Told SaveSetup(ExternalStage& stage, Words) {
    ConfigStore store(stage.disk.path("VEXA.INI"));
    stage.setup.Save(store);
    return stage.disk.get("VEXA.INI");
}

Told LoadSetup(ExternalStage& stage, Words) {
    const ConfigStore store(stage.disk.path("VEXA.INI"));
    stage.setup = CompilerSetup();
    return stage.setup.Load(store), Told();
}

// ---- tools ---------------------------------------------------------------------------------------------------------

const std::map<std::string, std::string ToolsModel::*> kToolFields = {
    {"program", &ToolsModel::program}, {"name", &ToolsModel::menuText}, {"directory", &ToolsModel::directory}};
constexpr const char* kKinds[] = {"dos", "windows", "interpreter"};

Told ToolOutcome(ToolsModel::Outcome outcome) {
    static const char* const kOutcomes[] = {"changed", "stay at program", "stay at directory", "nothing"};
    return kOutcomes[static_cast<std::size_t>(outcome)];
}

// The name, and the program unless it is "prog".
Told AddTool(ExternalStage& stage, Words words) {
    stage.toolsModel.kind = ProgramKind::Dos;
    stage.toolsModel.menuText = words.word();
    stage.toolsModel.program = words.more() ? words.rest() : "prog";
    return ToolOutcome(stage.toolsModel.add());
}

Told AddCommandLine(ExternalStage& stage, Words words) {
    stage.toolsModel.kind = ProgramKind::Interpreter;
    stage.toolsModel.menuText = words.word();
    stage.toolsModel.program = words.rest();
    return ToolOutcome(stage.toolsModel.add());
}

// Its kind, program and directory, whose letters the dialog has made capital ones.
Told ShowTool(ExternalStage& stage, Words words) {
    const ProgramRequest& tool = stage.tools.tools().at(Index(words));
    const std::string disk = stage.disk.path();
    const auto onDisk = [&](const std::string& path) {
        return path.size() > disk.size() ? path.substr(disk.size()) : path;
    };
    return std::string(kKinds[static_cast<std::size_t>(tool.kind)]) + " " + onDisk(tool.program()) + " " +
           onDisk(tool.directory());
}

Told KeptTools(ExternalStage& stage, Words) {
    ToolList again(stage.directories);
    again.LoadTools();
    return again.tools() == stage.tools.tools();
}

// A program file whose header says so much of relocations, or one of these bytes.
Told PutProgram(ExternalStage& stage, Words words) {
    const std::string name = words.word();
    std::string header(64, '\0');
    header.replace(0, 2, "MZ");
    header[24] = static_cast<char>(words.number());
    return stage.disk.put(name, header), Told();
}

Told KindOfFile(ExternalStage& stage, Words words) {
    return kKinds[static_cast<std::size_t>(KindOfProgram(stage.disk.path(words.rest())))];
}

const Verbs<ExternalStage> kVerbs = {
    {"lines", &Lines},
    {"load-messages", &LoadMessages},
    {"load-without-document", &LoadWithoutDocument},
    {"load-output", &LoadOutput},
    {"rows", [](ExternalStage& s, Words) { return Told(s.list->rowCount()); }},
    {"row", &Row},
    {"last-row", [](ExternalStage& s, Words) { return Told(s.list->rowText(s.list->rowCount() - 1)); }},
    {"kind-of-row", &KindOfRow},
    {"shows", [](ExternalStage& s, Words) { return Told(s.view.shows); }},
    {"window-active", [](ExternalStage& s, Words) { return s.view.active = true, Told(); }},
    {"next-error", [](ExternalStage& s, Words) { return s.messages.NextError(), Told(); }},
    {"previous-error", [](ExternalStage& s, Words) { return s.messages.PreviousError(), Told(); }},
    {"any-errors", [](ExternalStage& s, Words) { return Told(s.messages.ErrorsSeen() || s.messages.WarningsSeen()); }},
    {"select", [](ExternalStage& s, Words w) { return s.list->selectRow(Index(w)), Told(); }},
    {"selected", [](ExternalStage& s, Words) { return Told(s.list->selectedRow()); }},
    {"activate", &Activate},
    {"belong", [](ExternalStage& s, Words) { return s.output.belongTo(&s.document()), Told(); }},
    {"add-line", [](ExternalStage& s, Words w) { return s.output.AddLine(w.rest()), Told(); }},
    {"opened", &Opened},
    {"document", &MakeDocument},
    {"unnamed-document", [](ExternalStage& s, Words) { return s.documents.emplace_back(""), Told(); }},
    {"caret", [](ExternalStage& s, Words) { return Told(s.document().caretLine + 1); }},
    {"activations", [](ExternalStage& s, Words) { return Told(s.document().activations); }},
    {"saves", [](ExternalStage& s, Words) { return Told(s.document().saves); }},
    {"modify", [](ExternalStage& s, Words w) { return s.document().modified = w.yes(), Told(); }},
    {"cannot-save", [](ExternalStage& s, Words) { return s.document().canSave = false, Told(); }},
    {"close-list-document", [](ExternalStage& s, Words) { return s.messages.OnDocumentClosed(s.document()), Told(); }},
    {"close-list", [](ExternalStage& s, Words) { return s.messages.closed(), Told(); }},
    // programs
    {"run", [](ExternalStage& s, Words w) { return RunCommand(s, {}, w.rest()); }},
    {"run-in", &RunIn},
    {"run-tool", &RunTool},
    {"finish", &Finish},
    {"timer", [](ExternalStage& s, Words) { return Told(s.timer.interval); }},
    {"printed", &Printed},
    {"appears", &Appears},
    {"remember-here", [](ExternalStage& s, Words) { return s.remembered = platform::CurrentDirectory(), Told(); }},
    {"same-here", [](ExternalStage& s, Words) { return Told(s.remembered == platform::CurrentDirectory()); }},
    {"environment", [](ExternalStage&, Words w) { return Told(platform::EnvironmentValue(w.rest().c_str())); }},
    // compilations
    {"sample", &Sample},
    {"use", &Use},
    {"use-run-file", &UseRunFile},
    {"job", &Job},
    {"clash", &Clash},
    {"compile", &Compile},
    {"compile-in-ending-editor", &CompileInEndingEditor},
    {"compiling", [](ExternalStage& s, Words) { return Told(s.compiler.IsActive()); }},
    {"close-document", [](ExternalStage& s, Words) { return s.compiler.OnDocumentClosed(s.document()), Told(); }},
    {"debug", [](ExternalStage& s, Words) { return s.setup.debug = true, Told(); }},
    {"setup-command", [](ExternalStage& s, Words) { return Told(s.setup.command()); }},
    {"setup-run-file", [](ExternalStage& s, Words) { return Told(s.setup.runFile()); }},
    {"expanded", [](ExternalStage& s, Words) { return Told(s.setup.expandedCommand()); }},
    {"setup-display", [](ExternalStage& s, Words) { return Told(static_cast<int>(s.setup.display)); }},
    {"setup-batch", [](ExternalStage& s, Words) { return Told(s.setup.usesBatchFile); }},
    {"save-setup", &SaveSetup},
    {"load-setup", &LoadSetup},
    {"dialog-command", [](ExternalStage& s, Words) { return Told(SetupModel(s).command); }},
    {"fill-command", [](ExternalStage& s, Words w) { return SetupModel(s).command = w.rest(), Told(); }},
    {"dialog-run-file", [](ExternalStage& s, Words) { return Told(SetupModel(s).runFile); }},
    {"fill-run-file", [](ExternalStage& s, Words w) { return SetupModel(s).runFile = w.rest(), Told(); }},
    {"dialog-debug", [](ExternalStage& s, Words) { return SetupModel(s).debug = true, Told(); }},
    {"dialog-batch", [](ExternalStage& s, Words w) { return SetupModel(s).setUsesBatchFile(w.yes()), Told(); }},
    {"command-enabled", [](ExternalStage& s, Words) { return Told(SetupModel(s).commandEnabled()); }},
    {"run-file-enabled", [](ExternalStage& s, Words) { return Told(SetupModel(s).runFileEnabled()); }},
    {"test-command", [](ExternalStage& s, Words) { return SetupModel(s).test(s.notices), Told(); }},
    {"update-setup", &UpdateSetup},
    // tools
    {"tool-set", [](ExternalStage& s, Words w) { return SetField(s.toolsModel, kToolFields, w); }},
    {"tool-capture", [](ExternalStage& s, Words) { return s.toolsModel.capture = true, Told(); }},
    {"tool-add", &AddTool},
    {"tool-add-command", &AddCommandLine},
    {"tool-select", [](ExternalStage& s, Words w) { return s.toolsModel.select(Index(w)), Told(); }},
    {"tool-update", [](ExternalStage& s, Words) { return ToolOutcome(s.toolsModel.update()); }},
    {"tool-remove", [](ExternalStage& s, Words) { return ToolOutcome(s.toolsModel.remove()); }},
    {"tool-names", [](ExternalStage& s, Words) { return Told(s.toolsModel.menuTexts()); }},
    {"tool-count", [](ExternalStage& s, Words) { return Told(s.tools.tools().size()); }},
    {"tool-captures", [](ExternalStage& s, Words w) { return Told(s.tools.tools().at(Index(w)).capture); }},
    {"tool-can",
     [](ExternalStage& s, Words) {
         const ToolsModel& model = s.toolsModel;
         return Told(Told(model.canAdd()).text + " " + Told(model.canUpdate()).text + " " +
                     Told(model.canDelete()).text);
     }},
    {"tool", &ShowTool},
    {"tools-kept", &KeptTools},
    {"put-program", &PutProgram},
    {"kind-of-file", &KindOfFile},
};

TEST(Lists, TakeAMillionLinesAndTheirClosingWords) {
    ExternalStage stage;
    stage.disk.put("big.txt", std::string(ListLines::kMostLines + 5, '\n'));
    EXPECT_TRUE(stage.output.LoadCapture(stage.disk.path("big.txt"), {}, {}));
    EXPECT_EQ(stage.output.rowCount(), ListLines::kMostLines + 2);
    EXPECT_EQ(stage.output.rowText(stage.output.rowCount() - 1), "Command has completed.");
    EXPECT_EQ(stage.notices.statuses.size(), 1u);
    EXPECT_EQ(stage.notices.lastStatus(), "Maximum listbox count reached.");
    EXPECT_FALSE(ReadCapturedLines(stage.disk.path(), [](std::string_view) { return true; })) << "a directory";
}

TEST(ToolsDialog, RefusesTheSixteenthTool) {
    ExternalStage stage;
    stage.disk.put("here.bat", "");
    for (std::size_t i = 0; i <= kMostTools; ++i) {
        const bool isRoom = i < kMostTools;
        stage.toolsModel.program = stage.disk.path("here.bat");
        stage.toolsModel.menuText = "t" + std::to_string(i);
        EXPECT_EQ(stage.toolsModel.add(), isRoom ? ToolsModel::Outcome::Changed : ToolsModel::Outcome::Nothing);
    }
    EXPECT_EQ(stage.notices.boxes.back().text, "Maximum tool count has been reached.");
    EXPECT_EQ(stage.tools.tools().size(), kMostTools);
}

VEXA_SCRIPTS(External, kFiles, ExternalStage, kVerbs);

}  // namespace
}  // namespace vexa::test
