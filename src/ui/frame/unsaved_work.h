// What keeps the user's text from being lost between saves: recovery files, the offer to bring them back, and the
// question about files that other programs have changed.
#pragma once

#include <string>
#include <vector>

#include "framework/window.h"
#include "shell/unsaved/disk_changes.h"
#include "shell/unsaved/recovery_keeper.h"
#include "shell/unsaved/recovery_offer.h"
#include "ui/frame/external_commands.h"
#include "ui/frame/frame_timer.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class UnsavedWork : private RecoveryHost, private DifferenceView {
  public:
    UnsavedWork(OpenDocuments& documents, ExternalCommands& external, Application& application, FrameNotices& notices);

    // From now on what is not saved is kept.
    void start() { timer_.start(kLook); }
    // Offers what earlier runs have left; asks nothing when they have left nothing.
    void offerRecovery();
    // Does a little while no message is there; false when nothing is left to be done.
    bool work();
    // For a timer of the frame, given by its number; false when it is none of this.
    bool useTimer(UINT_PTR timer);
    // Takes the messages after which files are to be looked at; false for any other.
    bool receive(const Message& message);
    // Brings everything that is not saved to the disk at once.
    void keepAll() { keeper_.writeAll(); }
    void documentCloses(const DocumentWindow& window) { keeper_.forget(window.document()); }

  private:
    static constexpr int kLook = 500;  // milliseconds
    static constexpr int kWait = 10;

    bool keep();
    void lookAtFilesSoon();
    void lookAtFiles();
    void showRows(TextDocument& document, const std::vector<std::string>& rows) override;
    void recover(const RecoveredText& recovered, const std::string& file) override;
    void openFile(const std::string& path) override;

    OpenDocuments& documents_;
    ExternalCommands& external_;
    Application& application_;
    FrameNotices& notices_;
    FrameTimer timer_;
    RecoveryKeeper keeper_;
    DiskChanges changes_;
    const DocumentWindow* lookedAt_ = nullptr;  // the active document at the last look
    bool hasComeBack_ = false;                  // the user was in another program
};

}  // namespace vexa
