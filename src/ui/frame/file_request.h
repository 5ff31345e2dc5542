// What the system's file dialogs are asked for alike, to open or to save.
#pragma once

#include "base/editor_options.h"
#include "base/strings.h"
#include "framework/file_dialog.h"

namespace vexa {

// With the kinds of file that the options offer and in the style that they want.
FileDialogRequest FileRequest(HWND owner, TextId title, const EditorOptions& options);

}  // namespace vexa
