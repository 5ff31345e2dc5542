// The commands and keys that change how the editor works and looks.
#pragma once

#include "shell/command_dispatcher.h"
#include "ui/frame/key_actions.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class OptionCommands {
  public:
    OptionCommands(OpenDocuments& documents, Application& application, FrameNotices& notices)
        : documents_(documents), application_(application), notices_(notices) {}

    void registerCommands(CommandDispatcher& dispatcher);
    void registerKeys(KeyActions& keys);
    // Makes the text larger by so many steps, or smaller by negative ones.
    void zoom(std::int32_t steps);

  private:
    void changeOptions();
    void changeHabits();
    void changeFont();
    void resetZoom();
    void changeColours();
    void showColours(const ColourTable& colours);
    void changeExtensions();

    OpenDocuments& documents_;
    Application& application_;
    FrameNotices& notices_;
};

}  // namespace vexa
