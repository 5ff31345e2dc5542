// The commands of the Window menu but "Close All".
#pragma once

#include "framework/mdi_frame.h"
#include "shell/command_dispatcher.h"

namespace vexa {

// The frame lives as long as the dispatcher.
void RegisterWindowCommands(CommandDispatcher& dispatcher, MDIframeCL& frame);

}  // namespace vexa
