#include "document/text/line_states.h"

#include <algorithm>
#include <utility>

#include "document/text/dyn_array.h"
#include "language/token_rules.h"

namespace vexa {

void LineStates::setRules(const TokenRules* rules) {
    rules_ = rules;
    for (std::int32_t i = lines_.lastUsed(LastUsed::Plain); i >= 0; --i) {
        if (TextLine* line = lines_.occupied(i)) line->effect = {};
    }
    reset();
}

void LineStates::reset() {
    checkpoints_.resize(1);
    touched_ = -1;
    hasGuessed_ = false;
}

void LineStates::forgetBelow(std::int32_t line) {
    const auto kept = static_cast<std::size_t>(line / kCheckpointStep + 1);
    checkpoints_.resize(std::min(checkpoints_.size(), kept));
}

void LineStates::catchUp() {
    forgetBelow(lines_.takeMovedFrom());
    TextLine* line = rules_ ? lines_.occupied(touched_) : nullptr;
    if (line && line->effect.refresh(*rules_, colouredText(*line))) forgetBelow(touched_);
}

void LineStates::touch(LineIndex line) {
    if (line.value == touched_) return;
    catchUp();
    touched_ = line.value;
}

std::string_view LineStates::colouredText(const TextLine& line) const {
    return line.text().substr(0, limits_.colouredLength);
}

// A vacant slot is an empty line.
LineState LineStates::findAfter(TextLine* line, LineState start) const {
    if (line == nullptr) return StateAfter(*rules_, {}, start);
    return line->effect.after(*rules_, colouredText(*line), start);
}

LineState LineStates::follow(LineState state, std::int32_t from, std::int32_t to) const {
    for (std::int32_t i = from; i < to; ++i) {
        TextLine* line = lines_.occupied(i);
        const LineState known = line ? line->effect.known(state) : LineState::Unknown;
        state = known != LineState::Unknown ? known : findAfter(line, state);
    }
    return state;
}

void LineStates::addCheckpoint() {
    const auto last = static_cast<std::int32_t>(checkpoints_.size() - 1) * kCheckpointStep;
    checkpoints_.push_back(follow(checkpoints_.back(), last, last + kCheckpointStep));
}

LineState LineStates::startOf(LineIndex line) {
    if (rules_ == nullptr || !rules_->linesHaveStates()) return LineState::Outside;
    catchUp();
    // Below the last line one empty line can still end a quote; further ones change nothing.
    const std::int32_t target = std::min(line.value, lines_.lastUsed(LastUsed::Plain) + 2);
    const auto checkpoint = static_cast<std::size_t>(target / kCheckpointStep);
    if (checkpoint > checkpoints_.size() + static_cast<std::size_t>(limits_.commentLines / kCheckpointStep)) {
        hasGuessed_ = true;
        return LineState::Outside;
    }
    while (checkpoints_.size() <= checkpoint)
        addCheckpoint();
    return follow(checkpoints_[checkpoint], static_cast<std::int32_t>(checkpoint) * kCheckpointStep, target);
}

bool LineStates::isComplete() const {
    const std::int32_t last = lines_.lastUsed(LastUsed::Plain);
    return rules_ == nullptr || !rules_->linesHaveStates() ||
           static_cast<std::int32_t>(checkpoints_.size()) * kCheckpointStep > last;
}

bool LineStates::advance(std::int32_t lines) {
    catchUp();
    for (; lines > 0 && !isComplete(); lines -= kCheckpointStep)
        addCheckpoint();
    return !isComplete();
}

bool LineStates::takeGuessed() {
    return isComplete() && std::exchange(hasGuessed_, false);
}

}  // namespace vexa
