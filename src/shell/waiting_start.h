// A start that ends when the user has closed the files that it names, as a program needs it that goes on with what the
// user has written in them.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "base/notices.h"
#include "base/platform.h"
#include "shell/command_line.h"

namespace vexa {

// The turn that a start has until no other one can come in between.
using StartTurn = std::optional<platform::SystemTurn>;

// Hands the files over to the running editor, one after the other; true when it has read them all. Waits while the
// editor is busy, and takes back what one that has ended has not read.
bool HandedOff(std::span<const FileAtLine> files, bool (*isEditorOpen)(), Notices& notices);

// Has the running editor open the files, and starts one first if none runs: this process has no window. Ends when the
// last file has been closed; true if the user has closed them all. False at once, or as soon as the editor ends by
// force, if no editor can be started, does not take a file, or cannot open it.
bool WaitedFor(std::vector<FileAtLine> files, bool (*isEditorOpen)(), StartTurn& turn, Notices& notices);

}  // namespace vexa
