// Runs the find and replace cases of the folder cases/, one test a case. A case looks like a key-replay case:
//
//   # Overlapping occurrences       its name
//   find "aa" case                  the options: texts as typed, and words of the table below
//   < |aaaa                         the document before
//   Next                            commands, words of the table below, with a count: Next*2; or further options, keys
//   > {|aa}aa                       the document after
//   ! Search completed.             the last text on the status line; "none" when nothing has been shown
//
// After its last block everything is undone, which must bring back the text before, unmodified, and done again, which
// must bring back the last.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "document/replay_case.h"
#include "search/find_session.h"
#include "support/case_files.h"

namespace vexa::test {

namespace {

constexpr CaseFile kFiles[] = {
#include "find_cases.inc"
};

using Word = std::function<void(FindSession&)>;

const std::map<std::string, Word>& FindWords() {
    static const std::map<std::string, Word> words = {
        {"up", [](FindSession& s) { s.options.setForward(false); }},
        {"case", [](FindSession& s) { s.options.setMatchCase(true); }},
        {"nocase", [](FindSession& s) { s.options.setMatchCase(false); }},
        {"word", [](FindSession& s) { s.options.setWholeWord(true); }},
        {"regexp", [](FindSession& s) { s.options.setRegularExpression(true); }},
        {"all", [](FindSession& s) { s.options.setReplaceAll(true); }},
        {"overwrite", [](FindSession& s) { s.editorOptions.InsertMode = false; }},
        {"groups", [](FindSession& s) { s.editorOptions.habits.replacementGroups = true; }},
        {"around", [](FindSession& s) { s.editorOptions.habits.searchAround = true; }},
        {"agree", [](FindSession& s) { s.notices.answers.push_back(BoxAnswer::Yes); }},
        {"refuse", [](FindSession& s) { s.notices.answers.push_back(BoxAnswer::No); }},
        {"Next", [](FindSession& s) { s.commands.findNext(&s.view); }},
        {"Previous", [](FindSession& s) { s.commands.findPrevious(&s.view); }},
        {"AtCaret", [](FindSession& s) { s.commands.findAtCaret(&s.view); }},
        {"Find", [](FindSession& s) { s.commands.find(&s.view); }},
        {"Replace", [](FindSession& s) { s.commands.replace(&s.view); }},
        {"ToggleCase", [](FindSession& s) { s.commands.toggleMatchCase(); }},
        {"ToggleRegexp", [](FindSession& s) { s.commands.toggleRegularExpression(); }}};
    return words;
}

void RunWord(FindSession& session, const std::string& word) {
    std::string name = word;
    int count = TakeCount(name);
    const auto found = FindWords().find(name);
    if (found == FindWords().end()) return PressWord(session.view, word);
    for (; count > 0; --count)
        found->second(session);
}

// Words, and the texts in quotes behind "find" (a new one leaves a marked match alone), "step" (a new one makes the
// search step over the match) and "replace".
void RunLine(FindSession& session, const std::string& line) {
    std::string before;
    for (const auto& [word, isQuoted] : KeyWordsOf(line)) {
        if (isQuoted && before == "replace") {
            session.options.setReplaceText(word);
        } else if (isQuoted) {
            session.options.setFindText(word, before == "step");
        } else if (word != "find" && word != "step" && word != "replace") {
            RunWord(session, word);
        }
        before = word;
    }
}

class SearchingSession : public ReplaySession {
  public:
    void setOptions(const std::string& options) override { RunLine(session_, options); }
    void run(const std::string& keys) override { RunLine(session_, keys); }
    EditView& view() override { return session_.view; }
    const RecordingNotices& notices() const override { return session_.notices; }

  private:
    FindSession session_;
};

VEXA_CASES(FindCases, CasesOf(kFiles, kReplayMarks), [](const Case& find) {
    SearchingSession session;
    RunReplayCase(find, session);
});

}  // namespace
}  // namespace vexa::test
