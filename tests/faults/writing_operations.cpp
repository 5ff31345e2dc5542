#include "faults/writing_operations.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/dialog_position.h"
#include "base/history_list.h"
#include "document/print/print_options.h"
#include "document/view/edit_view.h"
#include "external/compiler.h"
#include "external/external_session.h"
#include "external/tool_list.h"
#include "faults/start_operations.h"
#include "language/colour_table.h"
#include "language/electric_model.h"
#include "language/extension_edit_model.h"
#include "language/file_extensions_model.h"
#include "language/profile_file.h"
#include "quickhelp/help_configuration_model.h"
#include "quickhelp/help_file_writer.h"
#include "search/files/file_search_model.h"
#include "search/search_options.h"
#include "shell/auto_backup.h"
#include "shell/file_saving.h"
#include "shell/frame_placement.h"
#include "shell/hand_off.h"
#include "shell/session_documents.h"
#include "shell/startup_files.h"

namespace vexa::test {

namespace {

using Saved = std::optional<bool>;

// ---- documents ----------------------------------------------------------------------------------------------------

void Type(FaultScene& scene, TextDocument& document) {
    EditView(document, scene.options, scene.notices).key(KeyEvent{.character = 'x'});
}

// What is not on the disk is modified and can be undone.
void SaveDocument(FaultScene& scene, TextDocument& document) {
    FileSaving saving(scene.notices);
    scene.attempt([&] { return saving.write(document); },
                  [&](Saved saved) {
                      EXPECT_EQ(document.isModified(), saved == false);
                      EXPECT_EQ(document.history().isEmpty(), saved == true);
                      scene.answerAll(BoxAnswer::Yes);
                  });
}

template <BoxAnswer answer>
void SaveOver(FaultScene& scene) {
    scene.answerAll(answer);
    TextDocument document(scene.options, scene.notices);
    document.setName(scene.disk.path("A.TXT"));
    if (!document.load()) return;
    Type(scene, document);
    SaveDocument(scene, document);
}

void SaveNew(FaultScene& scene) {
    TextDocument document(scene.options, scene.notices);
    document.newEmpty();
    document.setName(scene.disk.path("A.TXT"));
    Type(scene, document);
    SaveDocument(scene, document);
}

class Backups : private BackupFrame {
  public:
    explicit Backups(FaultScene& scene) : scene_(scene) {
        document_.newEmpty();
        type();
    }
    bool backUp(const std::string& name) {
        document_.setName(scene_.disk.path(name));
        return backup_.BackupDocument(document_);
    }
    void type() { Type(scene_, document_); }

  private:
    bool isBusy() const override { return false; }
    std::vector<TextDocument*> openDocuments() const override { return {}; }

