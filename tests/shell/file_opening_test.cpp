// The ways by which files reach the editor, in the cases of the folder opening/.
#include "shell/file_opening.h"

#include "base/ascii.h"
#include "base/directories.h"
#include "document/text/text_document.h"
#include "language/name_at_caret.h"
#include "shell/open_include.h"
#include "shell/outside_opens.h"
#include "support/script.h"
#ifdef _WIN32
#include <windows.h>
#else
#include "base/platform/host/sandbox.h"
#endif

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "opening_scripts.inc"
};
constexpr CaseFile kTables[] = {
#include "shell_cases.inc"
};

CharColumn TakeCaret(std::string& line) {
    const std::size_t caret = line.find('|');
    line.erase(caret, 1);
    return CharColumn(static_cast<std::int32_t>(caret));
}

TEST(NameAtCaret, IsWhatTheLineNames) {
    for (const Cells& row : RowsOf(kTables, "names_at_caret")) {
        std::string line = row.at(0);
        const CharColumn caret = TakeCaret(line);
        std::string shown;
        for (const NamedPlace& place : NamesAtCaret(line, caret))
            shown += (shown.empty() ? "" : ";") + place.name + (place.line ? " " + std::to_string(place.line) : "");
        EXPECT_EQ(shown, row.at(1)) << row.at(0);
    }
    EXPECT_TRUE(NamesAtCaret("a.c", CharColumn(4)).empty()) << "in the space behind the text";
}

// What comes from another instance lies beside the program, which on Windows is the test program itself.
std::string MessageFile() {
    return DirectoryOf(platform::ProgramPath()) + "VEXACMD.DAT";
}

// Notes what it is asked to do, a word and the line each, counted from 1.
struct OpeningStage : ScriptStage, OutsideFrame {
    OpeningStage() { platform::RemoveFile(MessageFile()); }
    ~OpeningStage() override {
        platform::RemoveFile(MessageFile());
        platform::DeleteGlobalMarker(kActiveMarker);
    }

    bool activateShowing(const std::string& path, TextPosition at) override {
        if (path != shown) return false;
        log.push_back("activate " + std::to_string(at.line.value + 1));
        return true;
    }
    bool openWindow(const std::optional<std::string>& path, TextPosition at) override {
        log.push_back("open " + path.value_or("new") + " " + std::to_string(at.line.value + 1) +
                      (at.column.value > 0 ? ":" + std::to_string(at.column.value + 1) : ""));
        return path != refused;
    }
    void bringToFront() override { log.push_back("front"); }
    void restoreIfMinimised() override { log.push_back("restore"); }
    bool isFree() const override { return free; }
    void openWaitingSoon() override { log.push_back("soon"); }
    const TextDocument* documentOf(const std::string&) const override { return document; }

    EditorOptions options;
    FileOpening opening{*this, options, notices};
    OutsideOpens outside{opening, *this, notices};
    OutsideOpens another{opening, *this, notices};
    std::optional<EnvironmentSetting> include;
    std::uint32_t before = platform::Ticks();
    const TextDocument* document = nullptr;  // that is shown for what is waited for
    std::string documentName;                // beside which includes are looked for
    bool free = true;
    std::string shown;
    std::string refused;
    std::vector<std::string> log;
};

std::vector<std::string> All(Words words) {
    std::vector<std::string> all;
    while (words.more())
        all.push_back(words.word());
    return all;
}

Told OpenFiles(OpeningStage& stage, Words words) {
    std::vector<FileAtLine> files;
    while (words.more()) {
        const std::string name = words.word();
        files.push_back({name, words.number()});
    }
    return stage.opening.OpenCommandLineFiles(files);
}

Told PutHandOff(OpeningStage&, Words words) {
    return WriteWholeFile(MessageFile(), words.rest());
}

Told TakeHandOff(OpeningStage&, Words) {
    const std::optional<FileAtLine> taken = HandOffInbox().take();
    if (!taken) return "none";
    std::string shown = taken->file;
    for (const std::int32_t number : {taken->line, taken->column, taken->wait})
        shown += " " + std::to_string(number);
    return shown;
}

Told HandOff(OpeningStage& stage, Words words) {
    return HandedOff(ParseCommandLine("vexa " + words.rest()), stage.notices);
}

