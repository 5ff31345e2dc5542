// Open documents from their opening to their saving, as the cases of the folder documents/ tell.
#include <algorithm>
#include <deque>
#include <memory>

#include "base/config_store.h"
#include "document/text/safety_copy.h"
#include "document/view/edit_view.h"
#include "document/view/text_exchange.h"
#include "shell/auto_backup.h"
#include "shell/file_commands.h"
#include "shell/unsaved/disk_changes.h"
#include "shell/unsaved/line_differences.h"
#include "shell/unsaved/recovery_keeper.h"
#include "shell/unsaved/recovery_offer.h"
#include "support/script.h"

#ifndef _WIN32
#include "base/platform/host/background.h"
#endif

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "document_scripts.inc"
};

std::int64_t g_seconds = 0;
std::uint32_t g_ticks = 0;

struct DocumentStage : ScriptStage, BackupFrame, FileQuestions, DifferenceView, RecoveryHost {
    DocumentStage() {
        disk.makeDirectory("vbackup");
        g_seconds = 1000;
        g_ticks = 5000;
        beginRun();
    }

    TextDocument& document() { return *open.at(shown); }
    TextDocument& add() {
        open.push_back(&made.emplace_back(options, notices));
        shown = open.size() - 1;
        return document();
    }
    void type(std::string_view text) {
        EditView view(document(), options, notices);
        for (const char c : text)
            view.key(KeyEvent{.character = static_cast<unsigned char>(c)});
    }
    void beginRun() {
        keeper = std::make_unique<RecoveryKeeper>(*this, directory, notices, [] { return g_ticks; });
    }
    Told offer(std::optional<std::size_t> button) {
        RecoveryOffer offer(keeper->takeLeft(), *this, notices);
        const std::vector<std::string> rows = offer.rows();
        for (std::size_t i = 0; button && i < rows.size(); ++i)
            offer.act(*button, 0);
        EXPECT_EQ(offer.rows().empty(), button || rows.empty());
        return rows;
    }

    bool isBusy() const override { return busy; }
    std::vector<TextDocument*> openDocuments() const override { return open; }
    std::optional<std::string> askSaveName(const TextDocument&) override { return ++asked, saveName; }
    void nameChanged(const TextDocument& changed) override { newName = changed.fullPath(); }
    void showRows(TextDocument&, const std::vector<std::string>& rows) override { differences = rows; }
    void openFile(const std::string& path) override { opened.push_back(path); }
    // Into a new document, as the frame does into a new window.
    void recover(const RecoveredText& recovered, const std::string& file) override {
        const std::string path = recovered.path();
        TextDocument& given = add();
        given.setName(path.find(':') == std::string::npos ? "untitled.txt" : path);
        if (!platform::PathExists(path) || !given.load()) given.newEmpty();
        GiveText(given, recovered);
        keeper->adopt(given, file);
    }

    const std::string directory = disk.path("vbackup");
    EditorOptions options;
    std::deque<TextDocument> made;
    std::vector<TextDocument*> open;
    std::size_t shown = 0;
    ProfileList profiles{disk.path()};
    FileCommands commands{notices, *this, profiles};
    AutoBackup backup{*this, options, directory, notices, [] { return g_seconds; }};
    DiskChanges changes{*this, notices};
    std::unique_ptr<RecoveryKeeper> keeper;
    std::vector<TextDocument*> openElsewhere;  // in another run, beside this one
    std::unique_ptr<RecoveryKeeper> otherKeeper;
    std::vector<std::string> differences;
    std::vector<std::string> opened;
    std::optional<std::string> saveName;
    std::string newName;
    int asked = 0;
    bool busy = false;
};

Told SetOption(DocumentStage& stage, Words words) {
    ConfigStore store(stage.disk.path("OPTION.INI"));
    stage.options.Save(store);
    const std::string name = words.word();
    const char* section = name == "KeepFiles" ? "Extended" : "Editor Options";
    store.WriteInt(section, name.c_str(), words.number());
    stage.options.Load(store);
    return stage.disk.remove("OPTION.INI"), Told();
}

Told Open(DocumentStage& stage, const std::optional<std::string>& path) {
    return stage.commands.open(stage.add(), path);
}

Told Text(DocumentStage& stage, Words) {
    std::string text;
    for (const std::string_view line : LinesOf(stage.document()))
        text.append(line) += "|";
    return text;
}

