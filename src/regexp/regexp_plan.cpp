#include "regexp/regexp_plan.h"

#include <utility>

#include "regexp/regexp_decode.h"

namespace vexa::regexp {

namespace {

constexpr ByteSet Inverted(ByteSet set) {
    set.invert();
    return set;
}

constexpr ByteSet kNoWordCharacters = Inverted(kWordCharacters);
constexpr ByteSet kEndOfSubject = SetOf({"\0", 1}, LetterCase::Sensitive);

// Calls visit with each node that may be entered from this one.
template <typename Visit>
void ForEachLink(const std::vector<PlanNode>& nodes, NodeIndex index, Visit visit) {
    const PlanNode* node = &nodes[index];
    if (node->step == Step::Choice) {
        for (; !node->lastChoice; node = &nodes[node->next])
            visit(node->operand);
        visit(node->operand);
    } else if (node->step != Step::End && node->step != Step::Broken) {
        visit(node->next);
    }
}

}  // namespace

Plan::Plan(std::span<const std::uint8_t> program, LetterCase programCase, Origin programOrigin, bool isAnchored,
           SearchTuning howToSearch)
    : letterCase(programCase), origin(programOrigin), anchored(isAnchored), tuning(howToSearch) {
    DecodedProgram decoded = DecodeProgram(program, programCase);
    start = decoded.start;
    nodes = std::move(decoded.nodes);
    if (origin == Origin::Compiler) findFirstSets();
    numberMemoRows();
}

void Plan::findHints() {
    if (origin == Origin::Compiler && !anchored) hints = std::make_unique<const Hints>(FindHints(*this));
}

// A set depends on those of the nodes that are linked to, which come later in the program. Only where loops lead back
// does it take further rounds until nothing changes.
void Plan::findFirstSets() {
    for (PlanNode& node : nodes)
        if (node.step != Step::Set) node.first = ByteSet();
    for (bool changed = true; changed;) {
        changed = false;
        for (std::size_t i = nodes.size(); i-- > 0;) {
            const ByteSet first = firstOf(nodes[i]);
            changed = changed || first != nodes[i].first;
            nodes[i].first = first;
        }
        changed = changed && hasLinksBack();
    }
    for (PlanNode& node : nodes)
        if (node.step == Step::Loop) node.possessive = (node.repeated & nodes[node.next].first).empty();
}

ByteSet Plan::firstOf(const PlanNode& node) const {
    ByteSet following = nodes[node.next].first;
    switch (node.step) {
        case Step::Set:
            return node.first;
        case Step::Literal:
            return SetOf(node.text.substr(0, 1), letterCase);
        case Step::LineEnd:
            return kEndOfSubject;
        case Step::LineStart:
        case Step::Save:
            return following;
        case Step::WordStart:
            return following & kWordCharacters;
        case Step::WordEnd:
            return following & kNoWordCharacters;
        case Step::Choice:
            return (node.lastChoice ? ByteSet() : following) |= nodes[node.operand].first;
        case Step::Loop:
            return (node.minimum > 0 ? ByteSet() : following) |= node.repeated;
        case Step::End:
        case Step::Broken:
            break;
    }
    return ByteSet::All();
}

bool Plan::hasLinksBack() const {
    bool found = false;
    for (NodeIndex i = 0; i < nodes.size(); ++i)
        ForEachLink(nodes, i, [&](NodeIndex target) { found = found || target <= i; });
    return found;
}

// A node that is entered from one node only is tried at most once at a position if that holds for the node it is
// entered from, so memory is spent on the others. A loop remembers where its continuation has been tried. In a program
// from elsewhere links may be of any kind, so all nodes count.
void Plan::numberMemoRows() {
    std::vector<unsigned> entries(nodes.size());
    std::vector<NodeIndex> pending;
    const auto enter = [&](NodeIndex target) {
        if (entries[target]++ == 0) pending.push_back(target);
    };
    enter(start);
    while (!pending.empty()) {
        const NodeIndex index = pending.back();
        pending.pop_back();
        ForEachLink(nodes, index, enter);
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (entries[i] > 1 || nodes[i].step == Step::Loop || origin == Origin::Elsewhere)
            nodes[i].memo = static_cast<int>(memoRows++);
    }
}

}  // namespace vexa::regexp
