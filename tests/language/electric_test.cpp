// The electric words: their list, their file and the dialog's rules.
#include <gtest/gtest.h>

#include "language/electric_list.h"
#include "language/electric_model.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

std::string Shown(const ElectricList& list) {
    std::string shown;
    for (const ElectricEntry& entry : list.entries())
        shown += entry.keyword + "=" + entry.expansion + ";";
    return shown;
}

std::string FileLine(const std::string& keyword, const std::string& expansion) {
    char line[400];
    std::snprintf(line, sizeof line, "%-10.10s\t%-2.2s\t%-300.300s\r\n", keyword.c_str(),
                  std::to_string(keyword.size()).c_str(), expansion.c_str());
    return line;
}

TEST(ElectricList, KeepsWhatTheFileCanHold) {
    struct Row {
        std::string keyword, expansion, shown;
        ElectricSet result = ElectricSet::Done;
    };
    const Row rows[] = {
        {"if", "if (\\c)", "if=if (\\c);"},
        {"  for  each", "x", "for=x;"},
        {"abcdefghijklm", "x", "abcdefghij=x;"},
        {"a", "one\r\ntwo\nthree\rfour\tfive\x01six", "a=one\\ntwo\\nthree\\nfour\\tfive six;"},
        {"a", "return ", "a=return \\c;"},
        {"a", "  ", "a=  \\c;"},
        {"a", std::string(400, 'x'), "a=" + std::string(300, 'x') + ";"},
        {"a", std::string(299, 'x') + "  ", "a=" + std::string(298, 'x') + ";"},
        {"a", "x" + std::string(400, ' '), "a=x" + std::string(297, ' ') + "\\c;"},
        {"", "x", "", ElectricSet::NoKeyword},
        {" \t", "x", "", ElectricSet::NoKeyword},
        {"\nif", "x", "", ElectricSet::NoKeyword},
        {"a", "", "", ElectricSet::NoExpansion},
    };
    for (const Row& row : rows) {
        ElectricList list;
        EXPECT_EQ(list.set(row.keyword, row.expansion), row.result) << row.keyword;
        EXPECT_EQ(Shown(list), row.shown) << row.keyword;
        EXPECT_EQ(DecodeElectricList(EncodeElectricList(list)), list) << row.keyword;
    }
}

TEST(ElectricList, IsSortedFindsByLetterCaseAndIsLimited) {
    ElectricList list;
    for (const char* keyword : {"while", "If", "if", "for"})
        list.set(keyword, "x");
    list.set("if", "y");
    EXPECT_EQ(Shown(list), "If=x;for=x;if=y;while=x;");
    EXPECT_EQ(list.find("if"), 2u);
    EXPECT_EQ(list.find("IF"), std::nullopt);
    EXPECT_TRUE(list.remove("If"));
    EXPECT_FALSE(list.remove("If"));
    for (int i = 0; list.entries().size() < kElectricEntryLimit; ++i)
        EXPECT_EQ(list.set("k" + std::to_string(i), "x"), ElectricSet::Done);
    EXPECT_EQ(list.set("one.more", "x"), ElectricSet::Full);
    EXPECT_EQ(list.set("if", "z"), ElectricSet::Done) << "a keyword that is there";
}

TEST(ElectricFile, HasFixedFieldsAndReadsAnything) {
    ElectricList list;
    list.set("if", "if (\\c)");
    EXPECT_EQ(EncodeElectricList(list), "1\r\n" + FileLine("if", "if (\\c)"));

    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"garbage\r\nmore\tof it\r\n", ""},
        {"1\n" + FileLine("b", "x") + "a\t1\tby hand\n", "a=by hand;b=x;"},
        {"9\r\na\t99\tone\r\na\t1\ttwo\r\n", "a=one;"},
        {"\ta\tb\n  \t2\tx\n", ""},
        {"a\t1\t   \n", ""},
        {"a\t1\tb\tc", "a=b\\tc;"},
        {std::string("a\t1\tb\0c\n", 8), "a=b c;"},
        {"abcdefghijkl\t12\t" + std::string(1000, 'y'), "abcdefghij=" + std::string(300, 'y') + ";"},
    };
    for (const auto& [bytes, shown] : rows)
        EXPECT_EQ(Shown(DecodeElectricList(bytes)), shown) << bytes;
}

}  // namespace
}  // namespace vexa