Told Written(DocumentStage& stage, bool withoutCopy) {
    static const char* const kResults[] = {"written", "failed", "torn", "changed", "no copy"};
    return kResults[static_cast<std::size_t>(stage.document().tryWrite(withoutCopy).result)];
}

Told SaveAs(DocumentStage& stage, Words words) {
    if (words.more()) stage.saveName = words.rest();
    return stage.commands.saveAs(stage.document());
}

Told CheckBackups(DocumentStage& stage, Words words) {
    g_seconds = words.number();
    return stage.backup.CheckBackups(), Told();
}

// New documents with a text, the first of them in front.
Told NameNew(DocumentStage& stage, Words words) {
    while (words.more()) {
        stage.add().newEmpty();
        stage.document().setName(stage.disk.path(words.word()));
        stage.document().lines().put(TextDocument::makeLine("text"), 0);
    }
    return stage.shown = 0, Told();
}

// The first document closes while messages run, and a check comes.
Told CloseAtPump(DocumentStage& stage, Words) {
    stage.notices.onPump = [&stage] {
        if (stage.open.size() > 1) stage.open.erase(stage.open.begin());
        stage.backup.CheckBackups();
    };
    return {};
}

// The first of the ten names that safety copies may have are there already.
Told TakeCopyNames(DocumentStage& stage, Words words) {
    const int count = words.number();
    for (int i = 0; i < count; ++i)
        stage.disk.put("A.TXT.vx" + std::to_string(i), "kept");
    return {};
}

// As another program writes it, at another time than ours.
Told Change(DocumentStage& stage, Words words) {
    stage.disk.put(stage.document().baseName(), words.rest());
    return stage.document().disk().facts->stamp.writeTime -= 1, Told();
}

Told Touch(DocumentStage& stage, Words words) {
    return stage.document().disk().facts->stamp.writeTime -= static_cast<std::uint64_t>(words.number()), Told();
}

Told Look(DocumentStage& stage, Words) {
    stage.changes.look(stage.open);
    return stage.changes.rows();
}

Told PassTime(DocumentStage& stage, std::uint32_t milliseconds) {
    g_ticks += milliseconds;
    while (stage.keeper->work() != RecoveryKeeper::Work::None) {
    }
    return {};
}

// The run ends without any of its own doing; another one begins.
Told Crash(DocumentStage& stage, Words) {
    std::vector<std::pair<std::string, std::string>> files;
    for (const std::string& name : platform::FindFiles(stage.directory + "\\*"))
        files.emplace_back("vbackup\\" + name, stage.disk.get("vbackup\\" + name));
    stage.keeper.reset();
    for (const auto& [name, bytes] : files)
        if (!stage.disk.has(name)) stage.disk.put(name, bytes);
    stage.open.clear();
    return stage.beginRun(), Told();
}

// How old what is kept becomes, while keys come that far apart.
Told LongestBehind(DocumentStage& stage, Words words) {
    const char* const file = "vbackup\\unsaved-1-1.vxr";
    const int keys = words.number();
    const int apart = words.number();
    int age = 0;
    int longest = 0;
    for (int key = 0; key < keys; ++key) {
        const std::string before = stage.disk.get(file);
        stage.type("x");
        PassTime(stage, static_cast<std::uint32_t>(apart));
        age = stage.disk.get(file) == before ? age + apart : 0;
        longest = std::max(longest, age);
    }
    return longest;
}

// How many of the ways to cut a recovery file or to change a byte of it are not found out.
Told DamagesTaken(DocumentStage& stage, Words words) {
    const std::string name = words.rest();
    const std::string whole = stage.disk.get(name);
    int taken = 0;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        std::string damaged = whole;
        damaged[i] ^= 4;
        taken += (ReadRecoveryText(whole.substr(0, i)) ? 1 : 0) + (ReadRecoveryText(damaged) ? 1 : 0);
    }
    EXPECT_TRUE(ReadRecoveryText(whole));
    return stage.disk.put(name, whole + "x"), Told(taken);
}

Told OtherRun(DocumentStage& stage, Words) {
    std::swap(stage.open, stage.openElsewhere);
    std::swap(stage.keeper, stage.otherKeeper);
    if (!stage.keeper) stage.beginRun();
    return {};
}

