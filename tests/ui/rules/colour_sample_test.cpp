#include "ui/dialogs/colour_sample.h"

#include <gtest/gtest.h>

#include <set>

namespace vexa {
namespace {

std::set<ColourElement> ElementsIn(const std::vector<ViewRow>& rows) {
    std::set<ColourElement> elements;
    for (const ViewRow& row : rows) {
        for (const CellRun& run : row.runs)
            elements.insert({run.text, run.background});
    }
    return elements;
}

TEST(ColourSample, ShowsEveryElementAndWithoutHighlightingOnlyThoseOfPlainText) {
    EXPECT_EQ(ElementsIn(ColourSampleRows(true)).size(), 10u);
    EXPECT_EQ(ElementsIn(ColourSampleRows(false)),
              (std::set{ColourElement::Background, ColourElement::DefaultText, ColourElement::MarkingBackground,
                        ColourElement::MarkingText}));
}

TEST(ColourSample, RunsFollowEachOtherAndCoverTheText) {
    for (const ViewRow& row : ColourSampleRows(true)) {
        std::int32_t end = 0;
        for (const CellRun& run : row.runs) {
            EXPECT_EQ(run.start, end) << row.cells;
            end = run.start + run.length;
        }
        EXPECT_GE(end, static_cast<std::int32_t>(row.cells.size())) << row.cells;
    }
}

}  // namespace
}  // namespace vexa
