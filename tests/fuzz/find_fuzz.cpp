// Whatever a document holds and whatever is looked for: finding and replacing come to an end, a replaced place is
// replaced once, and undoing everything brings back every byte.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "search/find_commands.h"

namespace {

class SilentNotices : public vexa::Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    vexa::BoxAnswer box(std::string_view, std::string_view, vexa::BoxButtons) override { return vexa::BoxAnswer::Ok; }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

class StoppedClock : public vexa::SearchWatch {
  public:
    std::int64_t milliseconds() override { return 0; }
    bool stopAsked() override { return false; }
};

void Require(bool held) {
    if (!held) std::abort();
}

class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(data, data + size) {}

    std::uint8_t byte() {
        const std::string one = text(1);
        return one.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(one[0]);
    }
    std::string text(std::size_t length) {
        const std::string taken = rest_.substr(0, length);
        rest_.erase(0, taken.size());
        return taken;
    }
    // The largest document: the longest line and the number of matches multiply.
    std::vector<std::string> lines() {
        std::vector<std::string> all(1);
        for (const char c : text(3000)) {
            if (c == '\n') {
                all.emplace_back();
            } else {
                all.back() += c;
            }
        }
        return all;
    }

  private:
    std::string rest_;
};

std::vector<std::string> LinesOf(const vexa::TextDocument& document) {
    std::vector<std::string> lines;
    for (vexa::LineIndex i; i.value <= document.lineCount(vexa::LastUsed::Text); ++i)
        lines.emplace_back(document.text(i));
    return lines;
}

void SetOptions(vexa::SearchOptions& options, Input& input) {
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
void FindAll(vexa::Finder& finder, std::size_t places) {
    while (finder.findNext())
        Require(places-- > 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    SilentNotices notices;
    StoppedClock clock;
    vexa::EditorOptions editorOptions;
    const vexa::ExtensionProfile profile;
    vexa::TextDocument document(editorOptions, notices);
    document.newEmpty();
    document.setProfile(profile);
    vexa::EditView view(document, editorOptions, notices);
    vexa::SearchOptions options;
    SetOptions(options, input);
    const vexa::LineIndex line(input.byte());
    const vexa::CharColumn column(input.byte());
    const bool findsFirst = input.byte() % 2 != 0;

    // A place at each character and line end, also of the empty lines above a cursor below the text.
    std::size_t places = static_cast<std::size_t>(line.value) + 1;
    std::int32_t index = 0;
    for (const std::string& text : input.lines()) {
        places += text.size() + 1;
        document.lines().put(document.makeLine(text), index++);
    }
    const std::vector<std::string> before = LinesOf(document);
    view.goTo(line, column);

    vexa::Finder finder(options, notices, clock);
    finder.attach(&view);
    if (findsFirst) finder.findNext();
    Require(static_cast<std::size_t>(finder.replace()) <= places);
    const std::vector<std::string> after = LinesOf(document);
    while (!document.undo().isEmpty())
        view.undo();
    Require(LinesOf(document) == before && !document.isModified());
    while (view.redo()) {
    }
    Require(LinesOf(document) == after);
    while (view.undo() && !document.undo().isEmpty()) {
    }
    FindAll(finder, places);
    return 0;
}
