// A program made ready for execution in one letter case: decoded nodes with direct links and character sets, and hints
// where a match can begin.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "regexp/plain_search.h"
#include "regexp/regexp_byte_set.h"
#include "regexp/regexp_hints.h"

namespace vexa::regexp {

enum class Step : std::uint8_t {
    End,
    LineStart,
    LineEnd,
    Set,      // one character of `first`
    Literal,  // `text`
    Choice,   // the nodes at `operand`, else the Choice at `next` unless this is the last
    Loop,     // `minimum` or more characters of `repeated`, as many as possible first
    WordStart,
    WordEnd,
    Save,   // keeps the position as number `slot`
    Broken  // the program is damaged here; `text` is the message, which a NUL ends
};

struct PlanNode {
    static constexpr int kNoMemo = -1;

    Step step = Step::Broken;
    std::uint8_t slot = 0;  // Save: 0 to 9 for starts, 10 to 19 for ends
    std::uint8_t minimum = 0;
    bool lastChoice = false;
    // Loop: what follows never begins with a character of the loop, so only the most repetitions can lead to a match.
    bool possessive = false;
    // Loop: the operand is nothing that can be counted. That is reported, and it counts as absent.
    bool foulOperand = false;
    NodeIndex next = 0;              // of the last Choice: where all alternatives lead
    NodeIndex operand = 0;           // Choice
    int memo = kNoMemo;              // the row of the machine's memo that belongs to this node
    std::string_view text;           // also of a Set that a literal of one character became
    ByteSet first = ByteSet::All();  // with what a match from here may begin; NUL stands for the end of the subject
    ByteSet repeated;
};

// Whether a program is one that the compiler made: only then do its nodes relate as they should.
enum class Origin : std::uint8_t { Compiler, Elsewhere };

struct Plan {
    // Survives any bytes. The program, which must outlive the plan, begins with the magic byte. Throws std::bad_alloc.
    Plan(std::span<const std::uint8_t> program, LetterCase programCase, Origin programOrigin, bool isAnchored,
         SearchTuning howToSearch);

    // To be called before each execution. Hints take longer to find than a line takes to search, so only a program that
    // is executed again and again gets them. Throws std::bad_alloc.
    void countExecution() {
        if (executions < kExecutionsBeforeHints && ++executions == kExecutionsBeforeHints) findHints();
    }

    static constexpr int kExecutionsBeforeHints = 8;

    const LetterCase letterCase;
    const Origin origin;
    const bool anchored;  // matches begin at the start of the subject only
    const SearchTuning tuning;
    NodeIndex start = 0;
    std::vector<PlanNode> nodes;
    std::size_t memoRows = 0;
    int executions = 0;
    std::unique_ptr<const Hints> hints;  // null until they pay

  private:
    void findFirstSets();
    ByteSet firstOf(const PlanNode& node) const;
    bool hasLinksBack() const;
    void numberMemoRows();
    void findHints();
};

}  // namespace vexa::regexp