    FaultScene& scene_;
    TextDocument document_{scene_.options, scene_.notices};
    AutoBackup backup_{*this, scene_.options, scene_.disk.path("vbackup"), scene_.notices,
                       [] { return std::int64_t{1}; }};
};

void BackUp(FaultScene& scene) {
    Backups backups(scene);
    scene.attempt([&] { return backups.backUp("A.TXT"); });
}

// A file of the same name in another directory has the backup's name before, and must not lose it.
void BackUpBesideAnother(FaultScene& scene) {
    Backups backups(scene);
    scene.withoutFaults([&] { backups.backUp("Work\\A.TXT"); });
    backups.type();
    const auto lookForOther = [&](Saved) {
        const Files files = scene.files();
        EXPECT_TRUE(std::ranges::any_of(files, [](const auto& file) { return file.second == "x\r\n"; }));
    };
    const auto save = [&]() -> Saved {
        backups.backUp("A.TXT");
        return std::nullopt;
    };
    scene.attempt(save, lookForOther);
}

void KeepUnsaved(FaultScene& scene) {
    TextDocument document(scene.options, scene.notices);
    document.newEmpty();
    Type(scene, document);
    scene.attempt([&] { return WriteRecoveryFile(scene, document, "A.TXT"); });
}

// ---- files of the program's own formats -----------------------------------------------------------------------------

void SaveElectricWords(FaultScene& scene) {
    ElectricWords words(scene.disk.path("vConfig"));
    ElectricModel model(words);
    model.keyword = "new";
    model.expansion = "word";
    scene.attempt([&]() -> Saved {
        const auto refusal = model.update();
        if (refusal) scene.notices.box(*refusal, TextId::ErrorCaption, BoxButtons::Ok);
        return !refusal;
    });
}

ProgramRequest NamedTool(std::string_view name) {
    ProgramRequest tool("C:\\P.EXE");
    tool.setMenuText(name);
    return tool;
}

void SaveTools(FaultScene& scene) {
    const Directories directories(scene.disk.programPath());
    ToolList list(directories);
    list.LoadTools();
    Tools tools = list.tools();
    tools.push_back(NamedTool("new"));
    scene.attempt([&] { return list.replace(tools); },
                  [&](Saved saved) { EXPECT_EQ(list.find("new").has_value(), saved == true); });
}

ExtensionProfile OldProfile() {
    ExtensionProfile profile;
    profile.setExtension("C");
    profile.setLineComment(";");
    return profile;
}

void SaveProfile(FaultScene& scene) {
    const ProfileList profiles(scene.disk.path("vConfig"));
    ExtensionEditModel model(profiles, "C");
    model.description = "new";
    scene.attempt([&] { return model.update(scene.notices); });
}

void DeleteProfile(FaultScene& scene) {
    const ProfileList profiles(scene.disk.path("vConfig"));
    FileExtensionsModel model(profiles);
    scene.answerAll(BoxAnswer::Yes);
    scene.attempt([&] { return model.deleteProfile(0, scene.notices); });
}

void SaveHistory(FaultScene& scene) {
    HistoryList history(scene.disk.path("vConfig"), "FIND.HIS");
    history.Add("new");
    scene.attempt([&]() -> Saved {
        history.Save();
        return std::nullopt;
    });
}

// ---- files for other programs ---------------------------------------------------------------------------------------

void HandOver(FaultScene& scene) {
    scene.attempt([&] { return HandOffToRunningInstance("a.c", -1, scene.notices); });
}

void HandOverPosition(FaultScene& scene) {
    scene.attempt([&] { return HandOffFile({"C:\\A.C", 7, 3, 1}, scene.notices); });
}

// There is no interpreter, so nothing runs.
void WriteBatchFile(FaultScene& scene) {
    const Directories directories(scene.disk.programPath());
    CompilerSetup setup;
    setup.debug = true;
    RecordingOpener opener;
    RecordingTimer timer;
    MessageList messages(opener, scene.notices);
    Compiler compiler(setup, directories, messages, timer, scene.notices);
    FakeDocument document(scene.disk.path("Work\\A.C"));
    scene.attempt([&] {
        compiler.Compile(document);
        const std::string told = scene.notices.lastStatus();
        return !told.starts_with("Can't ");
    });
}

// ---- indexes of help files ------------------------------------------------------------------------------------------

std::string HelpFile() {
    HelpFileWriter writer;
    writer.addSystem(21, {{kTitleRecord, TextZ("Title")}});
    writer.addKeywords(Keywords({"strcpy"}));
    return writer.bytes();
}

void InstallHelp(FaultScene& scene) {
    HelpConfigurationModel model(scene.disk.path("vHelp"), scene.notices);
    model.chooseRow(0);
    scene.attempt([&] { return model.add(); });
}

void RemoveHelp(FaultScene& scene) {
    HelpConfigurationModel model(scene.disk.path("vHelp"), scene.notices);
    scene.attempt([&] {
        model.chooseInstalled(0);
        model.remove();
        return model.installed().empty();
    });
}

// ---- settings -------------------------------------------------------------------------------------------------------

template <void (*write)(ConfigStore& store)>
void SaveSettings(FaultScene& scene) {
    ConfigStore store(scene.disk.path("VEXA.INI"));
    scene.attempt([&]() -> Saved {
        write(store);
        return std::nullopt;
    });
}

// All that is written when the program ends.
void WriteAllSettings(ConfigStore& store) {
    const ConfigStore::Batch batch(store);
    SaveFramePlacement(store, {{1, 2, 3, 4}, FrameState::Maximised});
    EditorOptions().Save(store);
    SearchOptions().Save(store);
    ColourTable().save(store);
    PrintOptions().Save(store);
    CompilerSetup().Save(store);
}

void WriteStartupFile(ConfigStore& store) {
    StartupFiles(store).RecordStartupFile("C:\\A.TXT", 7);
}

void WriteColours(ConfigStore& store) {
    ColourTable().save(store);
}

void WriteFileSearch(ConfigStore& store) {
    FileSearchFields{.folder = "C:\\A", .subfolders = false}.Save(store);
}

void WriteDialogPosition(ConfigStore& store) {
    SaveDialogPosition(store, 1500, {0, 0}, {30, 40});
}

void WriteSession(FaultScene& scene) {
    const SessionDocument document{"C:\\A.TXT", {LineIndex(7), CharColumn(0)}, {}, true};
    SessionFile file(scene.disk.path("vConfig\\VexaSes.txt"));
    scene.attempt([&]() -> Saved {
        file.keep({&document, 1});
        return std::nullopt;
    });
}

// ---- the table ------------------------------------------------------------------------------------------------------

constexpr AfterFailure kOldOrNew = AfterFailure::OldOrNew;

}  // namespace

const std::vector<WritingOperation>& WritingOperations() {
    const Files document{{"A.TXT", "old text\r\nof three\r\nlines\r\n"}};
    const Files copy{{"A.TXT", "text"}, {"A.TXT.vx0", "other"}};
    const Files backup{{"vbackup/A.TXT", "older"}};
    const Files words{{"vConfig/vexa.elc", "1\r\nold       \t3 \tword\r\n"}};
    const Files tools{{"vConfig/VexaTool.INF", EncodeTools({NamedTool("old")})}};
    const Files profile{{"vConfig/VexaC.PRF", EncodeProfile(OldProfile())}};
    const Files history{{"vConfig/FIND.HIS", std::string("\1\1\3old\0", 7)}};
    const Files batch{{"Work/VexaCC.BAT", "old"}, {"Work/a.err", "old"}};
    const Files help{{"A.HLP", HelpFile()}};
    const Files index{{"A.HLP", HelpFile()}, {"vHelp/A.ZIX", "old"}};
    const Files unsaved{
        {"vbackup/unsaved-1.run", ""}, {"vbackup/unsaved-1-1.vxr", "one"}, {"vbackup/unsaved-1-2.vxr", "two"}};
    const Files session{{"vConfig/VexaSes.txt", kSessionLine}};
    const Files settings{{"VEXA.INI",
                          "; mine\r\n[History]\r\nStartupFile:0=C:\\A.TXT 7\r\nMenuFile:0=C:\\A.TXT\r\n"
                          "[Editor Options]\r\nTabSize=3\r\n\r\n[Other]\r\nkept=1\r\n"}};
    static const std::vector<WritingOperation> kOperations = {
        {"document over its file", document, "A.TXT", AfterFailure::TornWithCopy, SaveOver<BoxAnswer::No>},
        {"document without a copy", document, "A.TXT", AfterFailure::TornAsTold, SaveOver<BoxAnswer::Yes>},
        {"new document", {}, "A.TXT", kOldOrNew, SaveNew},
        {"first backup", {}, "", kOldOrNew, BackUp},
        {"later backup", backup, "", kOldOrNew, BackUp},
        {"backup of a second file of a name", {}, "", AfterFailure::OldOrNone, BackUpBesideAnother},
        {"recovery file", backup, "", kOldOrNew, KeepUnsaved},
        {"first recovery file", {}, "", kOldOrNew, KeepFirstUnsaved},
        {"recovery files of another run", unsaved, "", kOldOrNew, TakeUnsavedOfOthers},
        {"offer of recovery files", document, "", kOldOrNew, OfferUnsaved},
        {"left safety copy", copy, "", kOldOrNew, RenameLeftCopy},
        {"electric words", words, "vexa.elc", kOldOrNew, SaveElectricWords},
        {"tools", tools, "", kOldOrNew, SaveTools},
        {"profile", profile, "VexaC.PRF", kOldOrNew, SaveProfile},
        {"deletion of a profile", profile, "VexaC.PRF", kOldOrNew, DeleteProfile},
        {"history", history, "", kOldOrNew, SaveHistory},
        {"session", session, "", kOldOrNew, WriteSession},
        {"session that comes back", session, "", kOldOrNew, TakeSession},
        {"session called off", session, "", kOldOrNew, CallOffSession},
        {"hand-off", {}, "Unexpected Vexa error", kOldOrNew, HandOver},
        {"hand-off at a position", {}, "Unexpected Vexa error", kOldOrNew, HandOverPosition},
        {"hand-off that is taken", {{"VEXACMD.DAT", "A.TXT\r\n7\r\n"}}, "", kOldOrNew, TakeHandOff},
        {"batch file", batch, "Can't ", AfterFailure::OldOrNone, WriteBatchFile},
        {"index of help", help, "Error processing 'A.HLP'", kOldOrNew, InstallHelp},
        {"index of help again", index, "Error processing 'A.HLP'", AfterFailure::OldOrNone, InstallHelp},
        {"removal of help", index, "a.zix", kOldOrNew, RemoveHelp},
        {"settings at the end", settings, "", kOldOrNew, SaveSettings<WriteAllSettings>},
        {"startup file", settings, "", kOldOrNew, SaveSettings<WriteStartupFile>},
        {"startup files called off", settings, "", kOldOrNew, CallOffStartupFiles},
        {"recent files", settings, "", kOldOrNew, GoOnWithRecentFiles},
        {"colours", settings, "", kOldOrNew, SaveSettings<WriteColours>},
        {"search in files", settings, "", kOldOrNew, SaveSettings<WriteFileSearch>},
        {"position of a dialog", settings, "", kOldOrNew, SaveSettings<WriteDialogPosition>},
    };
    return kOperations;
}

}  // namespace vexa::test
