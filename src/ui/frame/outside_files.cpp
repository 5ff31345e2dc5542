#include "ui/frame/outside_files.h"

#include <windows.h>

#include <shellapi.h>

#include "base/platform.h"

namespace vexa {

OutsideFiles::OutsideFiles(OpenDocuments& documents, Notices& notices)
    : documents_(documents),
      waiting_(documents.opening(), documents, notices),
      fileOpenMessage_(platform::RegisterBroadcast(kFileOpenMessage)) {}

void OutsideFiles::start() {
    DragAcceptFiles(documents_.frame().window(), TRUE);
    ddeServer_ = std::make_unique<DdeServer>("Vexa Editor", "system",
                                             [this](const std::string& text) { return waiting_.executeDde(text); });
}

void OutsideFiles::stop() {
    DragAcceptFiles(documents_.frame().window(), FALSE);
    ddeServer_.reset();
}

void OutsideFiles::drop(const std::vector<std::string>& names) {
    if (documents_.isFree()) {
        const DrawingPause pause = documents_.pauseFor(names.size());
        documents_.opening().OpenDroppedFiles(names);
    } else {
        for (const std::string& name : names)
            waiting_.add({name, 0});
    }
}

bool OutsideFiles::receive(const Message& message) {
    if (message.number == kOpenWaitingMessage) {
        waiting_.openWaiting();
    } else if (message.number == fileOpenMessage_ && fileOpenMessage_ != 0) {
        waiting_.receiveHandOff(static_cast<std::uint32_t>(GetMessageTime()));
    } else {
        return false;
    }
    return true;
}

}  // namespace vexa
