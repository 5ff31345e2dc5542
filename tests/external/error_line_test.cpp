// What lines of compilers mean.
#include <gtest/gtest.h>

#include <map>

#include "external/error_line_parser.h"
#include "support/case_files.h"

namespace vexa {
namespace {

constexpr test::CaseFile kFiles[] = {
#include "external_cases.inc"
};

TEST(ErrorLines, TellLevelLineAndFile) {
    static const std::map<std::string, ErrorLevel> kLevels = {
        {"none", ErrorLevel::None}, {"warning", ErrorLevel::Warning}, {"error", ErrorLevel::Error}};
    ErrorLineParser parser;
    for (const test::Cells& row : test::RowsOf(kFiles, "error_lines")) {
        parser.Parse("main.cpp", row.at(0));
        EXPECT_EQ(parser.level(), kLevels.at(row.at(1))) << row.at(0);
        if (parser.level() == ErrorLevel::None) continue;
        EXPECT_EQ(parser.lineNumber(), row.at(2) == "-" ? ErrorLineParser::kNoLine : std::stoi(row.at(2))) << row.at(0);
        EXPECT_EQ(parser.fileName(), row.at(3)) << row.at(0);
        EXPECT_EQ(parser.isExternal(), row.size() > 4) << row.at(0);
    }
}

TEST(ErrorLines, TheScanNeverGoesBack) {
    EXPECT_EQ(ScanIgnoringCase("see Main.CPP", "main.cpp"), 4u);
    EXPECT_EQ(ScanIgnoringCase("ababac", "ABAC"), std::nullopt);
    EXPECT_EQ(ScanIgnoringCase("abxabac", "ABAC"), 3u);
    EXPECT_EQ(ScanIgnoringCase("eerror", "error"), 1u);
    EXPECT_EQ(ScanIgnoringCase("main", "main.cpp"), std::nullopt);
    EXPECT_EQ(ScanIgnoringCase("main", ""), std::nullopt);
}

}  // namespace
}  // namespace vexa
