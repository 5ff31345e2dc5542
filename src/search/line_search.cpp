#include "search/line_search.h"

#include <algorithm>

#include "base/ascii.h"
#include "regexp/regex_matcher.h"

namespace vexa {

LineSearch::LineSearch(const SearchOptions& options, std::string_view delimiters)
    : text_(options.searchedText()),
      delimiters_(delimiters),
      regular_(options.regularExpression()),
      wholeWord_(options.wholeWord()),
      letterCase_(options.matchCase() ? LetterCase::Sensitive : LetterCase::Ignored) {
    if (regular_) {
        program_ = RegExp::Compile(text_.c_str());
    } else {
        plain_ = PlainSearch(text_, letterCase_);
    }
}

std::optional<LineMatch> LineSearch::find(std::string_view text, CharColumn from) {
    const auto start = static_cast<std::size_t>(from.value);
    if (isNowhere() || start > text.size()) return std::nullopt;
    const std::string_view subject = text.substr(start);
    LineMatch match;
    const bool found = regular_ ? findRegular(subject, 0, match) : findPlain(subject, match);
    if (!found) return std::nullopt;
    return LineMatch{from + match.column.value, match.length};
}

bool LineSearch::findPlain(std::string_view subject, LineMatch& match) const {
    const char* found = plain_.find(subject);
    if (found == nullptr) return false;
    const auto at = static_cast<std::size_t>(found - subject.data());
    match = {CharColumn(static_cast<std::int32_t>(at)), static_cast<std::int32_t>(text_.size())};
    return !wholeWord_ || isWholeWord(subject, at);
}

bool LineSearch::isWholeWord(std::string_view subject, std::size_t at) const {
    const std::string_view rest = subject.substr(at + text_.size());
    const bool ends = rest.empty() || IsBlank(rest.front()) || delimiters_.find(rest.front()) != std::string::npos;
    return ends && (at == 0 || IsBlank(subject[at - 1]));
}

bool LineSearch::findRegular(std::string_view subject, std::size_t from, LineMatch& match) const {
    if (!RegExp::Execute(program_.get(), subject, letterCase_, from)) return false;
    const auto length = std::min<std::ptrdiff_t>(program_->end(0) - program_->start(0), RegexMatcher::kTextLimit);
    match = {CharColumn(static_cast<std::int32_t>(program_->start(0) - subject.data())),
             static_cast<std::int32_t>(length)};
    return true;
}

std::optional<LineMatch> LineSearch::findAfter(std::string_view text, CharColumn column) {
    if (!regular_ || isNowhere() || column.value >= static_cast<std::int32_t>(text.size())) return std::nullopt;
    LineMatch match;
    if (!findRegular(text.substr(static_cast<std::size_t>(column.value)), 1, match)) return std::nullopt;
    return LineMatch{column + match.column.value, match.length};
}

}  // namespace vexa
