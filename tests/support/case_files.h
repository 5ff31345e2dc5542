// Files of cases that are compiled into a test program; each case is a test. A line "# What happens" begins a case and
// names it, every other line is a step of it. In cases of some kinds a step has more lines, each of which begins with a
// mark and a blank; marked lines in front of all steps belong to an empty one:
//
//   # A key writes a character
//   < |                           the marks of this kind are "<>"
//   "a"
//   > a|
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::test {

struct CaseFile {
    const char* topic;
    const char* content;
};

struct MarkedLine {
    char mark;
    std::string text;
};

struct CaseStep {
    // The texts of its lines with one mark.
    std::vector<std::string> marked(char mark) const;

    int number;  // of its line in the file
    std::string text;
    std::vector<MarkedLine> lines = {};
};

struct Case {
    std::string topic;
    std::string name;
    std::vector<CaseStep> steps = {};

    // How GoogleTest names a case in its messages.
    friend void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }
};

std::vector<Case> CasesOf(std::span<const CaseFile> files, std::string_view marks = {});

// The name of a case's test, of letters and digits.
std::string CaseName(const testing::TestParamInfo<Case>& info);

// The cases as tests of a suite; `run` takes one and reports its failures to GoogleTest.
#define VEXA_CASES(Suite, cases, run)                                   \
    class Suite : public testing::TestWithParam<::vexa::test::Case> {}; \
    TEST_P(Suite, Case) {                                               \
        (run)(GetParam());                                              \
    }                                                                   \
    INSTANTIATE_TEST_SUITE_P(Cases, Suite, testing::ValuesIn(cases), &::vexa::test::CaseName)

// ---- words ---------------------------------------------------------------------------------------------------------

// The words of a step, which are taken one by one. What is missing is empty, or 0. With the path of a disk they have
// escapes: {r}, {n} and {t} stand for these characters, {rn} for both of a line end, {1A} for any byte, {x*300} for 300
// times the text, {disk} for that path, {..} for three full stops, and {} for nothing.
class Words {
  public:
    explicit Words(std::string text, std::string disk = {}) : text_(std::move(text)), disk_(std::move(disk)) {}

    std::string word();
    int number();
    bool yes() { return word() == "yes"; }
    std::string rest() const;
    bool more() const { return !text_.empty(); }

  protected:
    std::string text_;

  private:
    std::string disk_;
};

std::string Unbraced(const std::string& text, const std::string& disk);

struct KeyWord {
    std::string text;
    bool isQuoted;
};

// Words, and texts in quotes, at whose end no blank is needed.
std::vector<KeyWord> KeyWordsOf(const std::string& line, char quote = '"');

// Takes "*3" off the end of a word; 1 when there is none.
int TakeCount(std::string& word);

// ---- tables --------------------------------------------------------------------------------------------------------

using Cells = std::vector<std::string>;

// The cells of a row: words, and texts in backquotes, in which \xNN stands for a byte.
Cells CellsOf(const std::string& row);

// The rows of a topic's table, without empty lines and remarks.
std::vector<Cells> RowsOf(std::span<const CaseFile> files, std::string_view topic);

}  // namespace vexa::test
