// Runs the find and replace cases of the folder cases/, one test a case. A case looks like a key-replay case:
//
//   # Overlapping occurrences       its name
//   find "aa" case                  the options: texts as typed, and words of the table below
//   < |aaaa                         the document before
//   Next                            commands, words of the table below, with a count: Next*2; or further options
//   > {|aa}aa                       the document after
//   ! Search completed.             the last text on the status line; "none" when nothing has been shown
//
// After its last block everything is undone, which must bring back the text before, unmodified, and done again, which
// must bring back the last.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "document/replay_case.h"
#include "document/shown_document.h"
#include "search/find_session.h"

namespace vexa::test {

void PrintTo(const ReplayCase& replayCase, std::ostream* out) {
    *out << replayCase.name;
}

namespace {

struct CaseFile {
    const char* topic;
    const char* content;
};

const CaseFile kFiles[] = {
#include "find_cases.inc"
};

std::vector<ReplayCase> AllCases() {
    std::vector<ReplayCase> all;
    for (const CaseFile& file : kFiles) {
        for (ReplayCase& one : ParseReplayCases(file.topic, file.content))
            all.push_back(std::move(one));
    }
    return all;
}

void Press(FindSession& session, std::uint16_t key, bool shift = false, bool alt = false) {
    KeyEvent event;
    event.key = key;
    event.shift = shift;
    event.alt = alt;
    session.view.key(event);
}

using Word = std::function<void(FindSession&)>;

const std::map<std::string, Word>& Words() {
    static const std::map<std::string, Word> words = {
        {"up", [](FindSession& s) { s.options.setForward(false); }},
        {"case", [](FindSession& s) { s.options.setMatchCase(true); }},
        {"nocase", [](FindSession& s) { s.options.setMatchCase(false); }},
        {"word", [](FindSession& s) { s.options.setWholeWord(true); }},
        {"regexp", [](FindSession& s) { s.options.setRegularExpression(true); }},
        {"all", [](FindSession& s) { s.options.setReplaceAll(true); }},
        {"overwrite", [](FindSession& s) { s.editorOptions.InsertMode = false; }},
        {"Next", [](FindSession& s) { s.commands.findNext(&s.view); }},
        {"Previous", [](FindSession& s) { s.commands.findPrevious(&s.view); }},
        {"AtCaret", [](FindSession& s) { s.commands.findAtCaret(&s.view); }},
        {"Find", [](FindSession& s) { s.commands.find(&s.view); }},
        {"Replace", [](FindSession& s) { s.commands.replace(&s.view); }},
        {"ToggleCase", [](FindSession& s) { s.commands.toggleMatchCase(); }},
        {"ToggleRegexp", [](FindSession& s) { s.commands.toggleRegularExpression(); }},
        {"Undo", [](FindSession& s) { s.view.undo(); }},
        {"Redo", [](FindSession& s) { s.view.redo(); }},
        {"Esc", [](FindSession& s) { Press(s, kKeyEscape); }},
        {"Home", [](FindSession& s) { Press(s, kKeyHome); }},
        {"Right", [](FindSession& s) { Press(s, kKeyRight); }},
        {"Down", [](FindSession& s) { Press(s, kKeyDown); }},
        {"Delete", [](FindSession& s) { Press(s, kKeyDelete); }},
        {"Shift+Right", [](FindSession& s) { Press(s, kKeyRight, true); }},
        {"Alt+L", [](FindSession& s) { Press(s, 'L', false, true); }}};
    return words;
}

void RunWord(FindSession& session, const std::string& word) {
    const std::size_t star = std::min(word.find('*'), word.size());
    const auto found = Words().find(word.substr(0, star));
    ASSERT_TRUE(found != Words().end()) << "unknown word " << word;
    for (int count = star < word.size() ? std::stoi(word.substr(star + 1)) : 1; count > 0; --count)
        found->second(session);
}

// Words, and the texts in quotes behind "find" (a new one leaves a marked match alone), "step" (a new one makes the
// search step over the match) and "replace".
void RunLine(FindSession& session, const std::string& line) {
    std::string before;
    for (std::size_t i = 0; (i = line.find_first_not_of(" \n", i)) != std::string::npos;) {
        const bool quoted = line[i] == '"';
        const std::size_t end = std::min(line.find_first_of(quoted ? "\"" : " \n", i + 1), line.size());
        const std::string word = quoted ? line.substr(i + 1, end - i - 1) : line.substr(i, end - i);
        if (quoted && before == "replace") {
            session.options.setReplaceText(word);
        } else if (quoted) {
            session.options.setFindText(word, before == "step");
        } else if (word != "find" && word != "step" && word != "replace") {
            RunWord(session, word);
        }
        before = word;
        i = end + 1;
    }
}

std::string StatusOf(const FindSession& session) {
    return session.notices.statuses.empty() ? "none" : session.notices.lastStatus();
}

void CheckUndoAndRedo(FindSession& session, const std::vector<std::string>& before) {
    const std::vector<std::string> after = ShowDocument(session.document);
    int commands = 0;
    for (; !session.document.history().isEmpty(); ++commands)
        session.view.undo();
    EXPECT_EQ(Joined(ShowDocument(session.document)), Joined(before)) << "when everything is undone";
    EXPECT_FALSE(session.document.isModified()) << "when everything is undone";
    for (; commands > 0; --commands)
        session.view.redo();
    EXPECT_EQ(Joined(ShowDocument(session.document)), Joined(after)) << "when everything is done again";
}

class FindCases : public testing::TestWithParam<ReplayCase> {};

TEST_P(FindCases, Case) {
    SCOPED_TRACE(GetParam().topic + ": " + GetParam().name);
    FindSession session;
    FillDocument(session.document, GetParam().before);
    RunLine(session, GetParam().options);
    const std::vector<std::string> before = ShowDocument(session.document);
    for (const ReplayStep& step : GetParam().steps) {
        RunLine(session, step.keys);
        if (!step.expected.empty()) {
            EXPECT_EQ(Joined(ShowDocument(session.document)), Joined(step.expected)) << "after: " << step.keys;
        }
        if (!step.status.empty()) {
            EXPECT_EQ(StatusOf(session), step.status) << "after: " << step.keys;
        }
    }
    CheckUndoAndRedo(session, before);
}

std::string CaseName(const testing::TestParamInfo<ReplayCase>& info) {
    std::string name = info.param.topic + "_" + info.param.name;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Search, FindCases, testing::ValuesIn(AllCases()), CaseName);

}  // namespace
}  // namespace vexa::test