// What lies there for the running editor, all in capital letters.
Told HandedOver(OpeningStage& stage, Words) {
    if (!platform::PathExists(MessageFile())) return "none";
    const std::string text = File(MessageFile(), platform::OpenMode::Read).readUpTo(4096).value_or("");
    std::string disk = stage.disk.path();
    std::ranges::transform(disk, disk.begin(), UpperAscii);
    return text.starts_with(disk) ? "DISK" + text.substr(disk.size()) : text;
}

Told Should(OpeningStage&, Words words) {
    const CommandLine line = ParseCommandLine("vexa " + words.rest());
    const HandOffDecision decision = ShouldHandOff(line.text, line.arguments);
    return Told(decision.handOff).text + " " + std::to_string(decision.line);
}

// "|" is the caret.
Told Include(OpeningStage& stage, Words words) {
    TextDocument document(stage.options, stage.notices);
    document.newEmpty();
    document.setName(stage.documentName);
    std::string line = words.rest();
    const CharColumn caret = TakeCaret(line);
    document.lines().put(TextDocument::makeLine(line), 0);
    document.setCurrentLine(LineIndex(0));
    document.current().setColumn(caret);
    stage.log.clear();
    return OpenInclude(document, stage.opening, stage.notices) ? Told(stage.log) : Told(stage.notices.lastStatus());
}

Told DdeFile(OpeningStage&, Words words) {
    return FileOfDdeExecute(words.rest());
}

const Verbs<OpeningStage> kVerbs = {
    {"log", [](OpeningStage& s, Words) { return Told(std::exchange(s.log, {})); }},
    {"shows", [](OpeningStage& s, Words w) { return s.shown = w.rest(), Told(); }},
    {"refuses", [](OpeningStage& s, Words w) { return s.refused = w.rest(), Told(); }},
    {"free", [](OpeningStage& s, Words w) { return s.free = w.yes(), Told(); }},
    {"several-copies", [](OpeningStage& s, Words) { return s.options.MultipleCopies = true, Told(); }},
    {"open-at",
     [](OpeningStage& s, Words w) {
         const int line = w.number();
         return Told(s.opening.OpenFileAtLine(w.rest(), line));
     }},
    {"open-new-at", [](OpeningStage& s, Words w) { return Told(s.opening.OpenFileAtLine(std::nullopt, w.number())); }},
    {"open-files", &OpenFiles},
    {"drop", [](OpeningStage& s, Words w) { return s.opening.OpenDroppedFiles(All(w)), Told(); }},
    // other programs
    {"dde", [](OpeningStage& s, Words w) { return Told(s.outside.executeDde(w.rest())); }},
    {"dde-file", &DdeFile},
    {"add",
     [](OpeningStage& s, Words w) {
         return s.outside.add({w.rest(), 0}), Told();
     }},
    {"open-waiting", [](OpeningStage& s, Words) { return s.outside.openWaiting(), Told(); }},
    {"put-hand-off", &PutHandOff},
    {"hand-off-file", [](OpeningStage&, Words) { return Told(platform::PathExists(MessageFile())); }},
    {"receive", [](OpeningStage& s, Words) { return s.outside.receiveHandOff(s.before), Told(); }},
    // later than anything was taken
    {"receive-late", [](OpeningStage& s, Words) { return s.outside.receiveHandOff(s.before + 1000), Told(); }},
    {"another-receives", [](OpeningStage& s, Words) { return s.another.receiveHandOff(s.before), Told(); }},
    {"another-opens", [](OpeningStage& s, Words) { return s.another.openWaiting(), Told(); }},
    {"take-hand-off", &TakeHandOff},
    {"editor-runs", [](OpeningStage&, Words) { return platform::AddGlobalMarker(kActiveMarker), Told(); }},
    {"should", &Should},
    {"hand-off", &HandOff},
    {"handed-over", &HandedOver},
    // a file that a line names
    {"include-path", [](OpeningStage& s, Words w) { return s.include.emplace("INCLUDE", w.rest()), Told(); }},
    {"document", [](OpeningStage& s, Words w) { return s.documentName = s.path(w.rest()), Told(); }},
    {"include", &Include},
};