// The longest that a key can have to wait is a part of the work; a part copies no more than this. What the disk has
// then is not waited for.
Told CopyWhileTyping(DocumentStage& stage, Words) {
    g_ticks += RecoveryKeeper::kPause;
    int parts = 0;
    while (stage.keeper->work() == RecoveryKeeper::Work::More)
        if (++parts % 20 == 0) stage.type("2");
    return parts > 45 ? Told("about 3 MB") : Told(parts);
}

Told HoldDisk(DocumentStage&, [[maybe_unused]] Words words) {
#ifndef _WIN32
    platform::host::HoldBackground(words.number());
#endif
    return {};
}

LineViews Cut(std::string_view text) {
    LineViews lines;
    for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(std::min(text.size(), end + 1)))
        lines.push_back(text.substr(0, end = text.find(',')));
    return lines;
}

Told Differ(DocumentStage&, Words words) {
    const std::string mine = words.word();
    const std::string theirs = words.word();
    std::string rows;
    for (const std::string& row : LineDifferences(Cut(mine), Cut(theirs), 10))
        rows += (rows.empty() ? "" : " ") + row.substr(5, 1) + row.substr(7, 1) + row.substr(9);
    return rows;
}

Told Forget(DocumentStage& stage, Words) {
    stage.keeper->forget(stage.document());
    return stage.open.clear(), Told();
}

const Verbs<DocumentStage> kVerbs = {
    {"option", &SetOption},
    {"new", [](DocumentStage& s, Words) { return Open(s, std::nullopt); }},
    {"open", [](DocumentStage& s, Words w) { return Open(s, s.path(w.rest())); }},
    {"show", [](DocumentStage& s, Words w) { return s.shown = static_cast<std::size_t>(w.number()) - 1, Told(); }},
    {"name", [](DocumentStage& s, Words w) { return s.document().setName(w.rest()), Told(); }},
    {"name-new", &NameNew},
    {"path", [](DocumentStage& s, Words) { return Told(s.document().fullPath()); }},
    {"base-name", [](DocumentStage& s, Words) { return Told(s.document().baseName()); }},
    {"profile", [](DocumentStage& s, Words) { return Told(s.document().profile()->description()); }},
    {"type", [](DocumentStage& s, Words w) { return s.type(w.rest()), Told(); }},
    {"undo", [](DocumentStage& s, Words) { return Told(s.document().history().undo()); }},
    {"redo", [](DocumentStage& s, Words) { return Told(s.document().history().redo()); }},
    {"text", &Text},
    {"documents", [](DocumentStage& s, Words) { return Told(s.open.size()); }},
    {"modified", [](DocumentStage& s, Words) { return Told(s.document().isModified()); }},
    {"unmodified", [](DocumentStage& s, Words) { return s.document().clearModified(), Told(); }},
    {"line-changed",
     [](DocumentStage& s, Words w) { return Told(s.document().isLineChanged(LineIndex(w.number() - 1))); }},
    {"named", [](DocumentStage& s, Words) { return Told(s.document().isNamed()); }},
    {"truncated", [](DocumentStage& s, Words) { return Told(s.document().isTruncated()); }},
    {"line", [](DocumentStage& s, Words) { return Told(s.document().currentLine().value + 1); }},
    {"to-line",
     [](DocumentStage& s, Words w) { return s.document().setCurrentLine(LineIndex(w.number() - 1)), Told(); }},
    {"drop-bookmark", [](DocumentStage& s, Words w) { return s.document().dropBookmark(w.number()), Told(); }},
    {"bookmark", [](DocumentStage& s, Words w) { return Told(s.document().bookmarks().line(w.number())->value + 1); }},
    // saving
    {"save", [](DocumentStage& s, Words) { return Told(s.commands.save(s.document())); }},
    {"save-as", &SaveAs},
    {"save-name", [](DocumentStage& s, Words w) { return s.saveName = w.rest(), Told(); }},
    {"asked", [](DocumentStage& s, Words) { return Told(s.asked); }},
    {"new-name", [](DocumentStage& s, Words) { return Told(s.newName); }},
    {"may-close", [](DocumentStage& s, Words) { return Told(s.commands.queryClose(s.document())); }},
    {"write", [](DocumentStage& s, Words) { return Written(s, false); }},
    {"write-without-copy", [](DocumentStage& s, Words) { return Written(s, true); }},
    {"take-copy-names", &TakeCopyNames},
    {"left-copies", [](DocumentStage& s, Words) { return Told(LeftSafetyCopies(s.document().fullPath())); }},
    {"forget-file", [](DocumentStage& s, Words) { return s.document().forgetFile(), Told(); }},
    {"can-undo", [](DocumentStage& s, Words) { return Told(!s.document().history().isEmpty()); }},
    {"cut-line",
     [](DocumentStage& s, Words w) { return s.document().current().truncate(CharColumn(w.number())), Told(); }},
    // backups
    {"check-at", &CheckBackups},
    {"back-up", [](DocumentStage& s, Words) { return Told(s.backup.BackupDocument(s.document())); }},
    {"frame-busy", [](DocumentStage& s, Words w) { return s.busy = w.yes(), Told(); }},
    {"close-at-pump", &CloseAtPump},
    // files that others change
    {"change", &Change},
    {"touch", &Touch},
    {"look", &Look},
    {"choose",
     [](DocumentStage& s, Words w) { return s.changes.act(static_cast<std::size_t>(w.number()), 0), Told(); }},
    {"put-off", [](DocumentStage& s, Words) { return s.changes.putOff(), Told(); }},
    {"differ", &Differ},
    {"choices", [](DocumentStage& s, Words) { return Told(s.changes.rows()); }},
    {"differences", [](DocumentStage& s, Words) { return Told(s.differences); }},
    // recovery
    {"pass", [](DocumentStage& s, Words w) { return PassTime(s, static_cast<std::uint32_t>(w.number())); }},
    {"longest-behind", &LongestBehind},
    {"copy-while-typing", &CopyWhileTyping},
    {"begin-copy",
     [](DocumentStage& s, Words w) {
         g_ticks += static_cast<std::uint32_t>(w.number());
         return Told(s.keeper->work() == RecoveryKeeper::Work::More);
     }},
    {"hold-disk", &HoldDisk},
    {"keep", [](DocumentStage& s, Words) { return s.keeper->writeAll(), Told(); }},
    {"kept", [](DocumentStage& s, Words) { return Told(platform::FindFiles(s.directory + "\\*.vxr").size()); }},
    {"forget-document", &Forget},
    {"end-run", [](DocumentStage& s, Words) { return s.keeper.reset(), Told(); }},
    {"crash", &Crash},
    {"offer", [](DocumentStage& s, Words) { return s.offer(std::nullopt); }},
    {"offer-and", [](DocumentStage& s, Words w) { return s.offer(w.number()); }},
    {"damages-taken", &DamagesTaken},
    {"other-run", &OtherRun},
    {"take-left", [](DocumentStage& s, Words) { return Told(s.keeper->takeLeft()); }},
    {"remember-text", [](DocumentStage& s, Words w) { return s.remembered = Text(s, w).text, Told(); }},
    {"same-text", [](DocumentStage& s, Words w) { return Told(Text(s, w).text == s.remembered); }},
    {"opened", [](DocumentStage& s, Words) { return Told(s.opened); }},
};

