// Shows help files: in the system's viewer where that works, else in the editor's own. A file that cannot be shown is
// told of in the status line.
#pragma once

#include <windows.h>

#include <string>

#include "base/config_store.h"
#include "base/notices.h"
#include "quickhelp/help_viewer.h"
#include "ui/help/help_window.h"

namespace vexa {

class HelpDesk {
  public:
    // The directory of the indexes, without "\" at its end.
    HelpDesk(ConfigStore& store, std::string indexDirectory, Notices& notices, TopicPrinter& printer);
    ~HelpDesk();
    HelpDesk(const HelpDesk&) = delete;
    HelpDesk& operator=(const HelpDesk&) = delete;

    // At the first keyword that begins with the given one. False, and the user has been told, when the file cannot be
    // shown.
    bool showKeyword(HWND owner, const std::string& helpFile, const std::string& keyword);
    // The editor's own help file; see ShowHelp.
    void showOwnHelp(HWND owner, UINT command, DWORD topic);
    // Lets go of the system's viewer if it has been used.
    void close(HWND owner) const;

  private:
    HelpViewer viewer() const;
    bool tellMissing(const std::string& helpFile);
    bool callSystem(HWND owner, const std::string& helpFile, UINT command, ULONG_PTR data);

    ConfigStore& store_;
    Notices& notices_;
    HelpWindow window_;
    bool hasUsedSystem_ = false;
};

}  // namespace vexa
