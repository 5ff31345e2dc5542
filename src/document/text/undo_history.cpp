#include "document/text/undo_history.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace vexa {

void UndoHistory::makeRoomIn(Stack& stack) {
    constexpr std::size_t kFirstRoom = 64;
    if (stack.size() == stack.capacity()) stack.reserve(std::max(kFirstRoom, stack.size() * 2));
}

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
        makeRoomIn(to);
        if (direction == Direction::Undo) {
            from.back()->undo();
        } else {
            from.back()->perform();
        }
        to.push_back(std::move(from.back()));
        from.pop_back();
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
