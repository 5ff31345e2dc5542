#include "document/replay_case.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <sstream>

#include "document/columns.h"
#include "document/edit_view.h"
#include "support/recording_notices.h"

namespace vexa::test {

namespace {

// ---- texts -------------------------------------------------------------------------------------------------------

std::string Unescape(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            result += text[i];
        } else if (text[++i] == 't') {
            result += '\t';
        } else if (text[i] == 'x') {
            result += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
            i += 2;
        } else {
            result += text[i];
        }
    }
    return result;
}

std::string Escape(char c) {
    if (c == '\t') return "\\t";
    if (c == '\\') return "\\\\";
    if (c >= ' ' && c < 127) return std::string(1, c);
    char code[8];
    std::snprintf(code, sizeof code, "\\x%02X", static_cast<unsigned char>(c));
    return code;
}

// Puts the lines into a new document, and its caret where "|" stands.
void Fill(TextDocument& document, std::vector<std::string> lines) {
    document.newEmpty();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        std::string text = Unescape(lines[i]);
        const std::size_t caret = text.find('|');
        if (caret != std::string::npos) text.erase(caret, 1);
        const std::size_t end = std::min(text.find('~'), text.size());
        const auto index = static_cast<std::int32_t>(i);
        document.lines().put(document.makeLine(text.substr(0, end)), index);
        if (caret == std::string::npos) continue;
        document.setCurrentLine(LineIndex(index));
        document.current().setColumn(CharColumn(static_cast<std::int32_t>(caret)));
    }
}

struct Inserted {
    DisplayColumn column;
    const char* sign;
};

// The text of a line with signs at display columns, the space up to a sign beyond its end filled with "~".
std::string WithSigns(const TextDocument& document, LineIndex line, const std::vector<Inserted>& signs) {
    const std::string_view text = document.text(line);
    std::string shown;
    DisplayColumn column;
    const auto signsAt = [&](DisplayColumn here) {
        for (const Inserted& sign : signs) {
            if (sign.column == here) shown += sign.sign;
        }
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        signsAt(column);
        shown += Escape(text[i]);
        column = document.toDisplay(line, CharColumn(static_cast<std::int32_t>(i + 1)));
    }
    DisplayColumn last = column;
    for (const Inserted& sign : signs)
        last = std::max(last, sign.column);
    for (; column < last; ++column) {
        signsAt(column);
        shown += '~';
    }
    signsAt(column);
    return shown;
}

// Marks close before the caret and open behind it.
std::vector<Inserted> SignsOf(const TextDocument& document, LineIndex line) {
    const MarkedArea& area = document.marked();
    const bool inside = area.active && area.start.line <= line && line <= area.end.line;
    const DisplayColumn end =
        document.toDisplay(line, CharColumn(static_cast<std::int32_t>(document.text(line).size())));
    std::vector<Inserted> signs;
    if (inside && area.mode == MarkMode::Lines) {
        signs = {{DisplayColumn(0), "{"}, {end, "}"}};
    } else if (inside && area.mode == MarkMode::Column) {
        signs = {{area.start.column, "{"}, {area.end.column, "}"}};
    } else if (inside) {
        if (line == area.start.line) signs.push_back({area.start.column, "{"});
        if (line == area.end.line) signs.push_back({area.end.column, "}"});
    }
    if (line == document.currentLine()) signs.push_back({document.displayColumn(), "|"});
    return signs;
}

std::vector<std::string> Show(const TextDocument& document) {
    std::int32_t last = std::max(document.lineCount(LastUsed::Text), document.currentLine().value);
    if (document.marked().active) last = std::max(last, document.marked().end.line.value);
    std::vector<std::string> lines;
    for (LineIndex line; line.value <= last; ++line)
        lines.push_back(WithSigns(document, line, SignsOf(document, line)));
    return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string all;
    for (const std::string& line : lines)
        all += "> " + line + "\n";
    return all;
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
        {"Backspace", kKeyBackspace}, {"Tab", kKeyTab},       {"Enter", kKeyEnter}, {"Esc", kKeyEscape},
        {"PgUp", kKeyPageUp},         {"PgDn", kKeyPageDown}, {"End", kKeyEnd},     {"Home", kKeyHome},
        {"Left", kKeyLeft},           {"Up", kKeyUp},         {"Right", kKeyRight}, {"Down", kKeyDown},
        {"Delete", kKeyDelete}};
    return names;
}

const std::map<std::string, void (*)(EditView&)>& Commands() {
    static const std::map<std::string, void (*)(EditView&)> commands = {
        {"Undo", [](EditView& view) { view.undo(); }},
        {"Redo", [](EditView& view) { view.redo(); }},
        {"Clear", [](EditView& view) { view.clear(); }},
        {"SelectAll", [](EditView& view) { view.selectAll(); }}};
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
            command->second(view);
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

void PressAll(EditView& view, const std::string& keys) {
    std::size_t i = 0;
    while ((i = keys.find_first_not_of(' ', i)) != std::string::npos) {
        const bool quoted = keys[i] == '"';
        const std::size_t end = std::min(keys.find(quoted ? '"' : ' ', i + 1), keys.size());
        if (quoted) {
            Type(view, Unescape(keys.substr(i + 1, end - i - 1)));
        } else {
            Press(view, keys.substr(i, end - i));
        }
        i = end + 1;
    }
}

// The number of commands that were undone.
int UndoAll(EditView& view) {
    int commands = 0;
    for (; !view.document().undo().isEmpty(); ++commands)
        view.undo();
    return commands;
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
        } else if (now.before.empty()) {
            now.options += line + " ";
        } else {
            now.steps.push_back({line, {}, {}});
        }
    }
    return cases;
}

void RunReplayCase(const ReplayCase& replayCase) {
    EditorOptions options = ParseOptions(replayCase.options);
    RecordingNotices notices;
    TextDocument document(options, notices);
    EditView view(document, options, notices);
    view.resize(10, 80);
    Fill(document, replayCase.before);
    const std::vector<std::string> before = Show(document);
    for (const ReplayStep& step : replayCase.steps) {
        PressAll(view, step.keys);
        if (!step.expected.empty()) {
            EXPECT_EQ(Joined(Show(document)), Joined(step.expected)) << "after: " << step.keys;
        }
        if (!step.status.empty()) {
            EXPECT_EQ(notices.lastStatus(), step.status) << "after: " << step.keys;
        }
    }
    const std::vector<std::string> after = Show(document);
    int commands = UndoAll(view);
    EXPECT_EQ(Joined(Show(document)), Joined(before)) << "when everything is undone";
    EXPECT_FALSE(document.isModified()) << "when everything is undone";
    for (; commands > 0; --commands)
        view.redo();
    EXPECT_EQ(Joined(Show(document)), Joined(after)) << "when everything is done again";
}

}  // namespace vexa::test
