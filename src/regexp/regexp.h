// Regular expressions over single lines: a pattern is compiled into a RegExp, which is executed on a subject.
//
// A pattern is one or more branches separated by "|" or a newline; a branch is a sequence of pieces, each an atom that
// "*",
// "+" or "?" may follow:
//   (pattern)   a group, one of at most nine       .      any character
//   ^  $        start and end of the subject       \< \>  start and end of a word
//   [a-z] [^x]  one of, or none of, the characters listed
//   \c          the character c itself             anything else stands for itself
//
// The leftmost match is found; of those, the first in the order of backtracking: an earlier branch before a later one,
// more repetitions before fewer. Time is bounded by the length of the program times that of the subject.
//
// One thread at a time may use the engine.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "regexp/letter_case.h"
#include "regexp/search_tuning.h"

namespace vexa {

namespace regexp {
enum class Origin : std::uint8_t;
struct Plan;
}  // namespace regexp

class RegExp {
  public:
    // Index 0 of the positions is the whole match, 1 to 9 are the groups.
    static constexpr std::size_t kPositions = 10;

    // None when the pattern is null or malformed; the error hook is told why.
    static std::unique_ptr<RegExp> Compile(const char* pattern);
    // Takes over a program in the form of regexp_program.h from elsewhere, whatever its bytes are: a damaged one is
    // found out when it is executed. Without the fields that speed the search up. None when it is too long for a
    // program.
    static std::unique_ptr<RegExp> FromProgram(std::span<const std::uint8_t> program);

    // True when the program matches somewhere in the subject, which must outlive the use of the positions. False also
    // when either is null, the program is damaged or memory runs out; the error hook is told.
    static bool Execute(RegExp* program, const char* subject);
    // The same for a line whose length is known. A NUL must follow the last character; a NUL inside ends the subject.
    // Matches that begin before a position of the line are passed over; "^" and "\<" still see what stands before it.
    static bool Execute(RegExp* program, std::string_view line, std::size_t from = 0);
    // The same in a letter case of the caller's own.
    static bool Execute(RegExp* program, std::string_view line, LetterCase letterCase, std::size_t from = 0);

    // Executions from now on search so.
    void tune(SearchTuning tuning);

    RegExp(const RegExp&) = delete;
    RegExp& operator=(const RegExp&) = delete;
    ~RegExp();

    // Positions in the subject of the last successful execution; null for a group that took no part in the match.
    const char* start(std::size_t index) const { return starts_[index]; }
    const char* end(std::size_t index) const { return ends_[index]; }

    // The character with which every match begins; NUL when there is no such character.
    char firstCharacter() const { return firstCharacter_; }
    // True when a match can only begin at the start of the subject.
    bool anchored() const { return anchored_; }
    // A literal inside the program that every match contains; null when none is known.
    const char* mustString() const { return mustString_; }
    std::uint32_t mustLength() const { return mustLength_; }
    std::span<const std::uint8_t> program() const { return program_; }

  private:
    RegExp(std::vector<std::uint8_t> program, regexp::Origin origin);
    void setOptimisations(bool startsWithStar);
    const regexp::Plan& plan(LetterCase letterCase);
    bool execute(std::string_view line, LetterCase letterCase, std::size_t from);

    std::array<const char*, kPositions> starts_{};
    std::array<const char*, kPositions> ends_{};
    char firstCharacter_ = '\0';
    bool anchored_ = false;
    const char* mustString_ = nullptr;
    std::uint32_t mustLength_ = 0;
    const std::vector<std::uint8_t> program_;
    const regexp::Origin origin_;
    SearchTuning tuning_;
    // Made when first needed, by letter case.
    std::array<std::unique_ptr<regexp::Plan>, 2> plans_;
};

// The case mode of all executions that name none; case-sensitive at first. Ignoring case folds A-Z to a-z wherever
// characters are compared, except for a single literal character under "*" or "+", which is counted as it is written.
void SetRegExpIgnoreCase(bool ignore);
bool RegExpIgnoresCase();

// Told the fixed text of every failure; does nothing at first. Returns the hook that was set before.
using RegExpErrorHook = void (*)(const char* message);
RegExpErrorHook SetRegExpErrorHook(RegExpErrorHook hook);
void ReportRegExpError(const char* message);

}  // namespace vexa
