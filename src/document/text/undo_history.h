// The recorded steps of a document, to be undone and done again by whole commands.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "base/notices.h"
#include "document/text/edit_action.h"

namespace vexa {

// Two stacks without a limit. Recording does not empty the redo stack: what was undone can still be done again after
// new edits, on the text as it then is.
class UndoHistory {
  public:
    // Steps undone or redone in one go from which on the busy cursor is shown.
    static constexpr int kBusySteps = 50;

    explicit UndoHistory(Notices& notices) : notices_(notices) {}

    // To be called before an action is performed: recording it finds the room that this makes. What has been done but
    // could not be recorded, no undo would take back. std::bad_alloc, and nothing is changed.
    void makeRoom() { makeRoomIn(undoStack_); }
    // Takes an action that has been performed into the present group.
    void record(std::unique_ptr<EditAction> action);
    // Called once after each command or keystroke.
    void nextGroup() { ++group_; }
    // Undo or redo one group; false when there is none. Where memory runs out in the middle, the steps that are done
    // are on the other side, and the rest of the group is where it was.
    bool undo();
    bool redo();
    void clear();
    bool isEmpty() const { return undoStack_.empty(); }
    std::uint32_t group() const { return group_; }

  private:
    using Stack = std::vector<std::unique_ptr<EditAction>>;
    enum class Direction { Undo, Redo };
    static void makeRoomIn(Stack& stack);
    bool moveGroup(Stack& from, Stack& to, Direction direction);

    Notices& notices_;
    std::uint32_t group_ = 0;
    Stack undoStack_;
    Stack redoStack_;
};

}  // namespace vexa
