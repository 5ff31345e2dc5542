// The commands that record and play the keyboard macro.
#pragma once

#include "base/config_store.h"
#include "framework/held_keys.h"
#include "framework/message_loop.h"
#include "framework/window.h"
#include "shell/command_dispatcher.h"
#include "shell/key_macro.h"
#include "shell/macro_repeat_model.h"

namespace vexa {

class MacroCommands {
  public:
    MacroCommands(MacroTarget& target, const WindowCL& frame, Notices& notices, MessageLoop& loop, ConfigStore& store)
        : frame_(frame), notices_(notices), loop_(loop), store_(store), macro_(target, notices) {}

    void registerCommands(CommandDispatcher& dispatcher);
    KeyMacro& macro() { return macro_; }
    // While a macro plays, Esc stops it and other keys wait for its end. False for what is no key, or at other times.
    bool holdKey(const MSG& message);

  private:
    void play();
    void repeat();

    const WindowCL& frame_;
    Notices& notices_;
    MessageLoop& loop_;
    ConfigStore& store_;
    KeyMacro macro_;
    HeldKeys heldKeys_;  // pressed while the macro plays
    MacroRepeatModel repeat_;
};

}  // namespace vexa
