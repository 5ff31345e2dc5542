// Runs the cases of the folder cases/ with the real program, one test a case.
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/case_files.h"
#include "ui/ui_case.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "ui_cases.inc"
};
constexpr CaseFile kPictures[] = {
#include "ui_pictures.inc"
};

class Ui : public testing::TestWithParam<UiCase> {};

TEST_P(Ui, Case) {
    RunUiCase(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, Ui, testing::ValuesIn(CasesOf<UiCase>(kFiles, &ParseUiCases)),
                         &CaseName<testing::TestParamInfo<UiCase>>);

// Those that the manual shows; tools/screenshots runs them.
class Manual : public testing::TestWithParam<UiCase> {};

TEST_P(Manual, Pictures) {
    if (!std::getenv("VEXA_MANUAL")) GTEST_SKIP() << "no pictures are wanted for the manual";
    RunUiCase(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, Manual, testing::ValuesIn(CasesOf<UiCase>(kPictures, &ParseUiCases)),
                         &CaseName<testing::TestParamInfo<UiCase>>);

}  // namespace
}  // namespace vexa::test
