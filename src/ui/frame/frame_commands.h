// All that the frame's commands and keys end in: the dispatcher, and a class for each topic that registers with it.
#pragma once

#include "framework/message_loop.h"
#include "ui/frame/document_commands.h"
#include "ui/frame/edit_commands.h"
#include "ui/frame/external_commands.h"
#include "ui/frame/file_search_commands.h"
#include "ui/frame/help_commands.h"
#include "ui/frame/key_actions.h"
#include "ui/frame/macro_commands.h"
#include "ui/frame/macro_player.h"
#include "ui/frame/option_commands.h"
#include "ui/frame/path_commands.h"
#include "ui/frame/print_commands.h"
#include "ui/frame/quick_help.h"
#include "ui/frame/search_commands.h"
#include "ui/frame/text_tools.h"

namespace vexa {

class FrameCommands {
  public:
    FrameCommands(OpenDocuments& documents, Application& application, FrameNotices& notices, MessageLoop& loop);

    CommandDispatcher& dispatcher() { return dispatcher_; }
    const CommandDispatcher& dispatcher() const { return dispatcher_; }
    KeyMacro& macro() { return macro_.macro(); }
    void zoom(std::int32_t steps) { options_.zoom(steps); }
    ExternalCommands& external() { return external_; }
    FileSearchCommands& fileSearch() { return fileSearch_; }
    // For a timer of the frame, given by its number; false when it is none of these.
    bool useTimer(UINT_PTR timer) { return external_.useTimer(timer) || fileSearch_.useTimer(timer); }
    // Takes a message from the queue if it is a key that the frame carries out itself, or that must wait.
    bool useKey(MSG& message);

  private:
    bool isMet(CommandNeed need) const;
    bool useFrameKey(const MSG& message, const KeyEvent& event);

    OpenDocuments& documents_;
    CommandDispatcher dispatcher_;
    KeyActions keys_;
    MacroPlayer player_;
    MacroCommands macro_;
    FrameLists lists_;
    FileSearchCommands fileSearch_;
    SearchCommands search_;
    DocumentCommands files_;
    PathCommands paths_;
    EditCommands editing_;
    TextTools textTools_;
    PrintCommands printing_;
    OptionCommands options_;
    HelpCommands help_;
    QuickHelp quickHelp_;
    ExternalCommands external_;
};

}  // namespace vexa
