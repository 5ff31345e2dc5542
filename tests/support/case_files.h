// Files of cases that are compiled into a test program; each case is a test.
#pragma once

#include <algorithm>
#include <cctype>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::test {

struct CaseFile {
    const char* topic;
    const char* content;
};

template <class Case>
using CaseParser = std::vector<Case> (*)(const std::string& topic, const std::string& content);

template <class Case>
std::vector<Case> CasesOf(std::span<const CaseFile> files, CaseParser<Case> parse) {
    std::vector<Case> all;
    for (const CaseFile& file : files) {
        for (Case& one : parse(file.topic, file.content))
            all.push_back(std::move(one));
    }
    return all;
}

// The name of a case's test, of letters and digits.
template <class Info>
std::string CaseName(const Info& info) {
    std::string name = info.param.topic + "_" + info.param.name;
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    }
    return name;
}

// ---- tables --------------------------------------------------------------------------------------------------------

using Cells = std::vector<std::string>;

// The cells of a row: words, and texts in backquotes, in which \xNN stands for a byte.
inline Cells CellsOf(const std::string& row) {
    Cells cells;
    for (std::size_t at = 0; (at = row.find_first_not_of(' ', at)) != std::string::npos;) {
        const bool isQuoted = row[at] == '`';
        const std::size_t end = std::min(row.find(isQuoted ? '`' : ' ', at + 1), row.size());
        std::string cell = row.substr(at + isQuoted, end - at - isQuoted);
        for (std::size_t i = 0; (i = cell.find("\\x", i)) != std::string::npos; ++i) {
            if (i + 4 > cell.size() || cell.find_first_not_of("0123456789ABCDEF", i + 2) < i + 4) continue;
            cell.replace(i, 4, 1, static_cast<char>(std::stoi(cell.substr(i + 2, 2), nullptr, 16)));
        }
        cells.push_back(std::move(cell));
        at = end + 1;
    }
    return cells;
}

// The rows of a topic's table, without empty lines and remarks.
inline std::vector<Cells> RowsOf(std::span<const CaseFile> files, std::string_view topic) {
    std::vector<Cells> rows;
    for (const CaseFile& file : files) {
        std::istringstream lines(file.topic == topic ? file.content : "");
        for (std::string line; std::getline(lines, line);) {
            if (!line.empty() && line[0] != '#') rows.push_back(CellsOf(line));
        }
    }
    return rows;
}

}  // namespace vexa::test
