#include "regexp/regexp_hints.h"

#include <utility>
#include <vector>

#include "regexp/regexp_plan.h"

namespace vexa::regexp {

namespace {

class HintFinder {
  public:
    HintFinder(const Plan& plan, Subject subject) : plan_(plan), subject_(subject) {}

    Hints find() {
        const std::string_view leading = leadingLiteral();
        const std::string_view required = requiredLiteral();
        if (required != leading) hints_.required = PlainSearch(required, plan_.letterCase, plan_.tuning.most);
        if (!leading.empty()) {
            hints_.leading = PlainSearch(leading, plan_.letterCase, plan_.tuning.most);
            hints_.start = Start::Literal;
        } else if (findLeadingLoop()) {
            hints_.start = Start::Loop;
            filterLoopEnds();
        } else {
            filterStarts();
        }
        return std::move(hints_);
    }

  private:
    // A position in the pattern that lies a known number of characters after the start of a match.
    struct Position {
        NodeIndex node;
        std::size_t inText = 0;  // characters of the node's literal before the position
    };

    const PlanNode& node(NodeIndex index) const { return plan_.nodes[index]; }

    // The first node from here on that is not one of those that match the empty string at certain positions.
    NodeIndex skipAssertions(NodeIndex index) const {
        for (;; index = node(index).next) {
            switch (node(index).step) {
                case Step::Save:
                case Step::LineStart:
                case Step::WordStart:
                case Step::WordEnd:
                    break;
                default:
                    return index;
            }
        }
    }

    std::string_view leadingLiteral() const { return node(skipAssertions(plan_.start)).text; }

    // The longest literal on the way that all matches take.
    std::string_view requiredLiteral() const {
        std::string_view longest;
        for (NodeIndex index = plan_.start; node(index).step != Step::End;) {
            if (node(index).text.size() > longest.size()) longest = node(index).text;
            if (node(index).step == Step::Choice) index = lastOfChoice(index);
            index = node(index).next;
        }
        return longest;
    }

    NodeIndex lastOfChoice(NodeIndex index) const {
        while (!node(index).lastChoice)
            index = node(index).next;
        return index;
    }

    bool findLeadingLoop() {
        NodeIndex index = plan_.start;
        LeadingLoop& loop = hints_.loop;
        loop.direct = node(index).step != Step::Save;
        while (node(index).step == Step::Save)
            index = node(index).next;
        if (node(index).step == Step::Set) {
            loop.width = 1;
            index = node(index).next;
        }
        if (node(index).step != Step::Loop) return false;
        loop.node = index;
        node(plan_.start).first.mark(loop.table, LeadingLoop::kFirst);
        node(index).repeated.mark(loop.table, LeadingLoop::kRepeated);
        loop.table[0] |= LeadingLoop::kNul;
        return true;
    }

    // Where a loop can only end before characters that it does not repeat, those and the one before are what is looked
    // for: one of the loop, or the one in front of it.
    void filterLoopEnds() {
        const LeadingLoop& leading = hints_.loop;
        const PlanNode& loop = node(leading.node);
        if (!loop.possessive || leading.width + loop.minimum == 0) return;
        ByteSet last = loop.repeated;
        if (loop.minimum == 0) last |= node(plan_.start).first;
        const ByteSet next = withLineEnds(node(loop.next).first);
        hints_.filter = PositionFilter({{withLineEnds(last), next, ByteSet::All()}}, plan_.tuning.most);
    }

    void filterStarts() {
        if (node(plan_.start).first == ByteSet::All()) return;
        NodeIndex index = plan_.start;
        while (node(index).step == Step::Save)
            index = node(index).next;
        std::vector<PositionFilter::Alternative> alternatives;
        for (NodeIndex i = index; node(i).step == Step::Choice; i = node(i).next) {
            alternatives.push_back(beginning(node(i).operand));
            if (node(i).lastChoice) break;
        }
        if (alternatives.empty() || alternatives.size() > PositionFilter::kMostAlternatives)
            alternatives = {beginning(index)};
        hints_.filter = PositionFilter(alternatives, plan_.tuning.most);
    }

    // The sets of the first characters from a node on, as far as all matches have the same lengths.
    PositionFilter::Alternative beginning(NodeIndex from) const {
        PositionFilter::Alternative sets;
        Position position{from};
        bool known = true;
        for (ByteSet& set : sets) {
            set = known ? withLineEnds(possibleAt(position)) : ByteSet::All();
            known = known && advance(position);
        }
        return sets;
    }

    // What stands for the end of the subject.
    ByteSet withLineEnds(ByteSet set) const {
        if (subject_ == Subject::Lines && set.has('\0')) {
            set.add('\r');
            set.add('\n');
        }
        return set;
    }

    ByteSet possibleAt(const Position& position) const {
        if (position.inText == 0) return node(position.node).first;
        return SetOf(node(position.node).text.substr(position.inText, 1), plan_.letterCase);
    }

    // False where matches of different lengths are possible.
    bool advance(Position& position) const {
        if (position.inText == 0) position.node = skipAssertions(position.node);
        const PlanNode& current = node(position.node);
        if (current.step == Step::Literal && ++position.inText < current.text.size()) return true;
        if (current.step != Step::Literal && current.step != Step::Set) return false;
        position = {current.next};
        return true;
    }

    const Plan& plan_;
    const Subject subject_;
    Hints hints_;
};

}  // namespace

Hints FindHints(const Plan& plan, Subject subject) {
    return HintFinder(plan, subject).find();
}

}  // namespace vexa::regexp
