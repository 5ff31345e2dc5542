#include "faults/start_operations.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "document/view/edit_view.h"
#include "shell/hand_off.h"
#include "shell/left_copies.h"
#include "shell/recent_files.h"
#include "shell/session_documents.h"
#include "shell/startup_files.h"
#include "shell/unsaved/recovery_disk.h"
#include "shell/unsaved/recovery_file.h"
#include "shell/unsaved/recovery_keeper.h"
#include "shell/unsaved/recovery_offer.h"

namespace vexa::test {

namespace {

using Saved = std::optional<bool>;

std::size_t CountOf(const Files& files, const std::string& bytes) {
    return static_cast<std::size_t>(
        std::ranges::count_if(files, [&](const auto& file) { return file.second == bytes; }));
}

SessionDocument DocumentOf(const char* path) {
    return {path, {LineIndex(7), CharColumn(0)}, {}, true};
}

// ---- unsaved changes ------------------------------------------------------------------------------------------------

// With one document, which is never saved.
class Unsaved : public BackupFrame {
  public:
    explicit Unsaved(FaultScene& scene) : document_(scene.options, scene.notices) {
        document_.newEmpty();
        EditView(document_, scene.options, scene.notices).key(KeyEvent{.character = 'x'});
    }
    bool isBusy() const override { return false; }
    std::vector<TextDocument*> openDocuments() const override { return {&document_}; }

  private:
    mutable TextDocument document_;
};

// The text of a document of that name, which may be none of the file's.
void WriteRecoveryFile(FaultScene& scene, const std::string& file, const std::string& typed) {
    TextDocument document(scene.options, scene.notices);
    document.setName(scene.disk.path("A.TXT"));
    document.load();
    EditView view(document, scene.options, scene.notices);
    for (const char c : typed)
        view.key(KeyEvent{.character = static_cast<unsigned char>(c)});
    WriteRecoveryFile(scene, document, file);
}

class NoHost : public RecoveryHost {
  public:
    void recover(const RecoveredText& /*recovered*/, const std::string& /*file*/) override {}
    void openFile(const std::string& /*path*/) override {}
};

}  // namespace

bool WriteRecoveryFile(FaultScene& scene, TextDocument& document, const std::string& file) {
    RecoveryNames names(scene.disk.path("vbackup"));
    RecoveryDisk disk(names);
    RecoveryCopy copy(document);
    while (!copy.step()) {
    }
    disk.write({scene.disk.path("vbackup\\" + file), copy.take(), &document});
    return disk.takeEnded().value().isDone;
}

void KeepFirstUnsaved(FaultScene& scene) {
    const Unsaved frame(scene);
    RecoveryKeeper keeper(frame, scene.disk.path("vbackup"), scene.notices, [] { return std::uint32_t{1}; });
    scene.attempt([&]() -> Saved {
        keeper.writeAll();
        return std::nullopt;
    });
}

// What cannot be taken is there for the next start, under whatever name.
void TakeUnsavedOfOthers(FaultScene& scene) {
    const auto take = [&] { return RecoveryNames(scene.disk.path("vbackup")).takeLeft(); };
    take();
    ClearFaultPlan();
    const std::vector<std::string> taken = take();
    EXPECT_EQ(taken.size(), 2u);
    for (const char* text : {"one", "two"})
        EXPECT_EQ(CountOf(scene.files(), text), 1u) << text;
    for (const std::string& file : taken)
        platform::RemoveFile(file);
    take();
}

// One that is saved already goes, and no other.
void OfferUnsaved(FaultScene& scene) {
    scene.withoutFaults([&] {
        WriteRecoveryFile(scene, "SAVED.vxr", "");
        WriteRecoveryFile(scene, "TYPED.vxr", "x");
    });
    NoHost host;
    const RecoveryOffer offer({scene.disk.path("vbackup\\SAVED.vxr"), scene.disk.path("vbackup\\TYPED.vxr")}, host,
                              scene.notices);
    EXPECT_GE(offer.rows().size(), 1u);
}

// ---- files of an interrupted save, and of another instance ----------------------------------------------------------

// For a user who wants it neither opened nor deleted.
void RenameLeftCopy(FaultScene& scene) {
    scene.answerAll(BoxAnswer::No);
    OfferLeftCopies(scene.disk.path("A.TXT"), scene.notices, [](const std::string&) {});
    EXPECT_EQ(CountOf(scene.files(), "other"), 1u);
}

void TakeHandOff(FaultScene& scene) {
    HandOffInbox inbox;
    const bool isTaken = inbox.take().has_value();
    EXPECT_TRUE(isTaken || scene.disk.has("VEXACMD.DAT"));
}

// ---- the session ----------------------------------------------------------------------------------------------------

// What has not come back is not written over at the end of the session.
void TakeSession(FaultScene& scene) {
    SessionFile file(scene.disk.path("vConfig\\VexaSes.txt"));
    const bool isTaken = !file.take().empty();
    ClearFaultPlan();
    if (isTaken) return;
    const SessionDocument other = DocumentOf("C:\\B.TXT");
    file.keep({&other, 1});
    EXPECT_EQ(scene.disk.get("vConfig\\VexaSes.txt"), kSessionLine);
}

void CallOffSession(FaultScene& scene) {
    SessionFile file(scene.disk.path("vConfig\\VexaSes.txt"));
    const SessionDocument document = DocumentOf("C:\\B.TXT");
    file.keep({&document, 1});
    ClearFaultPlan();
    file.takeBack();
    EXPECT_EQ(scene.disk.get("vConfig\\VexaSes.txt"), kSessionLine);
}

void CallOffStartupFiles(FaultScene& scene) {
    ConfigStore store(scene.disk.path("VEXA.INI"));
    StartupFiles files(store);
    files.keep();
    ClearFaultPlan();
    files.RecordStartupFile("C:\\B.TXT", 8);
    files.takeBack();
    EXPECT_EQ(ConfigStore(store.path()).ReadString("History", "StartupFile:0", "", 100), "C:\\A.TXT 7");
}

void GoOnWithRecentFiles(FaultScene& scene) {
    ConfigStore store(scene.disk.path("VEXA.INI"));
    RecentFiles files;
    files.LoadRecentFiles(store, true);
    files.RecordRecentFile("C:\\B.TXT");
    scene.attempt([&]() -> Saved {
        const ConfigStore::Batch batch(store);
        files.SaveRecentFiles(store);
        return std::nullopt;
    });
}

}  // namespace vexa::test
