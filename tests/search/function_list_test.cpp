// Which functions are found in a text, and the rules of the dialog that lists them.
#include <gtest/gtest.h>

#include "regexp/regex_matcher.h"
#include "search/function_list.h"
#include "search/function_list_model.h"
#include "support/case_files.h"
#include "support/recording_notices.h"

namespace vexa {
namespace {

constexpr test::CaseFile kFiles[] = {
#include "function_cases.inc"
};

// A line is "12 int name", the line counted from 1.
std::vector<std::string> FunctionsIn(const std::string& name, const std::vector<std::string>& lines) {
    EditorOptions options;
    test::RecordingNotices notices;
    TextDocument document(options, notices);
    document.newEmpty();
    document.setName("C:\\" + name);
    for (std::size_t i = 0; i < lines.size(); ++i)
        document.lines().put(document.makeLine(lines[i]), static_cast<std::int32_t>(i));
    std::vector<std::string> shown;
    for (const FunctionEntry& entry : FunctionsOf(document))
        shown.push_back(std::to_string(entry.line.value + 1) + " " + entry.name);
    return shown;
}

// The files of the folder functions/: the name of a file, its lines, and the functions that are found. What others have
// chosen about letter case plays no part.
VEXA_CASES(FunctionCases, test::CasesOf(kFiles, "<>"), [](const test::Case& functions) {
    const test::CaseStep& source = functions.steps.at(0);
    for (const bool ignoresCase : {true, false}) {
        SetRegExpIgnoreCase(ignoresCase);
        EXPECT_EQ(FunctionsIn(source.text, source.marked('<')), functions.steps.at(1).marked('>'));
        EXPECT_EQ(RegExpIgnoresCase(), ignoresCase);
    }
});

TEST(FunctionList, TakesNamesOutsideAscii) {
    EXPECT_EQ(FunctionsIn("a.c", {"int \x80() {}"}), std::vector<std::string>{"1 int \x80"});
    EXPECT_EQ(FunctionsIn("a.c", {}), std::vector<std::string>{});
}

class FunctionsDialog : public testing::Test {
  protected:
    static FunctionListModel at(std::int32_t line) {
        return FunctionListModel(
            {{"int alpha", LineIndex(4)}, {"int beta", LineIndex(9)}, {"void Alphabet", LineIndex(20)}},
            LineIndex(line));
    }
};

TEST_F(FunctionsDialog, TheFunctionWithTheCaretIsChosen) {
    const std::pair<int, int> rows[] = {{0, 4}, {4, 4}, {8, 4}, {9, 9}, {19, 9}, {500, 20}};
    for (const auto& [line, chosen] : rows)
        EXPECT_EQ(at(line).chosenLine(), LineIndex(chosen)) << line;
    const FunctionListModel none({}, LineIndex(3));
    EXPECT_EQ(none.chosenRow(), std::nullopt);
    EXPECT_EQ(none.chosenLine(), std::nullopt);
}

TEST_F(FunctionsDialog, TheFilterKeepsTheChosenFunctionWhileItIsShown) {
    FunctionListModel model = at(25);
    model.setFilter("ALPHA");
    EXPECT_EQ(model.rows(), (std::vector<std::string>{"5\tint alpha", "21\tvoid Alphabet"}));
    EXPECT_EQ(model.chosenRow(), 1u);
    model.setFilter("int");
    EXPECT_EQ(model.chosenRow(), 0u) << "it is no longer shown";
    model.setFilter("none");
    EXPECT_EQ(model.rows().size(), 0u);
    EXPECT_EQ(model.chosenLine(), std::nullopt);
    model.setFilter("a");
    model.chooseRow(2);
    model.chooseRow(3);
    EXPECT_EQ(model.chosenLine(), LineIndex(20));
}

}  // namespace
}  // namespace vexa
