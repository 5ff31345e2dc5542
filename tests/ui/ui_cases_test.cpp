// Runs the cases of the folder cases/ with the real program, one test a case.
#include <gtest/gtest.h>

#include "support/case_files.h"
#include "ui/ui_case.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "ui_cases.inc"
};

class Ui : public testing::TestWithParam<UiCase> {};

TEST_P(Ui, Case) {
    RunUiCase(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cases, Ui, testing::ValuesIn(CasesOf<UiCase>(kFiles, &ParseUiCases)),
                         &CaseName<testing::TestParamInfo<UiCase>>);

}  // namespace
}  // namespace vexa::test
