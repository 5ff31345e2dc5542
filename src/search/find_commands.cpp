#include "search/find_commands.h"

#include <string>

#include "base/strings.h"
#include "document/view/marked_text.h"
#include "search/caret_text.h"

namespace vexa {

namespace {

std::string_view OnOff(bool on) {
    return LoadText(on ? TextId::SwitchedOn : TextId::SwitchedOff);
}

}  // namespace

bool FindCommands::has(const SearchTarget& target) {
    const bool isThere = target.view || target.rows;
    if (!isThere) tellError(LoadText(TextId::NeedsOpenFile));
    return isThere;
}

bool FindCommands::findIn(const SearchTarget& target) {
    return target.view ? finder_.findNext(*target.view) : finder_.findNext(*target.rows);
}

void FindCommands::tellNotFound() {
    if (failureListener_) failureListener_(finder_.wasStopped());
    if (finder_.wasStopped()) return tell(LoadText(TextId::SearchStopped));
    tellError(FillText(options_.forward() ? TextId::NotFoundForward : TextId::NotFoundBackward, {options_.findText()}));
}

void FindCommands::findNext(const SearchTarget& target) {
    options_.setForward(true);
    find(target);
}

void FindCommands::findPrevious(const SearchTarget& target) {
    options_.setForward(false);
    if (!has(target)) return;
    if (!findIn(target)) tellNotFound();
}

// What the caret is at counts as found already, so that the search goes on after it.
bool FindCommands::findAtCaret(const SearchTarget& target) {
    if (!has(target) || !target.view) return false;
    const TextDocument& document = target.view->document();
    const LineIndex line = document.currentLine();
    const std::optional<CharSpan> span = SpanAtCaret(document);
    if (!span) tellError(LoadText(TextId::NoWordAtCursor));
    if (!span) return false;
    options_.setFindText(FindTextFor(TextOf(document, line, *span), options_.regularExpression()), true);
    options_.lastMatch.line = options_.lastMatch.endLine = line;
    options_.lastMatch.column = span->begin;
    options_.lastMatch.length = span->end - span->begin;
    options_.lastMatch.cursorColumn = document.column();
    options_.setMatchPending(true);
    options_.setPastLineEnd(false);
    findNext(target);
    return true;
}

bool FindCommands::find(const SearchTarget& target) {
    if (!has(target)) return false;
    if (findIn(target)) {
        tell(LoadText(TextId::SearchCompleted));
    } else {
        tellNotFound();
    }
    return true;
}

bool FindCommands::replace(EditView* view) {
    if (!has(view)) return false;
    const std::int32_t count = finder_.replace(*view);
    if (count == 0) {
        tellNotFound();
    } else {
        const TextId result = finder_.wasStopped() ? TextId::ReplacementStopped : TextId::ReplacementCompleted;
        tell(FillText(result, {std::to_string(count)}));
    }
    return true;
}

void FindCommands::explainTabEscape() {
    tell(LoadText(TextId::TabEscapeIsNoTab));
}

void FindCommands::toggleRegularExpression() {
    options_.setRegularExpression(!options_.regularExpression());
    tell(FillText(TextId::RegularExpressionSwitched, {OnOff(options_.regularExpression())}));
}

void FindCommands::toggleMatchCase() {
    options_.setMatchCase(!options_.matchCase());
    tell(FillText(TextId::MatchCaseSwitched, {OnOff(options_.matchCase())}));
}

}  // namespace vexa
