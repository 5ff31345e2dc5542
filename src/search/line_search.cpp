#include "search/line_search.h"

#include <algorithm>

#include "base/ascii.h"
#include "document/view/word_motion.h"
#include "regexp/regex_matcher.h"
#include "search/search_texts.h"

namespace vexa {

namespace {

bool IsInsideWord(std::string_view text, std::size_t at) {
    const CharColumn column(static_cast<std::int32_t>(at));
    const std::optional<CharSpan> word = WordAt(text, column);
    return word && word->begin < column && column < word->end;
}

}  // namespace

std::string_view DelimitersOf(const TextDocument& document) {
    const ExtensionProfile* profile = document.profile();
    return profile ? std::string_view(profile->delimiters()) : std::string_view();
}

LineSearch::LineSearch(const SearchOptions& options, std::string_view delimiters)
    : habits_(options.habits()),
      text_(options.searchedText()),
      replacement_(options.insertedText()),
      delimiters_(delimiters),
      regular_(options.regularExpression()),
      wholeWord_(options.wholeWord()),
      seesWholeLine_(regular_ ? habits_.replacementGroups : wholeWord_ && habits_.searchAround),
      letterCase_(options.matchCase() ? LetterCase::Sensitive : LetterCase::Ignored) {
    if (habits_.replacementGroups) furtherLines_ = static_cast<std::int32_t>(std::ranges::count(text_, '\n'));
    if (regular_) {
        program_ = RegExp::Compile(text_.c_str());
    } else {
        plain_ = PlainSearch(text_, letterCase_);
    }
    isNowhere_ = text_.empty() || (regular_ && program_ == nullptr);
}

std::optional<LineMatch> LineSearch::find(std::string_view text, CharColumn from) {
    const auto start = static_cast<std::size_t>(from.value);
    if (isNowhere_ || start > text.size()) return std::nullopt;
    LineMatch match;
    const std::size_t begin = seesWholeLine_ ? 0 : start;
    const std::string_view subject = text.substr(begin);
    const bool found = regular_         ? findRegular(subject, start - begin, match)
                       : seesWholeLine_ ? findWord(subject, start - begin, match)
                                        : findPlain(subject, match);
    if (!found) return std::nullopt;
    return LineMatch{match.column + static_cast<std::int32_t>(begin), match.length};
}

bool LineSearch::findPlain(std::string_view subject, LineMatch& match) const {
    const char* found = plain_.find(subject);
    if (found == nullptr) return false;
    const auto at = static_cast<std::size_t>(found - subject.data());
    match = {CharColumn(static_cast<std::int32_t>(at)), static_cast<std::int32_t>(text_.size())};
    return !wholeWord_ || isWholeWord(subject, at);
}

bool LineSearch::findWord(std::string_view text, std::size_t from, LineMatch& match) const {
    const char* found = nullptr;
    for (; (found = plain_.find(text.substr(from))) != nullptr; ++from) {
        from = static_cast<std::size_t>(found - text.data());
        if (!IsInsideWord(text, from) && !IsInsideWord(text, from + text_.size())) break;
    }
    match = {CharColumn(static_cast<std::int32_t>(from)), static_cast<std::int32_t>(text_.size())};
    return found != nullptr;
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
    const auto after = static_cast<std::size_t>(column.value);
    const std::size_t begin = seesWholeLine_ ? 0 : after;
    if (!findRegular(text.substr(begin), after + 1 - begin, match)) return std::nullopt;
    return LineMatch{match.column + static_cast<std::int32_t>(begin), match.length};
}

std::optional<LineMatch> LineSearch::findBehind(std::string_view text, CharColumn replacementEnd) {
    const std::optional<LineMatch> next = find(text, replacementEnd);
    return next == LineMatch{replacementEnd, 0} ? findAfter(text, replacementEnd) : next;
}

std::string LineSearch::replacement() const {
    if (!regular_ || !habits_.replacementGroups) return replacement_;
    const auto length = std::min<std::ptrdiff_t>(program_->end(0) - program_->start(0), RegexMatcher::kTextLimit);
    return ReplacementFor(replacement_, *program_, static_cast<std::size_t>(length));
}

}  // namespace vexa
