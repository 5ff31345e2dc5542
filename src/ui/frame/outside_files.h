// The ways by which other programs hand files to the running editor: the broadcast of another instance, DDE, and
// dropping.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/dde_server.h"
#include "framework/window.h"
#include "shell/outside_opens.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class OutsideFiles {
  public:
    OutsideFiles(OpenDocuments& documents, Notices& notices);

    // From now on the frame's window takes files, until stop().
    void start();
    void stop();
    // Opens dropped files, at once if the editor is free.
    void drop(const std::vector<std::string>& names);
    // Takes the messages that tell of files; false for any other.
    bool receive(const Message& message);
    void documentCloses(const TextDocument& document) { waiting_.documentCloses(document); }

  private:
    OpenDocuments& documents_;
    OutsideOpens waiting_;
    std::unique_ptr<DdeServer> ddeServer_;
    const UINT fileOpenMessage_;  // what another instance broadcasts; 0 when the system has no number for it
};

}  // namespace vexa
