// What the movements and edits of one view work with.
#pragma once

#include "base/editor_options.h"
#include "base/notices.h"
#include "document/text/text_document.h"
#include "document/view/clipboard_store.h"
#include "document/view/line_editor.h"
#include "document/view/marker.h"
#include "document/view/viewport.h"
#include "language/electric_list.h"

namespace vexa {

struct Editing {
    Editing(TextDocument& edited, EditorOptions& editorOptions, Notices& told)
        : document(edited),
          options(editorOptions),
          notices(told),
          editor(edited),
          marker(edited, editor),
          viewport(edited) {}
    Editing(const Editing&) = delete;
    Editing& operator=(const Editing&) = delete;

    TextDocument& document;
    EditorOptions& options;
    Notices& notices;
    LineEditor editor;
    Marker marker;
    Viewport viewport;
    ClipboardStore* clipboard = nullptr;  // without one, cutting, copying and pasting do nothing
    ElectricWords* electric = nullptr;    // the words that a blank typed in insert mode expands; none without them
    int pressesInARow = 0;                // of the last key: Home and End go further each time
};

// A movement or an edit. Its caller closes the undo group and brings the caret into sight.
using ViewAction = void (*)(Editing&);

}  // namespace vexa
