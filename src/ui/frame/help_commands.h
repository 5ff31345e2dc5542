// The commands of the Help menu.
#pragma once

#include "framework/window.h"
#include "shell/command_dispatcher.h"

namespace vexa {

class HelpCommands {
  public:
    explicit HelpCommands(const WindowCL& frame) : frame_(frame) {}

    void registerCommands(CommandDispatcher& dispatcher);

  private:
    void showHelpOnHelp();
    void showIndex();
    void showKeys();
    void showAbout();

    const WindowCL& frame_;
};

}  // namespace vexa
