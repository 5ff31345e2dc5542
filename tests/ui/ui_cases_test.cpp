// Runs the cases of the folder cases/ with the real program, one test a case.
#include <gtest/gtest.h>

#include <cstdlib>

#include "ui/ui_case.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "ui_cases.inc"
};
constexpr CaseFile kPictures[] = {
#include "ui_pictures.inc"
};
constexpr std::string_view kMarks = "<>";

VEXA_CASES(Ui, CasesOf(kFiles, kMarks), &RunUiCase);

// Those that the manual shows; tools/screenshots runs them.
VEXA_CASES(Manual, CasesOf(kPictures, kMarks), [](const Case& picture) {
    if (!std::getenv("VEXA_MANUAL")) GTEST_SKIP() << "no pictures are wanted for the manual";
    RunUiCase(picture);
});

}  // namespace
}  // namespace vexa::test
