// What lines of compilers mean.
#include <gtest/gtest.h>

#include "external/error_line_parser.h"

namespace vexa {
namespace {

constexpr std::int32_t kNone = ErrorLineParser::kNoLine;

struct ErrorLineCase {
    const char* line;
    ErrorLevel level;
    std::int32_t number = kNone;
    const char* fileName = "";
    bool external = false;
};

// The document is main.cpp.
const ErrorLineCase kCases[] = {
    {"Error main.cpp 12: Undefined symbol", ErrorLevel::Error, 12, "main.cpp"},
    {"warning: foo.h(30): x", ErrorLevel::Warning, 30, "foo.h", true},
    {"there is an ERROR somewhere", ErrorLevel::None},
    {"warning and error in line 5 ", ErrorLevel::Error, 5},
    {"main.cpp:12:5: error: expected ';' before '}' token", ErrorLevel::Error, 12, "main.cpp"},
    {"MAIN.CPP(7) : warning C4101: 'i'", ErrorLevel::Warning, 7, "main.cpp"},
    {"inc\\deep.h:3:1: error: unknown type", ErrorLevel::Error, 3, "inc\\deep.h", true},
    {"C:\\SRC\\INC\\A.H(44): error 2", ErrorLevel::Error, 44, "C:\\SRC\\INC\\A.H", true},
    {"Warning W8004 unit.c 9: 'x' is assigned", ErrorLevel::Warning, 9, "unit.c", true},
    {"error: no such file", ErrorLevel::None},
    {"error: cannot find crt0.o", ErrorLevel::Error, kNone, "crt0.o", true},
    {"5 errors generated.", ErrorLevel::None},
    {"terrors (3)", ErrorLevel::None},
    {"main.cpp(0): error", ErrorLevel::None},
    {"main.cpp(0): error ", ErrorLevel::Error, 0, "main.cpp"},
    {"main.cpp(-4): error ", ErrorLevel::Error, kNone, "main.cpp"},
    {"main.cpp(9999999999): error ", ErrorLevel::Error, INT32_MAX, "main.cpp"},
    {"", ErrorLevel::None},
};

TEST(ErrorLines, TellLevelLineAndFile) {
    ErrorLineParser parser;
    for (const ErrorLineCase& row : kCases) {
        parser.Parse("main.cpp", row.line);
        EXPECT_EQ(parser.level(), row.level) << row.line;
        if (row.level == ErrorLevel::None) continue;
        EXPECT_EQ(parser.lineNumber(), row.number) << row.line;
        EXPECT_EQ(parser.fileName(), row.fileName) << row.line;
        EXPECT_EQ(parser.isExternal(), row.external) << row.line;
    }
}

TEST(ErrorLines, TheScanNeverGoesBack) {
    EXPECT_EQ(ScanIgnoringCase("see Main.CPP", "main.cpp"), 4u);
    EXPECT_EQ(ScanIgnoringCase("ababac", "ABAC"), std::nullopt);
    EXPECT_EQ(ScanIgnoringCase("abxabac", "ABAC"), 3u);
    EXPECT_EQ(ScanIgnoringCase("main", "main.cpp"), std::nullopt);
    EXPECT_EQ(ScanIgnoringCase("main", ""), std::nullopt);
}

}  // namespace
}  // namespace vexa
