#include "document/text/comment_state.h"

#include <algorithm>
#include <utility>

#include "document/text/dyn_array.h"
#include "language/block_comment.h"

namespace vexa {

void CommentState::setRules(const TokenRules* rules) {
    rules_ = rules;
    for (std::int32_t i = lines_.lastUsed(LastUsed::Plain); i >= 0; --i) {
        if (TextLine* line = lines_.occupied(i)) line->forgetCommentEffect();
    }
    reset();
}

void CommentState::reset() {
    checkpoints_.resize(1);
    touched_ = -1;
    hasGuessed_ = false;
}

void CommentState::forgetBelow(std::int32_t line) {
    const auto kept = static_cast<std::size_t>(line / kCheckpointStep + 1);
    checkpoints_.resize(std::min(checkpoints_.size(), kept));
}

// True when the line does something else to a comment than was last known.
bool CommentState::refreshEffect(TextLine& line) const {
    if (line.isCommentEffectKnown()) return false;
    const CommentEffect old = line.commentEffect();
    const CommentEffect now = CommentEffectOf(*rules_, line.text().substr(0, limits_.colouredLength));
    line.setCommentEffect(now);
    return now != old;
}

void CommentState::catchUp() {
    forgetBelow(lines_.takeMovedFrom());
    TextLine* line = rules_ ? lines_.occupied(touched_) : nullptr;
    if (line && refreshEffect(*line)) forgetBelow(touched_);
}

void CommentState::touch(LineIndex line) {
    if (line.value == touched_) return;
    catchUp();
    touched_ = line.value;
}

// A vacant slot, which is an empty line, leaves everything as it is.
bool CommentState::after(std::int32_t index, bool startsInside) const {
    TextLine* line = lines_.occupied(index);
    if (line == nullptr) return startsInside;
    refreshEffect(*line);
    return line->commentEffect().after(startsInside);
}

void CommentState::addCheckpoint() {
    const auto last = static_cast<std::int32_t>(checkpoints_.size() - 1) * kCheckpointStep;
    bool inside = checkpoints_.back();
    for (std::int32_t i = last; i < last + kCheckpointStep; ++i)
        inside = after(i, inside);
    checkpoints_.push_back(inside);
}

bool CommentState::startsInside(LineIndex line) {
    if (rules_ == nullptr || !rules_->hasBlockComments()) return false;
    catchUp();
    const std::int32_t target = std::min(line.value, lines_.lastUsed(LastUsed::Plain) + 1);
    const auto checkpoint = static_cast<std::size_t>(target / kCheckpointStep);
    if (checkpoint > checkpoints_.size() + static_cast<std::size_t>(limits_.commentLines / kCheckpointStep)) {
        hasGuessed_ = true;
        return false;
    }
    while (checkpoints_.size() <= checkpoint)
        addCheckpoint();
    bool inside = checkpoints_[checkpoint];
    for (std::int32_t i = static_cast<std::int32_t>(checkpoint) * kCheckpointStep; i < target; ++i)
        inside = after(i, inside);
    return inside;
}

bool CommentState::isComplete() const {
    const std::int32_t last = lines_.lastUsed(LastUsed::Plain);
    return rules_ == nullptr || !rules_->hasBlockComments() ||
           static_cast<std::int32_t>(checkpoints_.size()) * kCheckpointStep > last;
}

bool CommentState::advance(std::int32_t lines) {
    catchUp();
    for (; lines > 0 && !isComplete(); lines -= kCheckpointStep)
        addCheckpoint();
    return !isComplete();
}

bool CommentState::takeGuessed() {
    return isComplete() && std::exchange(hasGuessed_, false);
}

}  // namespace vexa
