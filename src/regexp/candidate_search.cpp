#include "regexp/candidate_search.h"

#include "regexp/regexp_hints.h"
#include "regexp/regexp_plan.h"

namespace vexa {

using namespace regexp;

CandidateSearch::CandidateSearch(const RegExp& program, LetterCase letterCase)
    : hints_(std::make_unique<const Hints>(FindHints(
          Plan(program.program(), letterCase, Origin::Compiler, program.anchored(), SearchTuning()), Subject::Lines))) {
}

CandidateSearch::~CandidateSearch() = default;

const char* CandidateSearch::find(const char* begin, const char* end) const {
    const std::string_view text(begin, static_cast<std::size_t>(end - begin));
    if (!hints_->required.empty()) return hints_->required.find(text);
    if (!hints_->leading.empty()) return hints_->leading.find(text);
    return hints_->filter.find(begin, end);
}

}  // namespace vexa
