#include "regexp/regexp_decode.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "regexp/regexp_program.h"

namespace vexa::regexp {

namespace {

class Decoder {
  public:
    Decoder(std::span<const std::uint8_t> program, LetterCase letterCase)
        : program_(program), letterCase_(letterCase), indices_(program.size()) {}

    DecodedProgram decode();

  private:
    // The first node is where links lead that lead nowhere.
    static constexpr NodeIndex kNowhere = 0;
    static constexpr NodeIndex kUnseen = kNowhere;
    static constexpr NodeIndex kSeen = 0xFFFF;

    void findNodes();
    void see(std::optional<int> offset);

    bool isNode(int offset) const {
        return offset >= kFirstNode && static_cast<std::size_t>(offset) + kNodeHeader <= program_.size();
    }
    std::uint8_t at(int offset) const { return program_[static_cast<std::size_t>(offset)]; }
    std::optional<int> nextOf(int offset) const;
    std::optional<int> operandNode(int offset) const;
    std::optional<std::string_view> operandText(int offset) const;
    bool isBranch(std::optional<int> offset) const { return offset && at(*offset) == BRANCH; }

    std::optional<int> skipEmpty(std::optional<int> offset) const;
    NodeIndex linkTo(std::optional<int> offset) const;

    PlanNode decodeNode(int offset) const;
    PlanNode decodeBranch(int offset) const;
    PlanNode decodeLiteral(int offset) const;
    PlanNode decodeLoop(int offset) const;
    PlanNode decodeSave(int opcode) const;
    std::optional<ByteSet> characterSet(int offset) const;
    std::optional<ByteSet> repeatedSet(int offset) const;
    static PlanNode plainNode(Step step) {
        PlanNode node;
        node.step = step;
        return node;
    }
    static PlanNode brokenNode(const char* message) {
        PlanNode node;
        node.text = message;
        return node;
    }
    static PlanNode setNode(const ByteSet& set, std::string_view text = {}) {
        PlanNode node = plainNode(Step::Set);
        node.first = set;
        node.text = text;
        return node;
    }

