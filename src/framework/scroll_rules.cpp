#include "framework/scroll_rules.h"

#include <algorithm>
#include <iterator>

namespace vexa {
namespace {

constexpr std::int32_t kNotch = 120;

using Target = std::int32_t (*)(const ScrollState& state, std::int32_t track);

// In the order of the system's numbers: line up and down, page up and down, thumb dropped and dragged, both ends.
constexpr Target kTargets[] = {
    [](const ScrollState& s, std::int32_t) { return s.position - s.step; },
    [](const ScrollState& s, std::int32_t) { return s.position + s.step; },
    [](const ScrollState& s, std::int32_t) { return s.position - std::max(s.page - s.step, s.step); },
    [](const ScrollState& s, std::int32_t) { return s.position + std::max(s.page - s.step, s.step); },
    [](const ScrollState&, std::int32_t track) { return track; },
    [](const ScrollState&, std::int32_t track) { return track; },
    [](const ScrollState&, std::int32_t) { return 0; },
    [](const ScrollState& s, std::int32_t) { return s.last - s.page + 1; },
};

// A thumb's start and length in halves of a pixel; that of a bar with nothing to scroll fills it.
struct Thumb {
    std::int64_t start;
    std::int64_t length;
    bool operator==(const Thumb&) const = default;
};

Thumb ThumbOf(const ScrollState& state, std::int32_t pixels) {
    const std::int64_t halves = std::int64_t{2} * pixels;
    const std::int64_t all = state.last + std::int64_t{1};
    if (state.page >= all) return {0, halves};
    return {halves * state.position / all, halves * state.page / all};
}

}  // namespace

ScrollState Shown(ScrollState state) {
    state.last = std::max(state.last, state.position + state.page - 1);
    return state;
}

bool ThumbMoves(const ScrollState& from, const ScrollState& to, std::int32_t pixels) {
    return ThumbOf(from, pixels) != ThumbOf(to, pixels);
}

std::int32_t ScrollTarget(unsigned request, const ScrollState& state, std::int32_t track) {
    if (request >= std::size(kTargets)) return state.position;
    const bool scrollsOn = request == 1 || request == 3;
    const std::int32_t end = std::max(state.last - state.page + 1, scrollsOn ? state.position : 0);
    return std::clamp(kTargets[request](state, track), 0, std::max(end, 0));
}

std::int32_t WheelSteps::add(std::int32_t delta, std::int32_t unitsPerNotch) {
    const std::int32_t steps = -delta * unitsPerNotch;
    const bool turnsBack = (rest_ < 0 && steps > 0) || (rest_ > 0 && steps < 0);
    rest_ = steps + (turnsBack ? 0 : rest_);
    const std::int32_t units = rest_ / kNotch;
    rest_ -= units * kNotch;
    return units;
}

}  // namespace vexa
