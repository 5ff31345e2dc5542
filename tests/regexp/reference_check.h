// Holds the engine against the reference on one pattern and one subject.
#pragma once

#include <string>

#include "reference_matcher.h"
#include "regexp/plain_search.h"
#include "regexp/regexp.h"
#include "regexp/regexp_machine.h"
#include "regexp/regexp_plan.h"

namespace vexa::test {

inline std::string lastRegExpError;

// What was found, readable: "no", or for the match and each group that took part its number, offset and end.
template <typename OffsetOfStart, typename OffsetOfEnd>
std::string DescribeMatch(OffsetOfStart start, OffsetOfEnd end) {
    const auto show = [](std::ptrdiff_t offset) { return offset >= 0 ? std::to_string(offset) : "-"; };
    std::string text;
    for (std::size_t i = 0; i < RegExp::kPositions; ++i) {
        if (start(i) < 0 && end(i) < 0) continue;
        if (i > 0) text += ' ' + std::to_string(i) + ':';
        text += show(start(i)) + '-' + show(end(i));
    }
    return text;
}

inline std::string ExecuteAndDescribe(RegExp& program, const std::string& subject, std::size_t from) {
    if (!RegExp::Execute(&program, std::string_view(subject.c_str()), from)) return "no";
    const auto offset = [&](const char* position) { return position != nullptr ? position - subject.c_str() : -1; };
    return DescribeMatch([&](std::size_t i) { return offset(program.start(i)); },
                         [&](std::size_t i) { return offset(program.end(i)); });
}

// Executes a program as often as it takes to get its hints.
inline void EarnHints(RegExp& program) {
    for (int i = 0; i < regexp::Plan::kExecutionsBeforeHints; ++i)
        RegExp::Execute(&program, "");
}

// Runs the program in each of the ways that must not make a difference, and compares.
inline std::string DifferenceInMatching(const std::string& pattern, const std::string& subject,
                                        const std::string& expected, std::size_t from = 0) {
    std::string difference;
    const auto compare = [&](RegExp& tried, const char* way) {
        const std::string actual = ExecuteAndDescribe(tried, subject, from);
        if (actual != expected) difference += std::string(way) + ": " + actual + " instead of " + expected + "\n";
    };
    const std::unique_ptr<RegExp> program = RegExp::Compile(pattern.c_str());
    const std::unique_ptr<RegExp> foreign = RegExp::FromProgram(program->program());
    compare(*program, "new");
    compare(*foreign, "from elsewhere");

    EarnHints(*program);
    compare(*program, "with hints");

    constexpr SearchTuning kRememberAtOnce{.stepsBeforeMemo = 0};
    program->tune(kRememberAtOnce);
    foreign->tune(kRememberAtOnce);
    compare(*program, "new, remembering");
    compare(*foreign, "from elsewhere, remembering");
    EarnHints(*program);
    compare(*program, "with hints, remembering");

    program->tune({.most = Instructions::Plain});
    EarnHints(*program);
    compare(*program, "with hints, without vector instructions");
    return difference;
}

inline std::string Describe(const ReferenceMatcher& reference, ReferenceMatcher::Outcome outcome) {
    if (outcome != ReferenceMatcher::Outcome::Match) return "no";
    return DescribeMatch([&](std::size_t i) { return reference.starts()[i]; },
                         [&](std::size_t i) { return reference.ends()[i]; });
}

// Empty when engine and reference agree, or when the reference takes too long to tell.
inline std::string DifferenceFromReference(const std::string& pattern, const std::string& subject, bool ignoreCase,
                                           std::size_t from = 0) {
    constexpr long kMostCalls = 2000;
    SetRegExpIgnoreCase(ignoreCase);
    const RegExpErrorHook hook = SetRegExpErrorHook([](const char* message) { lastRegExpError = message; });
    lastRegExpError.clear();
    const std::unique_ptr<RegExp> program = RegExp::Compile(pattern.c_str());
    ReferenceMatcher reference(pattern, ignoreCase);
    std::string difference;
    if (lastRegExpError != reference.error()) {
        difference = "compiled with \"" + lastRegExpError + "\" instead of \"" + reference.error() + "\"\n";
    } else if (program) {
        const ReferenceMatcher::Outcome outcome = reference.match(subject, from, kMostCalls);
        const std::string expected = Describe(reference, outcome);
        difference = DifferenceInMatching(pattern, subject, expected, from);
        if (outcome == ReferenceMatcher::Outcome::GaveUp) difference.clear();
    }
    SetRegExpErrorHook(hook);
    SetRegExpIgnoreCase(false);
    return difference;
}

}  // namespace vexa::test
