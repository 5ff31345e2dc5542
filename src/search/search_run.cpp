#include "search/search_run.h"

#include <algorithm>

#include "base/strings.h"
#include "search/shown_match.h"

namespace vexa {

bool AsksToGoAround(const SearchOptions& options, Notices& notices) {
    if (!options.habits().searchAround) return false;
    const TextId question = options.forward() ? TextId::SearchFromStart : TextId::SearchFromEnd;
    return notices.box(LoadText(question), TextId::ProgramCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
}

SearchRun::SearchRun(EditView& view, SearchOptions& options, SearchProgress& progress)
    : view_(view),
      document_(view.document()),
      options_(options),
      progress_(progress),
      search_(options, DelimitersOf(document_)),
      step_(options.forward() ? 1 : -1),
      origin_{document_.currentLine(), document_.column()},
      reached_(origin_.line) {}

bool SearchRun::findNext() {
    const std::optional<DocumentMatch> match = findFrom(start());
    showAsNext(match);
    return match.has_value();
}

void SearchRun::showAsNext(const std::optional<DocumentMatch>& match) {
    if (match) ShowMatch(view_, options_, match->line, match->inLine, endOf(*match));
}

// After a pending match, so that overlapping ones are found too, unless the cursor has gone elsewhere.
TextPosition SearchRun::start() const {
    TextPosition start{document_.currentLine(), document_.column()};
    if (!options_.matchPending()) return start;
    const LastMatch& last = options_.lastMatch;
    if (start.line == last.line && start.column == last.cursorColumn) start.column = last.column + 1;
    if (options_.pastLineEnd()) start = {start.line + step_, CharColumn(0)};
    return start;
}

// The line, with as many of those after it as a match can reach into.
std::string_view SearchRun::subject(LineIndex line) {
    if (search_.furtherLines() == 0) return document_.text(line);
    manyLines_ = document_.text(line);
    const LineIndex last = std::min(line + search_.furtherLines(), lastTextLine());
    for (LineIndex next = line + 1; next <= last; ++next)
        manyLines_.append(1, '\n').append(document_.text(next));
    return manyLines_;
}

TextPosition SearchRun::endOf(const DocumentMatch& match) const {
    TextPosition end{match.line, match.inLine.column + match.inLine.length};
    if (search_.furtherLines() == 0) return end;
    const auto length = [&] { return static_cast<std::int32_t>(document_.text(end.line).size()); };
    for (; end.column.value > length(); ++end.line)
        end.column -= length() + 1;
    return end;
}

std::optional<DocumentMatch> SearchRun::findBetween(TextPosition start, LineIndex last) {
    const DynArray& lines = document_.lines();
    CharColumn from = start.column;
    for (LineIndex line = start.line; line.value >= 0 && (last - line) * step_ >= 0; line += step_) {
        const TextLine* here = lines.at(line.value);
        if (here == nullptr) continue;
        const std::string_view text = search_.furtherLines() == 0 ? here->text() : subject(line);
        const auto found = search_.find(text, from);
        if (found && found->column.value <= here->length()) return DocumentMatch{line, *found};
        if (progress_.mustStop()) return std::nullopt;
        from = CharColumn(0);
    }
    return std::nullopt;
}

std::optional<DocumentMatch> SearchRun::findFrom(TextPosition start) {
    const TextPosition first = options_.forward() ? TextPosition{} : TextPosition{lastTextLine(), CharColumn(0)};
    const LineIndex last = options_.forward() ? lastTextLine() : LineIndex(0);
    auto found = findBetween(start, isAround_ ? origin_.line : last);
    const bool endsHere = found || isAround_ || progress_.stopped() || search_.isNowhere() || origin_ == first;
    if (!endsHere && AsksToGoAround(options_, document_.notices())) {
        isAround_ = true;
        found = findBetween(first, origin_.line);
    }
    if (found) reached_ = found->line;
    return found;
}

}  // namespace vexa