// Every text becomes every other, and undo brings it back.
TEST(DiskChangesTest, AnyTextCanBecomeAnyOther) {
    const char* const kTexts[] = {
        "", "a\r\n", "a\r\nb\r\n", "b\r\na\r\n", "x\r\na\r\n\r\nb\r\n", "a\r\na\r\na\r\na\r\n"};
    for (const char* from : kTexts) {
        for (const char* to : kTexts) {
            DocumentStage stage;
            const Words none({}, {});
            stage.disk.put("a.txt", from);
            Open(stage, stage.path("a.txt"));
            const std::string before = Text(stage, none).text;
            Change(stage, Words(to, {}));
            Look(stage, none);
            const std::string after = Text(stage, none).text;
            if (before != after) {
                EXPECT_TRUE(stage.document().history().undo());
            }
            EXPECT_EQ(Text(stage, none).text, before) << from << " to " << to;
            Open(stage, stage.path("a.txt"));
            EXPECT_EQ(after, Text(stage, none).text) << from << " to " << to;
        }
    }
}

TEST(LineDifferencesTest, AreNoMoreThanAreWanted) {
    EXPECT_EQ(LineDifferences(LineViews(2000, "a"), LineViews(3000, "b"), 7).size(), 7u);
}

VEXA_SCRIPTS(Documents, kFiles, DocumentStage, kVerbs);

}  // namespace
}  // namespace vexa::test