#ifndef _WIN32
TEST(HandOffTest, TheRunningEditorIsToldByABroadcast) {
    OpeningStage stage;
    platform::AddGlobalMarker(kActiveMarker);
    HandedOff(ParseCommandLine("vexa a.c"), stage.notices);
    EXPECT_EQ(platform::host::ThePlaces().broadcasts, std::vector<std::string>{"VexaFileOpen"});
    platform::host::ThePlaces().refusesBroadcasts = true;
    EXPECT_FALSE(HandedOff(ParseCommandLine("vexa a.c"), stage.notices));
    EXPECT_TRUE(stage.notices.boxes.empty());
}
#endif

VEXA_SCRIPTS(Opening, kFiles, OpeningStage, kVerbs);

TEST(FileOpeningTest, TheLatestOfSeveralCopiesIsSpokenOfFirst) {
    OpeningStage stage;
    stage.disk.put("a.c", "now");
    stage.disk.put("a.c.vx7", "older");
    const auto older = platform::FactsOf(stage.disk.path("a.c.vx7"))->stamp.writeTime;
    do {
        stage.disk.put("a.c.vx2", "later");
    } while (platform::FactsOf(stage.disk.path("a.c.vx2"))->stamp.writeTime == older);
    stage.notices.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    EXPECT_TRUE(stage.opening.OpenFileAtLine(stage.disk.path("a.c"), 1));
    for (std::size_t i = 0; const char* name : {"a.c", "a.c.vx2", "a.c.vx7"})
        EXPECT_EQ(stage.log.at(i++), "open " + stage.disk.path(name) + " 1");
}

bool HasFreeTurn(const DocumentWait& wait) {
    return platform::SystemTurn(SharedWait(wait.number()).turn(), 0).isMine();
}

// As another process sees it: on Windows a turn is had again by the thread that has it.
#ifdef _WIN32
DWORD WINAPI Asks(void* wait) {
    return HasFreeTurn(*static_cast<const DocumentWait*>(wait)) ? 1 : 0;
}

bool IsFree(const DocumentWait& wait) {
    const HANDLE asks = CreateThread(nullptr, 0, &Asks, const_cast<DocumentWait*>(&wait), 0, nullptr);
    DWORD isFree = 0;
    WaitForSingleObject(asks, INFINITE);
    GetExitCodeThread(asks, &isFree);
    CloseHandle(asks);
    return isFree != 0;
}
#else
bool IsFree(const DocumentWait& wait) {
    return HasFreeTurn(wait);
}
#endif

TEST(FileOpeningTest, AStartWaitsUntilItsDocumentIsClosedOrCannotBeOpened) {
    OpeningStage stage;
    const TextDocument document(stage.options, stage.notices);
    const TextDocument another(stage.options, stage.notices);
    const DocumentWait closed;
    const DocumentWait refused;
    for (const DocumentWait* wait : {&closed, &refused}) {
        ASSERT_TRUE(HandOffFile({"C:\\a.c", 3, 5, wait->number()}, stage.notices));
        stage.outside.receiveHandOff(platform::Ticks());
        EXPECT_TRUE(AwaitReading());
        EXPECT_FALSE(IsFree(*wait)) << "it is on its way";
        stage.document = wait == &closed ? &document : nullptr;
        stage.outside.openWaiting();
        EXPECT_EQ(stage.log.back(), "open C:\\a.c 3:5");
    }
    EXPECT_TRUE(IsFree(refused));
    EXPECT_FALSE(refused.awaitEnd()) << "the user has not closed it";
    stage.outside.documentCloses(another);
    EXPECT_FALSE(IsFree(closed));
    stage.outside.documentCloses(document);
    EXPECT_TRUE(IsFree(closed));
    EXPECT_TRUE(closed.awaitEnd());
}

TEST(HandOffTest, AFileIsTakenOnceAndItsBroadcastsAreAnswered) {
    const OpeningStage stage;
    WriteWholeFile(MessageFile(), "C:\\A.C\r\n-1\r\n");
    HandOffInbox inbox;
    EXPECT_NE(inbox.take(), std::nullopt);
    EXPECT_EQ(inbox.take(), std::nullopt);
    EXPECT_TRUE(HandOffInbox().wasTaken(stage.before));
    EXPECT_TRUE(HandOffInbox().wasTaken(platform::SharedNumber("VexaHandOffTaken").get())) << "at the same tick";
    EXPECT_FALSE(HandOffInbox().wasTaken(stage.before + 1000000));
    AwaitReading();  // what has been taken is not waited for
}

}  // namespace
}  // namespace vexa::test
