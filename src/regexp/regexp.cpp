#include "regexp/regexp.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

#include "regexp/regexp_find.h"
#include "regexp/regexp_plan.h"
#include "regexp/regexp_program.h"

namespace vexa {

using namespace regexp;

namespace {

bool ignoreCase = false;

void IgnoreError(const char*) {}

RegExpErrorHook errorHook = IgnoreError;

}  // namespace

void SetRegExpIgnoreCase(bool ignore) {
    ignoreCase = ignore;
}

bool RegExpIgnoresCase() {
    return ignoreCase;
}

RegExpErrorHook SetRegExpErrorHook(RegExpErrorHook hook) {
    return std::exchange(errorHook, hook != nullptr ? hook : IgnoreError);
}

void ReportRegExpError(const char* message) {
    errorHook(message);
}

RegExp::RegExp(std::vector<std::uint8_t> program, Origin origin) : program_(std::move(program)), origin_(origin) {}

RegExp::~RegExp() = default;

std::unique_ptr<RegExp> RegExp::FromProgram(std::span<const std::uint8_t> program) {
    if (program.size() >= kProgramLimit) {
        ReportRegExpError(kTooBig);
        return nullptr;
    }
    try {
        return std::unique_ptr<RegExp>(new RegExp({program.begin(), program.end()}, Origin::Elsewhere));
    } catch (const std::bad_alloc&) {
        ReportRegExpError(kOutOfSpace);
        return nullptr;
    }
}

// Looks along the nodes of the only branch; of a pattern with several branches, no more is known.
void RegExp::setOptimisations(bool startsWithStar) {
    const auto nextOf = [&](std::size_t node) {
        return node + program_[node + 1] * std::size_t{256} + program_[node + 2];
    };
    const auto literalOf = [&](std::size_t node) {
        return reinterpret_cast<const char*>(program_.data() + node + kNodeHeader);
    };
    if (program_[nextOf(kFirstNode)] != END) return;
    const std::size_t first = kFirstNode + kNodeHeader;
    if (program_[first] == EXACTLY) firstCharacter_ = *literalOf(first);
    anchored_ = program_[first] == BOL;
    if (!startsWithStar) return;
    for (std::size_t node = first; program_[node] != END; node = nextOf(node)) {
        if (program_[node] != EXACTLY) continue;
        const std::string_view literal = literalOf(node);
        if (literal.size() < mustLength_) continue;
        mustString_ = literal.data();
        mustLength_ = static_cast<std::uint32_t>(literal.size());
    }
}

const Plan& RegExp::plan(LetterCase letterCase) {
    std::unique_ptr<Plan>& plan = plans_[static_cast<std::size_t>(letterCase)];
    if (!plan) plan = std::make_unique<Plan>(program_, letterCase, origin_, anchored_, tuning_);
    plan->countExecution();
    return *plan;
}

bool RegExp::Execute(RegExp* program, const char* subject) {
    return Execute(program, subject != nullptr ? std::string_view(subject) : std::string_view());
}

bool RegExp::Execute(RegExp* program, std::string_view line, std::size_t from) {
    return Execute(program, line, ignoreCase ? LetterCase::Ignored : LetterCase::Sensitive, from);
}

void RegExp::tune(SearchTuning tuning) {
    tuning_ = tuning;
    plans_ = {};
}

bool RegExp::Execute(RegExp* program, std::string_view line, LetterCase letterCase, std::size_t from) {
    if (program == nullptr || line.data() == nullptr) {
        ReportRegExpError(kNullParameter);
        return false;
    }
    if (program->program_.empty() || program->program_[0] != kMagic) {
        ReportRegExpError(kCorruptedProgram);
        return false;
    }
    try {
        return program->execute(line, letterCase, from);
    } catch (const std::bad_alloc&) {
        ReportRegExpError(kOutOfSpace);
        return false;
    }
}

bool RegExp::execute(std::string_view line, LetterCase letterCase, std::size_t from) {
    if (starts_[0] != nullptr) {
        starts_ = {};
        ends_ = {};
    }
    const std::optional<Match> match = FindMatch(plan(letterCase), line, from);
    if (!match) return false;
    const auto firstEnd = match->saved.begin() + kPositions;
    std::copy(match->saved.begin(), firstEnd, starts_.begin());
    std::copy(firstEnd, match->saved.end(), ends_.begin());
    starts_[0] = match->start;
    ends_[0] = match->end;
    return true;
}

}  // namespace vexa
