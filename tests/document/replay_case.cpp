#include "document/replay_case.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "document/memory_clipboard.h"
#include "document/shown_document.h"
#include "document/view/edit_view.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {

namespace {

std::string Shown(const MemoryClipboard& clipboard) {
    std::string shown = std::to_string(static_cast<int>(clipboard.kind)) + " ";
    for (const char c : clipboard.text.value_or("none"))
        shown += c == '\r' ? "\\r" : c == '\n' ? "\\n" : Escape(c);
    return shown;
}

// ---- options and keys ----------------------------------------------------------------------------------------------

void SetOption(EditorOptions& options, const std::string& name, int value) {
    if (name == "InsertMode") return void(options.InsertMode = value != 0);
    if (name == "SmartIndent") return void(options.SmartIndent = value != 0);
    if (name == "UseTabs") return void(options.UseTabs = value != 0);
    if (name == "LineWrap") return void(options.LineWrap = value != 0);
    if (name == "WrapColumn") return void(options.WrapColumn = value);
    if (name == "TabSize") return void(options.TabSize = value);
    FAIL() << "unknown option " << name;
}

EditorOptions ParseOptions(const std::string& text) {
    EditorOptions options;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const std::size_t equals = word.find('=');
        SetOption(options, word.substr(0, equals), std::stoi(word.substr(equals + 1)));
    }
    return options;
}

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

void Press(EditView& view, std::string word) {
    int count = 1;
    if (const std::size_t star = word.find('*'); star != std::string::npos) {
        count = std::stoi(word.substr(star + 1));
        word.erase(star);
    }
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

void Type(EditView& view, const std::string& text) {
    for (const char c : text) {
        KeyEvent event;
        event.character = static_cast<unsigned char>(c);
        view.key(event);
    }
}

// "Clipboard:text" is a text of another program, "Clipboard3:text" one of the editor, of that kind.
bool FillClipboard(MemoryClipboard& clipboard, const std::string& word) {
    const std::string name = "Clipboard";
    const std::size_t colon = word.find(':');
    if (word.rfind(name, 0) != 0 || colon == std::string::npos) return false;
    const std::string kind = word.substr(name.size(), colon - name.size());
    clipboard.text = Unescape(word.substr(colon + 1));
    clipboard.kind = static_cast<MarkMode>(kind.empty() ? 1 : std::stoi(kind));
    return true;
}

void PressAll(EditView& view, MemoryClipboard& clipboard, const std::string& keys) {
    std::size_t i = 0;
    while ((i = keys.find_first_not_of(' ', i)) != std::string::npos) {
        const bool quoted = keys[i] == '"';
        const std::size_t end = std::min(keys.find(quoted ? '"' : ' ', i + 1), keys.size());
        if (quoted) {
            Type(view, Unescape(keys.substr(i + 1, end - i - 1)));
        } else if (const std::string word = keys.substr(i, end - i); !FillClipboard(clipboard, word)) {
            Press(view, word);
        }
        i = end + 1;
    }
}

// The number of commands that were undone.
int UndoAll(EditView& view) {
    int commands = 0;
    for (; !view.document().history().isEmpty(); ++commands)
        view.undo();
    return commands;
}

// "Electric:keyword=expansion" is an electric word, up to the end of its line.
ElectricList ElectricWordsOf(std::string& options) {
    ElectricList list;
    const std::string name = "Electric:";
    for (std::size_t at; (at = options.find(name)) != std::string::npos;) {
        const std::size_t end = options.find('\n', at);
        const std::string word = options.substr(at + name.size(), end - at - name.size());
        const std::size_t equals = word.find('=');
        EXPECT_EQ(list.set(word.substr(0, equals), word.substr(equals + 1)), ElectricSet::Done) << word;
        options.erase(at, end - at);
    }
    return list;
}

}  // namespace

std::vector<ReplayCase> ParseReplayCases(const std::string& topic, const std::string& content) {
    std::vector<ReplayCase> cases;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty()) continue;
        const std::string rest = line.size() > 2 ? line.substr(2) : std::string();
        if (line[0] == '#') {
            cases.push_back({topic, rest, {}, {}, {}});
            continue;
        }
        ReplayCase& now = cases.back();
        if (line[0] == '<') {
            now.before.push_back(rest);
        } else if (line[0] == '>') {
            now.steps.back().expected.push_back(rest);
        } else if (line[0] == '!') {
            now.steps.back().status = rest;
        } else if (line[0] == '=') {
            now.steps.back().clipboard = rest;
        } else if (now.before.empty()) {
            now.options += line + "\n";
        } else {
            now.steps.push_back({line, {}, {}, {}});
        }
    }
    return cases;
}

void RunReplayCase(const ReplayCase& replayCase) {
    std::string optionText = replayCase.options;
    const TestDisk disk;
    ElectricWords words(disk.path());
    EXPECT_TRUE(words.replace(ElectricWordsOf(optionText)));
    EditorOptions options = ParseOptions(optionText);
    RecordingNotices notices;
    const ExtensionProfile profile;
    TextDocument document(options, notices);
    document.setProfile(profile);
    EditView view(document, options, notices);
    view.resize(10, 80);
    MemoryClipboard clipboard;
    view.setClipboard(clipboard);
    view.setElectric(words);
    FillDocument(document, replayCase.before);
    const std::vector<std::string> before = ShowDocument(document);
    for (const ReplayStep& step : replayCase.steps) {
        PressAll(view, clipboard, step.keys);
        if (!step.expected.empty()) {
            EXPECT_EQ(Joined(ShowDocument(document)), Joined(step.expected)) << "after: " << step.keys;
        }
        if (!step.status.empty()) {
            EXPECT_EQ(notices.lastStatus(), step.status) << "after: " << step.keys;
        }
        if (!step.clipboard.empty()) {
            EXPECT_EQ(Shown(clipboard), step.clipboard) << "after: " << step.keys;
        }
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
