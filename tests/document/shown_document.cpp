#include "document/shown_document.h"

#include <algorithm>
#include <cstdio>

namespace vexa::test {

std::string Unescape(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            result += text[i];
        } else if (text[++i] == 't') {
            result += '\t';
        } else if (text[i] == 'r') {
            result += '\r';
        } else if (text[i] == 'n') {
            result += '\n';
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

void FillDocument(TextDocument& document, std::vector<std::string> lines) {
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

namespace {

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

}  // namespace

std::vector<std::string> ShowDocument(const TextDocument& document) {
    LineIndex last = std::max(document.lastLine(LastUsed::Text), document.currentLine());
    if (document.marked().active) last = std::max(last, document.marked().end.line);
    std::vector<std::string> lines;
    for (LineIndex line; line <= last; ++line)
        lines.push_back(WithSigns(document, line, SignsOf(document, line)));
    return lines;
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string all;
    for (const std::string& line : lines)
        all += "> " + line + "\n";
    return all;
}

}  // namespace vexa::test
