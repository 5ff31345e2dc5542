// The commands of the installed help files: Quick Help, Quick Search and Help Configuration.
#pragma once

#include <optional>
#include <string>

#include "quickhelp/help_lookup.h"
#include "quickhelp/quick_help_commands.h"
#include "shell/command_dispatcher.h"
#include "ui/document/application.h"
#include "ui/frame/open_documents.h"
#include "ui/help/help_desk.h"

namespace vexa {

class QuickHelp : private QuickHelpHost {
  public:
    // All must live as long as this.
    QuickHelp(const OpenDocuments& documents, Application& application, Notices& notices, TopicPrinter& printer);

    void registerCommands(CommandDispatcher& dispatcher);

  private:
    void helpOnWord();
    void search();
    void configure();
    std::optional<std::string> wordAtCaret() const;

    bool runDialog(QuickHelpDialog dialog) override;
    bool showHelp(const std::string& helpFile, const std::string& keyword) override;
    void focusEditWindow() override;
    HWND frame() const { return documents_.frame().window(); }

    const OpenDocuments& documents_;
    Application& application_;
    Notices& notices_;
    const std::string indexDirectory_;
    HelpLookup lookup_;
    QuickHelpCommands commands_;
    HelpDesk desk_;
};

}  // namespace vexa
