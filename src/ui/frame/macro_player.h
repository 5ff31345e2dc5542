// Carries out the steps of a macro, each in the way that it took when the user did it.
#pragma once

#include "shell/command_dispatcher.h"
#include "shell/key_macro.h"
#include "ui/frame/key_actions.h"
#include "ui/frame/open_documents.h"

namespace vexa {

class MacroPlayer : public MacroTarget {
  public:
    MacroPlayer(OpenDocuments& documents, CommandDispatcher& dispatcher, const KeyActions& keys)
        : documents_(documents), dispatcher_(dispatcher), keys_(keys) {}

    bool playKey(const KeyEvent& event) override;
    void playMessage(const MacroMessage& message) override;
    bool playCommand(CommandId id) override { return dispatcher_.Dispatch(id, CommandOrigin::Step); }
    void updateDisplay() override;

  private:
    OpenDocuments& documents_;
    CommandDispatcher& dispatcher_;
    const KeyActions& keys_;
};

}  // namespace vexa
