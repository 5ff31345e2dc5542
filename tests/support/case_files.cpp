#include "support/case_files.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <sstream>

namespace vexa::test {

namespace {

struct NumberedLine {
    int number;
    std::string text;
};

// Those that are not empty.
std::vector<NumberedLine> LinesOf(const CaseFile& file) {
    std::vector<NumberedLine> all;
    std::istringstream lines(file.content);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        if (!line.empty()) all.push_back({number, line});
    }
    return all;
}

bool IsMarked(const std::string& line, std::string_view marks) {
    return marks.find(line[0]) != std::string_view::npos && (line.size() == 1 || line[1] == ' ');
}

// What stands between braces, or nothing when it is no escape.
std::optional<std::string> Named(const std::string& name, const std::string& disk) {
    static const std::map<std::string, std::string> kNames = {{"", ""},    {"r", "\r"},    {"n", "\n"},
                                                              {"t", "\t"}, {"rn", "\r\n"}, {"..", "..."}};
    if (name == "disk") return disk;
    if (const auto known = kNames.find(name); known != kNames.end()) return known->second;
    if (name.size() == 2 && name.find_first_not_of("0123456789ABCDEF") == std::string::npos)
        return std::string(1, static_cast<char>(std::stoi(name, nullptr, 16)));
    const std::size_t star = name.find('*');
    if (star == std::string::npos || star + 1 == name.size()) return std::nullopt;
    const std::string once = Named(name.substr(0, star), disk).value_or(name.substr(0, star));
    std::string all;
    for (int count = std::stoi(name.substr(star + 1)); count > 0; --count)
        all += once;
    return all;
}

}  // namespace

std::vector<std::string> CaseStep::marked(char mark) const {
    std::vector<std::string> texts;
    for (const MarkedLine& line : lines) {
        if (line.mark == mark) texts.push_back(line.text);
    }
    return texts;
}

std::vector<Case> CasesOf(std::span<const CaseFile> files, std::string_view marks) {
    std::vector<Case> cases;
    for (const CaseFile& file : files) {
        for (const NumberedLine& line : LinesOf(file)) {
            const std::string rest = line.text.substr(std::min(line.text.size(), std::size_t{2}));
            if (IsMarked(line.text, "#")) {
                cases.push_back({file.topic, rest});
                continue;
            }
            std::vector<CaseStep>& steps = cases.at(cases.size() - 1).steps;
            const bool isMarked = IsMarked(line.text, marks);
            if (!isMarked || steps.empty()) steps.push_back({line.number, isMarked ? "" : line.text});
            if (isMarked) steps.back().lines.push_back({line.text[0], rest});
        }
    }
    return cases;
}

std::string CaseName(const testing::TestParamInfo<Case>& info) {
    std::string name = info.param.topic + "_" + info.param.name;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

std::string Unbraced(const std::string& text, const std::string& disk) {
    std::string all;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t end = text[i] == '{' ? text.find('}', i) : std::string::npos;
        const auto named = end == std::string::npos ? std::nullopt : Named(text.substr(i + 1, end - i - 1), disk);
        all += named.value_or(std::string(1, text[i]));
        if (named) i = end;
    }
    return all;
}

std::string Words::word() {
    const std::size_t end = std::min(text_.find(' '), text_.size());
    const Words first(text_.substr(0, end), disk_);
    text_.erase(0, end + 1);
    return first.rest();
}

int Words::number() {
    const std::string text = word();
    return text.empty() ? 0 : std::stoi(text);
}

std::string Words::rest() const {
    return disk_.empty() ? text_ : Unbraced(text_, disk_);
}

std::vector<KeyWord> KeyWordsOf(const std::string& line, char quote) {
    std::vector<KeyWord> words;
    for (std::size_t at = 0; (at = line.find_first_not_of(" \n", at)) != std::string::npos;) {
        const bool isQuoted = line[at] == quote;
        const std::size_t end =
            std::min(isQuoted ? line.find(quote, at + 1) : line.find_first_of(" \n", at), line.size());
        words.push_back({line.substr(at + isQuoted, end - at - isQuoted), isQuoted});
        at = end + 1;
    }
    return words;
}

int TakeCount(std::string& word) {
    const std::size_t star = word.find('*');
    if (star == std::string::npos) return 1;
    const int count = std::stoi(word.substr(star + 1));
    word.erase(star);
    return count;
}

Cells CellsOf(const std::string& row) {
    Cells cells;
    for (auto& [cell, isQuoted] : KeyWordsOf(row, '`')) {
        for (std::size_t i = 0; (i = cell.find("\\x", i)) != std::string::npos; ++i) {
            if (i + 4 > cell.size() || cell.find_first_not_of("0123456789ABCDEF", i + 2) < i + 4) continue;
            cell.replace(i, 4, 1, static_cast<char>(std::stoi(cell.substr(i + 2, 2), nullptr, 16)));
        }
        cells.push_back(std::move(cell));
    }
    return cells;
}

std::vector<Cells> RowsOf(std::span<const CaseFile> files, std::string_view topic) {
    std::vector<Cells> rows;
    for (const CaseFile& file : files) {
        if (file.topic != topic) continue;
        for (const NumberedLine& line : LinesOf(file)) {
            if (line.text[0] != '#') rows.push_back(CellsOf(line.text));
        }
    }
    return rows;
}

}  // namespace vexa::test
