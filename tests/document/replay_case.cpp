#include "document/replay_case.h"

#include <gtest/gtest.h>

#include <map>

#include "document/shown_document.h"

namespace vexa::test {

namespace {

const std::map<std::string, std::uint16_t>& KeyNames() {
    static const std::map<std::string, std::uint16_t> names = {
        {"Backspace", kKeyBackspace}, {"Tab", kKeyTab},       {"Enter", kKeyEnter},    {"Esc", kKeyEscape},
        {"PgUp", kKeyPageUp},         {"PgDn", kKeyPageDown}, {"End", kKeyEnd},        {"Home", kKeyHome},
        {"Left", kKeyLeft},           {"Up", kKeyUp},         {"Right", kKeyRight},    {"Down", kKeyDown},
        {"Delete", kKeyDelete},       {"Ins", kKeyInsert},    {"KeypadPlus", kKeyAdd}, {"KeypadMinus", kKeySubtract}};
    return names;
}

// A command may want a number: "Jump:3".
using Command = void (*)(EditView& view, int number);

const std::map<std::string, Command>& Commands() {
    static const std::map<std::string, Command> commands = {
        {"Undo", [](EditView& view, int) { view.undo(); }},
        {"Redo", [](EditView& view, int) { view.redo(); }},
        {"Clear", [](EditView& view, int) { view.clear(); }},
        {"Cut", [](EditView& view, int) { view.cut(); }},
        {"Copy", [](EditView& view, int) { view.copy(); }},
        {"ToggleCase", [](EditView& view, int) { view.changeCase(CaseChange::Toggle); }},
        {"LowerCase", [](EditView& view, int) { view.changeCase(CaseChange::Lower); }},
        {"UpperCase", [](EditView& view, int) { view.changeCase(CaseChange::Upper); }},
        {"Paste", [](EditView& view, int) { view.paste(); }},
        {"SelectAll", [](EditView& view, int) { view.selectAll(); }},
        {"Bracket", [](EditView& view, int) { view.toMatchingBracket(); }},
        {"Goto", [](EditView& view, int number) { view.goToLine(number); }},
        {"Jump", [](EditView& view, int number) { view.jumpToBookmark(number); }}};
    return commands;
}

bool TakePrefix(std::string& word, const std::string& prefix) {
    if (word.rfind(prefix, 0) != 0 || word.size() == prefix.size()) return false;
    word.erase(0, prefix.size());
    return true;
}

// The number of commands that were undone.
int UndoAll(EditView& view) {
    int commands = 0;
    for (; !view.document().history().isEmpty(); ++commands)
        view.undo();
    return commands;
}

void ExpectShown(const CaseStep& step, char mark, const std::vector<std::string>& shown) {
    const std::vector<std::string> expected = step.marked(mark);
    if (expected.empty()) return;
    EXPECT_EQ(Joined(shown), Joined(expected)) << "line " << step.number << ", after: " << step.text;
}

std::string StatusOf(const ReplaySession& session) {
    return session.notices().statuses.empty() ? "none" : session.notices().lastStatus();
}

}  // namespace

void PressWord(EditView& view, std::string word) {
    int count = TakeCount(word);
    int number = 0;
    if (const std::size_t colon = word.find(':'); colon != std::string::npos) {
        number = std::stoi(word.substr(colon + 1));
        word.erase(colon);
    }
    KeyEvent event;
    for (bool more = true; more;) {
        more = TakePrefix(word, "Shift+")  ? (event.shift = true)
               : TakePrefix(word, "Ctrl+") ? (event.control = true)
               : TakePrefix(word, "Alt+")  ? (event.alt = true)
                                           : false;
    }
    const auto command = Commands().find(word);
    const auto name = KeyNames().find(word);
    event.key = name != KeyNames().end() ? name->second : static_cast<std::uint16_t>(word[0]);
    ASSERT_TRUE(command != Commands().end() || name != KeyNames().end() || word.size() == 1) << "unknown key " << word;
    for (; count > 0; --count) {
        if (command != Commands().end()) {
            command->second(view, number);
        } else {
            EXPECT_TRUE(view.key(event)) << word << " means nothing";
        }
    }
}

void RunReplayCase(const Case& replay, ReplaySession& session) {
    std::vector<std::string> text;
    std::string options;
    std::size_t at = 0;
    for (; text.empty(); ++at) {
        options += replay.steps.at(at).text + "\n";
        text = replay.steps.at(at).marked('<');
    }
    session.setOptions(options);
    EditView& view = session.view();
    const TextDocument& document = view.document();
    FillDocument(view.document(), text);
    const std::vector<std::string> before = ShowDocument(document);
    for (; at < replay.steps.size(); ++at) {
        const CaseStep& step = replay.steps[at];
        session.run(step.text);
        ExpectShown(step, '>', ShowDocument(document));
        ExpectShown(step, '!', {StatusOf(session)});
        ExpectShown(step, '=', {session.clipboard()});
    }
    const std::vector<std::string> after = ShowDocument(document);
    int commands = UndoAll(view);
    EXPECT_EQ(Joined(ShowDocument(document)), Joined(before)) << "when everything is undone";
    EXPECT_FALSE(document.isModified()) << "when everything is undone";
    for (; commands > 0; --commands)
        view.redo();
    EXPECT_EQ(Joined(ShowDocument(document)), Joined(after)) << "when everything is done again";
}

}  // namespace vexa::test
