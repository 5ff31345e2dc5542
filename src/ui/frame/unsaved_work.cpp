#include "ui/frame/unsaved_work.h"

#include <algorithm>

#include "base/file_name.h"
#include "base/platform.h"
#include "ui/dialogs/document_choice_dialog.h"

namespace vexa {
namespace {

constexpr UINT_PTR kTimer = 5;
constexpr UINT kLookAtFilesMessage = WM_APP + 20;

}  // namespace

UnsavedWork::UnsavedWork(OpenDocuments& documents, ExternalCommands& external, Application& application,
                         FrameNotices& notices)
    : documents_(documents),
      external_(external),
      application_(application),
      notices_(notices),
      timer_(documents.frame(), kTimer),
      keeper_(documents, application.directories.GetDirectory(kBackupDirectory), notices, &platform::Ticks),
      changes_(*this, notices) {}

// ---- recovery ----------------------------------------------------------------------------------------------------

void UnsavedWork::offerRecovery() {
    RecoveryOffer offer(keeper_.takeLeft(), *this, notices_);
    AskAboutDocuments(application_.store, offer, documents_.frame().window());
}

void UnsavedWork::recover(const RecoveredText& recovered, const std::string& file) {
    const std::string path = recovered.path();
    const auto name = IsFullName(path) ? std::optional(path) : std::nullopt;
    if (!documents_.openWindow(name, {})) return;
    DocumentWindow& window = *documents_.active();
    GiveText(window.document(), recovered);
    keeper_.adopt(window.document(), file);
    window.view().goTo(LineIndex(std::max(recovered.head.caretLine, 0)), CharColumn(0));
    window.refresh();
}

void UnsavedWork::openFile(const std::string& path) {
    documents_.openWindow(path, {});
}

// The timer serves while a dialog or a menu has the messages.
bool UnsavedWork::keep() {
    const RecoveryKeeper::Work work = keeper_.work();
    timer_.start(work == RecoveryKeeper::Work::None ? kLook : kWait);
    return work == RecoveryKeeper::Work::More;
}

bool UnsavedWork::work() {
    if (hasComeBack_ || lookedAt_ != documents_.active()) lookAtFilesSoon();
    return keep();
}

bool UnsavedWork::useTimer(UINT_PTR timer) {
    if (timer != timer_.number()) return false;
    keep();
    return true;
}

// ---- files that others have changed ------------------------------------------------------------------------------

// Not while a dialog asks, or the mouse is held.
void UnsavedWork::lookAtFilesSoon() {
    if (documents_.isFree() && !notices_.isBusy() && !GetCapture())
        PostMessageA(documents_.frame().window(), kLookAtFilesMessage, 0, 0);
}

bool UnsavedWork::receive(const Message& message) {
    if (message.number == WM_ACTIVATEAPP && message.wParam) hasComeBack_ = true;
    if (message.number != kLookAtFilesMessage) return false;
    if (documents_.isFree()) lookAtFiles();
    return true;
}

// One document when it becomes the active one, and all of them when the user comes back from another program.
void UnsavedWork::lookAtFiles() {
    std::vector<TextDocument*> looked = documents_.openDocuments();
    DocumentWindow* active = documents_.active();
    if (!hasComeBack_) looked = active ? std::vector{&active->document()} : std::vector<TextDocument*>();
    hasComeBack_ = false;
    lookedAt_ = active;
    if (changes_.look(looked)) documents_.refreshOptions();
    if (changes_.rows().empty()) return;
    if (!AskAboutDocuments(application_.store, changes_, documents_.frame().window())) changes_.putOff();
    documents_.refreshOptions();
    lookedAt_ = documents_.active();
}

void UnsavedWork::showRows(TextDocument& document, const std::vector<std::string>& rows) {
    if (DocumentWindow* shown = documents_.windowOf(document)) external_.showRows(*shown, rows);
}

}  // namespace vexa
