#include "search/find_commands.h"

#include <string>

#include "base/strings.h"

namespace vexa {

namespace {

constexpr std::uint16_t kTextNoOpenFile = 4141;
constexpr std::uint16_t kTextFound = 4142;
constexpr std::uint16_t kTextEndReached = 4143;
constexpr std::uint16_t kTextStartReached = 4144;

// The blank behind "On" is the program's own.
const char* OnOff(bool on) {
    return on ? "On " : "Off";
}

}  // namespace

bool FindCommands::attach(EditView* view) {
    if (finder_.attach(view)) return true;
    tellError(LoadText(kTextNoOpenFile));
    return false;
}

void FindCommands::tellNotFound() {
    if (finder_.wasStopped()) return tell("Search stopped.");
    tellError(FillText(options_.forward() ? kTextEndReached : kTextStartReached, {options_.findText()}));
}

void FindCommands::findNext(EditView* view) {
    options_.setForward(true);
    find(view);
}

void FindCommands::findPrevious(EditView* view) {
    options_.setForward(false);
    if (!attach(view)) return;
    if (!finder_.findNext()) tellNotFound();
    finder_.attach(nullptr);
}

bool FindCommands::find(EditView* view) {
    if (!attach(view)) return false;
    if (finder_.findNext()) {
        tell(LoadText(kTextFound));
    } else {
        tellNotFound();
    }
    finder_.attach(nullptr);
    return true;
}

bool FindCommands::replace(EditView* view) {
    if (!attach(view)) return false;
    const std::int32_t count = finder_.replace();
    finder_.attach(nullptr);
    if (count == 0) {
        tellNotFound();
    } else {
        const char* format = finder_.wasStopped() ? "Replacement stopped with %d occurrences changed."
                                                  : "Replacement completed with %d occurrences changed.";
        tell(FillText(format, {std::to_string(count)}));
    }
    return true;
}

void FindCommands::toggleRegularExpression() {
    options_.setRegularExpression(!options_.regularExpression());
    tell(FillText("Regular expression '%s'", {OnOff(options_.regularExpression())}));
}

void FindCommands::toggleMatchCase() {
    options_.setMatchCase(!options_.matchCase());
    tell(FillText("Case Sensitivity '%s'", {OnOff(options_.matchCase())}));
}

}  // namespace vexa
