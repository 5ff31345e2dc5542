// Marking an area from the keyboard and the mouse, and deleting it.
#pragma once

#include "document/text/marked_area.h"
#include "document/view/line_editor.h"

namespace vexa {

// A marking grows from its anchor to the cursor. While it is being extended, every movement of the cursor carries it
// along.
class Marker {
  public:
    Marker(TextDocument& document, LineEditor& editor) : document_(document), editor_(editor) {}

    // Begins a marking at the cursor, to be extended by the movements that follow; a marking of that mode that is being
    // extended is ended instead, and stays.
    void toggle(MarkMode mode);
    // Prepares for a movement that marks: the anchor is the cursor unless an area is marked already, in whatever mode.
    void begin(MarkMode mode);
    // From now on the marking grows from `anchor`.
    void setAnchor(MarkPoint anchor) { anchor_ = anchor; }
    // The cursor has moved: carries the marking along, or takes a finished one away.
    void cursorMoved(bool extending);
    // Shows the area from the anchor to the cursor as marked.
    void extend();
    void markAll();
    void clear();
    bool isActive() const { return document_.marked().active; }
    void stopExtending() { extending_ = false; }

    // Deletes what is marked and takes the marking away. The cursor ends on the area's first line. False without a
    // marking.
    bool deleteMarked();
    // Moves the text of marked whole lines one tab stop right or left; false when no whole lines are marked.
    bool shiftLines(bool right);

  private:
    MarkPoint cursor() const { return {document_.currentLine(), document_.displayColumn()}; }
    LineIndex lastMarkedLine() const;
    void start(MarkMode mode);
    void deleteLines();
    void deleteStream();
    void deleteStreamInLine();
    void deleteColumn();
    void outdent();

    TextDocument& document_;
    LineEditor& editor_;
    MarkPoint anchor_;
    bool extending_ = false;
};

}  // namespace vexa