    std::span<const std::uint8_t> program_;
    LetterCase letterCase_;
    std::vector<NodeIndex> indices_;  // by offset
    std::vector<int> offsets_;        // of all nodes
};

DecodedProgram Decoder::decode() {
    findNodes();
    std::vector<PlanNode> nodes;
    nodes.reserve(offsets_.size() + 1);
    nodes.push_back(brokenNode(kCorruptedPointers));
    for (const int offset : offsets_)
        nodes.push_back(decodeNode(offset));
    return {linkTo(isNode(kFirstNode) ? std::optional(kFirstNode) : std::nullopt), std::move(nodes)};
}

// All that can be reached, numbered in the order of the program.
void Decoder::findNodes() {
    constexpr std::size_t kUsualNodes = 32;
    offsets_.reserve(kUsualNodes);
    if (isNode(kFirstNode)) see(kFirstNode);
    for (std::size_t i = 0; i < offsets_.size(); ++i) {
        const int offset = offsets_[i];
        if (at(offset) == END) continue;
        if (at(offset) == BRANCH) see(operandNode(offset));
        see(nextOf(offset));
    }
    std::ranges::sort(offsets_);
    NodeIndex index = kNowhere;
    for (const int offset : offsets_)
        indices_[static_cast<std::size_t>(offset)] = ++index;
}

void Decoder::see(std::optional<int> offset) {
    if (!offset) return;
    NodeIndex& index = indices_[static_cast<std::size_t>(*offset)];
    if (index != kUnseen) return;
    index = kSeen;
    offsets_.push_back(*offset);
}

std::optional<int> Decoder::nextOf(int offset) const {
    const int distance = at(offset + 1) << 8 | at(offset + 2);
    const int next = at(offset) == BACK ? offset - distance : offset + distance;
    return distance != 0 && isNode(next) ? std::optional(next) : std::nullopt;
}

std::optional<int> Decoder::operandNode(int offset) const {
    const int operand = offset + kNodeHeader;
    return isNode(operand) ? std::optional(operand) : std::nullopt;
}

// None when no NUL ends it inside the program.
std::optional<std::string_view> Decoder::operandText(int offset) const {
    const auto operand = program_.subspan(static_cast<std::size_t>(offset) + kNodeHeader);
    const auto end = std::ranges::find(operand, std::uint8_t{0});
    if (end == operand.end()) return std::nullopt;
    return std::string_view(reinterpret_cast<const char*>(operand.data()),
                            static_cast<std::size_t>(end - operand.begin()));
}

// The first node from here on that matches characters or decides something; none also for a ring of others.
std::optional<int> Decoder::skipEmpty(std::optional<int> offset) const {
    for (std::size_t steps = 0; offset && steps < program_.size(); ++steps) {
        const int opcode = at(*offset);
        const std::optional<int> next = nextOf(*offset);
        if (opcode == NOTHING || opcode == BACK) {
            offset = next;
        } else if (opcode == BRANCH && next && !isBranch(next)) {
            offset = operandNode(*offset);
        } else {
            return opcode == BRANCH && !next ? std::nullopt : offset;
        }
    }
    return std::nullopt;
}

NodeIndex Decoder::linkTo(std::optional<int> offset) const {
    const std::optional<int> target = skipEmpty(offset);
    return target ? indices_[static_cast<std::size_t>(*target)] : kNowhere;
}

PlanNode Decoder::decodeNode(int offset) const {
    const auto linked = [&](PlanNode node) {
        node.next = linkTo(nextOf(offset));
        return node;
    };
    const int opcode = at(offset);
    switch (opcode) {
        case END:
            return plainNode(Step::End);
        case BOL:
            return linked(plainNode(Step::LineStart));
        case EOL:
            return linked(plainNode(Step::LineEnd));
        case WORDA:
            return linked(plainNode(Step::WordStart));
        case WORDZ:
            return linked(plainNode(Step::WordEnd));
        case BRANCH:
            return decodeBranch(offset);
        case EXACTLY:
            return linked(decodeLiteral(offset));
        case STAR:
        case PLUS:
            return linked(decodeLoop(offset));
        case NOTHING:
        case BACK:
            return brokenNode(kCorruptedPointers);  // every link skips it
        default:
            break;
    }
    if (const std::optional<ByteSet> set = characterSet(offset)) return linked(setNode(*set));
    return linked(decodeSave(opcode));
}

PlanNode Decoder::decodeBranch(int offset) const {
    PlanNode node = plainNode(Step::Choice);
    node.operand = linkTo(operandNode(offset));
    const std::optional<int> next = nextOf(offset);
    node.lastChoice = !isBranch(next);
    node.next = node.lastChoice ? linkTo(next) : indices_[static_cast<std::size_t>(*next)];
    return node;
}

PlanNode Decoder::decodeLiteral(int offset) const {
    const std::optional<std::string_view> text = operandText(offset);
    if (!text) return brokenNode(kMemoryCorruption);
    // The empty literal is one that equals the NUL at the end.
    if (text->empty()) return plainNode(Step::LineEnd);
    if (text->size() == 1) return setNode(SetOf(*text, letterCase_), *text);
    PlanNode node = plainNode(Step::Literal);
    node.text = *text;
    return node;
}

PlanNode Decoder::decodeLoop(int offset) const {
    PlanNode node = plainNode(Step::Loop);
    node.minimum = at(offset) == PLUS ? 1 : 0;
    const std::optional<int> operand = operandNode(offset);
    if (!operand) return brokenNode(kMemoryCorruption);
    const std::optional<ByteSet> repeated = repeatedSet(*operand);
    node.foulOperand = !repeated;
    node.repeated = repeated.value_or(ByteSet());
    return node;
}

PlanNode Decoder::decodeSave(int opcode) const {
    PlanNode node = plainNode(Step::Save);
    if (opcode > OPEN && opcode <= OPEN + kGroupLimit) {
        node.slot = static_cast<std::uint8_t>(opcode - OPEN);
    } else if (opcode > CLOSE && opcode <= CLOSE + kGroupLimit) {
        node.slot = static_cast<std::uint8_t>(opcode - CLOSE + kGroupLimit + 1);
    } else {
        return brokenNode(kMemoryCorruption);
    }
    return node;
}

// What ANY, ANYOF or ANYBUT matches; none for other nodes and for a list without an end.
std::optional<ByteSet> Decoder::characterSet(int offset) const {
    const int opcode = at(offset);
    ByteSet set;
    if (opcode == ANYOF || opcode == ANYBUT) {
        const std::optional<std::string_view> list = operandText(offset);
        if (!list) return std::nullopt;
        set = SetOf(*list, letterCase_);
    } else if (opcode != ANY) {
        return std::nullopt;
    }
    if (opcode != ANYOF) set.invert();
    set.remove('\0');
    return set;
}

// What a loop counts. A literal is counted as it is written, whatever the case mode.
std::optional<ByteSet> Decoder::repeatedSet(int offset) const {
    if (at(offset) != EXACTLY) return characterSet(offset);
    const std::string_view text = operandText(offset).value_or(std::string_view());
    return SetOf(text.substr(0, 1), LetterCase::Sensitive);
}

}  // namespace

DecodedProgram DecodeProgram(std::span<const std::uint8_t> program, LetterCase letterCase) {
    return Decoder(program, letterCase).decode();
}

}  // namespace vexa::regexp
