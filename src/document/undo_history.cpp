#include "document/undo_history.h"

#include <optional>
#include <utility>

namespace vexa {

void UndoHistory::record(std::unique_ptr<EditAction> action) {
    action->setGroup(group_);
    undoStack_.push_back(std::move(action));
}

bool UndoHistory::undo() {
    return moveGroup(undoStack_, redoStack_, Direction::Undo);
}

bool UndoHistory::redo() {
    return moveGroup(redoStack_, undoStack_, Direction::Redo);
}

bool UndoHistory::moveGroup(Stack& from, Stack& to, Direction direction) {
    if (from.empty()) return false;
    const std::uint32_t group = from.back()->group();
    std::optional<BusyCursor> busy;
    for (int count = 1; !from.empty() && from.back()->group() == group; ++count) {
        to.push_back(std::move(from.back()));
        from.pop_back();
        if (direction == Direction::Undo) {
            to.back()->undo();
        } else {
            to.back()->perform();
        }
        if (count == kBusySteps) busy.emplace(notices_);
    }
    return true;
}

void UndoHistory::clear() {
    undoStack_.clear();
    redoStack_.clear();
    group_ = 0;
}

}  // namespace vexa
