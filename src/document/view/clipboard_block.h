// Copying, cutting and pasting blocks of a document: whole lines, a stream of characters, or a column.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/strings.h"
#include "document/view/clipboard_store.h"
#include "document/view/line_editor.h"
#include "document/view/marker.h"

namespace vexa {

// Marked blocks whose end line is further below their start line than this are not copied, unless the
// habit of a large clipboard is chosen.
inline constexpr std::int32_t kClipboardLineLimit = 1000;

// On the clipboard every line ends with CR LF, but for a stream within one line, which is no whole line. The caller
// closes the undo group.
class ClipboardBlock {
  public:
    ClipboardBlock(TextDocument& document, LineEditor& editor, Marker& marker, ClipboardStore& store)
        : document_(document), editor_(editor), marker_(marker), store_(store) {}

    // The marked area, whose marking is then taken away unless the habit is to keep it, or without one the current
    // line. False when the block is too large or the clipboard cannot be had; the user is told, and nothing is changed.
    bool copy();
    // The same, and the block is deleted.
    bool cut();
    // Replaces a marked area. Without a text on the clipboard nothing happens.
    void paste();

  private:
    // The text between line ends. A last piece without a line end counts only when it is the only one.
    struct Pieces {
        std::vector<std::string_view> texts;
        bool haveLineEnds = false;
        bool endWithText = false;  // the line end of the last piece is the end of the text
    };
    static Pieces split(std::string_view text);

    bool put(TextId tooLarge);
    std::string markedText() const;
    void deleteMarkedForPaste();
    void pasteLines(const Pieces& pieces);
    void pasteColumn(const Pieces& pieces);
    void pasteStream(const Pieces& pieces);
    void insertLines(const std::vector<std::string_view>& texts, std::size_t first, std::size_t last);
    CharColumn typeAt(std::string_view text);
    void splitAt(CharColumn column);

    TextDocument& document_;
    LineEditor& editor_;
    Marker& marker_;
    ClipboardStore& store_;
};

}  // namespace vexa
