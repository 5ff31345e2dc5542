#include "regexp/regexp_find.h"

#include <algorithm>
#include <cstring>

#include "regexp/regexp.h"
#include "regexp/regexp_machine.h"
#include "regexp/regexp_plan.h"
#include "regexp/regexp_program.h"

namespace vexa::regexp {

namespace {

class Finder {
  public:
    // Matches begin at `from` or after it, and none before the position; for Start::Loop, no leading loop ends before
    // the one after it.
    Finder(const Plan& plan, const char* begin, const char* from, const char* end, const char* position)
        : plan_(plan), from_(from), end_(end), position_(position), machine_(plan, begin) {}

    std::optional<Match> find() {
        if (!search() || matchEnd_ == nullptr) return std::nullopt;
        return Match{start_, matchEnd_, machine_.saved()};
    }

  private:
    // These are true when the search is over: with a match, or because the machine stopped.
    bool search() {
        if (plan_.anchored) return tryAt(position_);
        if (!plan_.hints) return searchEverywhere();
        switch (hints().start) {
            case Start::Literal:
                return searchLiteral();
            case Start::Loop:
                return searchLoop();
            case Start::Filtered:
                break;
        }
        return searchFiltered();
    }

    const Hints& hints() const { return *plan_.hints; }

    bool searchEverywhere() {
        const ByteSet& first = plan_.nodes[plan_.start].first;
        for (const char* position = position_; position <= end_; ++position)
            if (first.has(*position) && tryAt(position)) return true;
        return false;
    }

    bool searchFiltered() {
        for (const char* position = position_; position != nullptr; position = nextPassing(position))
            if (tryAt(position)) return true;
        return false;
    }

    const char* nextPassing(const char* position) const {
        return position < end_ ? hints().filter.find(position + 1, end_) : nullptr;
    }

    bool searchLiteral() {
        for (const char* position = position_; position != nullptr;
             position = hints().leading.find({position + 1, end_}))
            if (tryAt(position)) return true;
        return false;
    }

    // A try has taken the loop to the end of its run and gone back from there, so further tries that would enter the
    // loop within the same run fail as well.
    bool searchLoop() {
        const ByteTable& table = hints().loop.table;
        const PlanNode& loop = plan_.nodes[hints().loop.node];
        const char* position = startOfLoop(position_, from_);
        for (;;) {
            while ((at(table, position) & (LeadingLoop::kFirst | LeadingLoop::kNul)) == 0)
                ++position;
            if ((at(table, position) & LeadingLoop::kFirst) == 0) return false;
            const char* loopStart = position + hints().loop.width;
            const char* loopEnd = loopStart;
            while ((at(table, loopEnd) & LeadingLoop::kRepeated) != 0)
                ++loopEnd;
            if (loopEnd - loopStart >= loop.minimum && tryLoop(position, loopEnd)) return true;
            position = loopEnd - hints().loop.width;
            if (*position++ == '\0') return false;
        }
    }

    // The first position from which a match could take the leading loop over the position.
    const char* startOfLoop(const char* position, const char* from) const {
        if (!hints().filter.active()) return position;
        while (position > from && (at(hints().loop.table, position - 1) & LeadingLoop::kRepeated) != 0)
            --position;
        return position - std::min<std::ptrdiff_t>(position - from, hints().loop.width);
    }

    bool tryLoop(const char* position, const char* loopEnd) {
        const PlanNode& loop = plan_.nodes[hints().loop.node];
        if (!loop.possessive) return tryAt(position);
        if (!plan_.nodes[loop.next].first.has(*loopEnd)) return false;
        return hints().loop.direct ? tryFrom(loop.next, loopEnd, position) : tryAt(position);
    }

    static Byte at(const ByteTable& table, const char* position) { return table[static_cast<Byte>(*position)]; }

    bool tryAt(const char* position) { return tryFrom(plan_.start, position, position); }

    // A match that starts at the position, whose part before the node's position has been found already.
    bool tryFrom(NodeIndex node, const char* nodePosition, const char* position) {
        start_ = position;
        matchEnd_ = machine_.match(node, nodePosition);
        return matchEnd_ != nullptr || machine_.stopped();
    }

    const Plan& plan_;
    const char* from_;
    const char* end_;
    const char* position_;
    Machine machine_;
    const char* start_ = nullptr;
    const char* matchEnd_ = nullptr;
};

// The first position in the rest of a line that is worth a try; null for one that cannot match. Most lines end here.
const char* FirstPosition(const Plan& plan, std::string_view rest) {
    const char* begin = rest.data();
    if (plan.anchored || !plan.hints) return begin;
    const Hints& hints = *plan.hints;
    if (!hints.required.empty() && hints.required.find(rest) == nullptr) return nullptr;
    if (hints.start == Start::Literal) return hints.leading.find(rest);
    return hints.filter.find(begin, begin + rest.size());
}

// Apart, so that no room is made for the machine in a line that cannot match.
[[gnu::noinline]] std::optional<Match> FindFrom(const Plan& plan, std::string_view line, std::size_t from,
                                                const char* position) {
    const char* begin = line.data();
    const void* nul = std::memchr(begin, '\0', line.size());
    const char* end = nul != nullptr ? static_cast<const char*>(nul) : begin + line.size();
    if (position > end) return std::nullopt;
    if (static_cast<std::size_t>(end - begin) >= UINT32_MAX) {
        ReportRegExpError(kOutOfSpace);
        return std::nullopt;
    }
    return Finder(plan, begin, begin + from, end, position).find();
}

}  // namespace

std::optional<Match> FindMatch(const Plan& plan, std::string_view line, std::size_t from) {
    if (from > line.size()) return std::nullopt;
    if (plan.anchored && (from > 0 || !plan.nodes[plan.start].first.has(line.data()[0]))) return std::nullopt;
    const char* position = FirstPosition(plan, line.substr(from));
    return position == nullptr ? std::nullopt : FindFrom(plan, line, from, position);
}

}  // namespace vexa::regexp
