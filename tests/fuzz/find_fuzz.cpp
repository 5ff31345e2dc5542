// Whatever a document holds and whatever is looked for: finding and replacing come to an end, a replaced place is
// replaced once, and undoing everything brings back every byte.
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/fuzzing.h"
#include "search/find_commands.h"

namespace vexa::fuzz {
namespace {

class StoppedClock : public SearchWatch {
  public:
    std::int64_t milliseconds() override { return 0; }
    bool stopAsked() override { return false; }
};

// The largest document: the longest line and the number of matches multiply.
std::vector<std::string> TakeLines(Input& input) {
    std::vector<std::string> all(1);
    for (const char c : input.text(3000)) {
        if (c == '\n') {
            all.emplace_back();
        } else {
            all.back() += c;
        }
    }
    return all;
}

void SetOptions(SearchOptions& options, Input& input) {
    const std::uint8_t flags = input.byte();
    options.setForward(flags & 1);
    options.setMatchCase(flags & 2);
    options.setWholeWord(flags & 4);
    options.setReplaceAll(flags & 8);
    options.setRegularExpression(flags & 16);
    const std::uint8_t findLength = input.byte();
    const std::uint8_t replaceLength = input.byte();
    options.setFindText(input.text(findLength % 70), flags & 32);
    options.setReplaceText(input.text(replaceLength % 70));
}

// Each search must find a later place, or nothing.
void FindAll(Finder& finder, EditView& view, std::size_t places) {
    while (finder.findNext(view))
        Require(places-- > 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    SilentNotices notices;
    StoppedClock clock;
    EditorOptions editorOptions;
    const ExtensionProfile profile;
    TextDocument document(editorOptions, notices);
    document.newEmpty();
    document.setProfile(profile);
    EditView view(document, editorOptions, notices);
    SearchOptions options;
    SetOptions(options, input);
    const LineIndex line(input.byte());
    const CharColumn column(input.byte());
    const bool findsFirst = input.byte() % 2 != 0;

    // A place at each character and line end, also of the empty lines above a cursor below the text.
    std::size_t places = static_cast<std::size_t>(line.value) + 1;
    std::int32_t index = 0;
    for (const std::string& text : TakeLines(input)) {
        places += text.size() + 1;
        document.lines().put(document.makeLine(text), index++);
    }
    const std::vector<std::string> before = LinesOf(document);
    view.goTo(line, column);

    Finder finder(options, notices, clock);
    if (findsFirst) finder.findNext(view);
    Require(static_cast<std::size_t>(finder.replace(view)) <= places);
    const std::vector<std::string> after = LinesOf(document);
    while (!document.history().isEmpty())
        view.undo();
    Require(LinesOf(document) == before && !document.isModified());
    while (view.redo()) {
    }
    Require(LinesOf(document) == after);
    while (view.undo() && !document.history().isEmpty()) {
    }
    FindAll(finder, view, places);
    return 0;
}

}  // namespace vexa::fuzz
