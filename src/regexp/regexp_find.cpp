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
    // Matches begin at `from` or after it, and none before the place; for Start::Loop, no leading loop ends before the
    // one after it.
    Finder(const Plan& plan, const char* begin, const char* from, const char* end, const char* place)
        : plan_(plan), from_(from), end_(end), place_(place), machine_(plan, begin) {}

    std::optional<Match> find() {
        if (!search() || matchEnd_ == nullptr) return std::nullopt;
        return Match{start_, matchEnd_, machine_.saved()};
    }

  private:
    // These are true when the search is over: with a match, or because the machine stopped.
    bool search() {
        if (plan_.anchored) return tryAt(place_);
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
        for (const char* place = place_; place <= end_; ++place)
            if (first.has(*place) && tryAt(place)) return true;
        return false;
    }

    bool searchFiltered() {
        for (const char* place = place_; place != nullptr; place = nextPassing(place))
            if (tryAt(place)) return true;
        return false;
    }

    const char* nextPassing(const char* place) const {
        return place < end_ ? hints().filter.find(place + 1, end_) : nullptr;
    }

    bool searchLiteral() {
        for (const char* place = place_; place != nullptr; place = hints().leading.find({place + 1, end_}))
            if (tryAt(place)) return true;
        return false;
    }

    // A try has taken the loop to the end of its run and gone back from there, so further tries that would enter the
    // loop within the same run fail as well.
    bool searchLoop() {
        const ByteTable& table = hints().loop.table;
        const PlanNode& loop = plan_.nodes[hints().loop.node];
        const char* place = startOfLoop(place_, from_);
        for (;;) {
            while ((at(table, place) & (LeadingLoop::kFirst | LeadingLoop::kNul)) == 0)
                ++place;
            if ((at(table, place) & LeadingLoop::kFirst) == 0) return false;
            const char* loopStart = place + hints().loop.width;
            const char* loopEnd = loopStart;
            while ((at(table, loopEnd) & LeadingLoop::kRepeated) != 0)
                ++loopEnd;
            if (loopEnd - loopStart >= loop.minimum && tryLoop(place, loopEnd)) return true;
            place = loopEnd - hints().loop.width;
            if (*place++ == '\0') return false;
        }
    }

    // The first place from which a match could take the leading loop over the place.
    const char* startOfLoop(const char* place, const char* from) const {
        if (!hints().filter.active()) return place;
        while (place > from && (at(hints().loop.table, place - 1) & LeadingLoop::kRepeated) != 0)
            --place;
        return place - std::min<std::ptrdiff_t>(place - from, hints().loop.width);
    }

    bool tryLoop(const char* place, const char* loopEnd) {
        const PlanNode& loop = plan_.nodes[hints().loop.node];
        if (!loop.possessive) return tryAt(place);
        if (!plan_.nodes[loop.next].first.has(*loopEnd)) return false;
        return hints().loop.direct ? tryFrom(loop.next, loopEnd, place) : tryAt(place);
    }

    static Byte at(const ByteTable& table, const char* place) { return table[static_cast<Byte>(*place)]; }

    bool tryAt(const char* place) { return tryFrom(plan_.start, place, place); }

    // A match that starts at the place, whose part before the node's place has been found already.
    bool tryFrom(NodeIndex node, const char* nodePlace, const char* place) {
        start_ = place;
        matchEnd_ = machine_.match(node, nodePlace);
        return matchEnd_ != nullptr || machine_.stopped();
    }

    const Plan& plan_;
    const char* from_;
    const char* end_;
    const char* place_;
    Machine machine_;
    const char* start_ = nullptr;
    const char* matchEnd_ = nullptr;
};

// The first place in the rest of a line that is worth a try; null for one that cannot match. Most lines end here.
const char* FirstPlace(const Plan& plan, std::string_view rest) {
    const char* begin = rest.data();
    if (plan.anchored || !plan.hints) return begin;
    const Hints& hints = *plan.hints;
    if (!hints.required.empty() && hints.required.find(rest) == nullptr) return nullptr;
    if (hints.start == Start::Literal) return hints.leading.find(rest);
    return hints.filter.find(begin, begin + rest.size());
}

// Apart, so that no room is made for the machine in a line whose first character tells enough.
[[gnu::noinline]] std::optional<Match> FindInRest(const Plan& plan, std::string_view line, std::size_t from) {
    const char* begin = line.data();
    const char* place = FirstPlace(plan, line.substr(from));
    if (place == nullptr) return std::nullopt;
    const void* nul = std::memchr(begin, '\0', line.size());
    const char* end = nul != nullptr ? static_cast<const char*>(nul) : begin + line.size();
    if (place > end) return std::nullopt;
    if (static_cast<std::size_t>(end - begin) >= UINT32_MAX) {
        ReportRegExpError(kOutOfSpace);
        return std::nullopt;
    }
    return Finder(plan, begin, begin + from, end, place).find();
}

}  // namespace

std::optional<Match> FindMatch(const Plan& plan, std::string_view line, std::size_t from) {
    if (from > line.size()) return std::nullopt;
    if (plan.anchored && (from > 0 || !plan.nodes[plan.start].first.has(line.data()[0]))) return std::nullopt;
    return FindInRest(plan, line, from);
}

}  // namespace vexa::regexp
