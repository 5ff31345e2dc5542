// What the settings file keeps of printing, and the rules of the "Page Setup" dialog.
#include <gtest/gtest.h>

#include <string>

#include "document/print/page_setup_model.h"
#include "support/case_files.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

TEST(PrintOptionsFile, KeepsEverySettingAndMendsMarginsOutOfRange) {
    test::TestDisk disk;
    ConfigStore store(disk.path("vexa.INI"));
    PrintOptions loaded;
    loaded.Load(store);
    EXPECT_EQ(loaded, PrintOptions{});
    const PrintOptions other{.colours = false, .lineNumbers = true, .header = false, .margins = {0, 1, 2540, 10160}};
    other.Save(store);
    loaded.Load(store);
    EXPECT_EQ(loaded, other);
    store.WriteInt("Print", "LeftMargin", -5);
    store.WriteString("Print", "TopMargin", "99999999999");
    store.WriteString("Print", "RightMargin", "wide");
    loaded.Load(store);
    EXPECT_EQ(loaded.margins, (PrintMargins{0, PrintOptions::kWidestMargin, 0, 10160}));
}

constexpr test::CaseFile kFiles[] = {
#include "document_cases.inc"
};

TEST(PageSetup, LengthsAreShownAndReadInTheUsersUnit) {
    constexpr auto kMm = LengthUnit::Millimetres;
    constexpr auto kInch = LengthUnit::Inches;
    EXPECT_EQ(ShownLength(2000, kMm), "20");
    EXPECT_EQ(ShownLength(1250, kMm), "12.5");
    EXPECT_EQ(ShownLength(5, kMm), "0.05");
    EXPECT_EQ(ShownLength(0, kMm), "0");
    EXPECT_EQ(ShownLength(2000, kInch), "0.79");
    EXPECT_EQ(ShownLength(2540, kInch), "1");
    for (const test::Cells& row : test::RowsOf(kFiles, "lengths")) {
        const auto length = TypedLength(row.at(0), row.at(1) == "mm" ? kMm : kInch);
        EXPECT_EQ(length ? std::to_string(*length) : "-", row.at(2)) << row.at(0);
    }
}

TEST(PageSetup, BadMarginsAreRefusedOneAfterTheOther) {
    const PrintOptions options;
    PageSetupModel model(options, LengthUnit::Millimetres);
    EXPECT_EQ(model.badMargin(), std::nullopt);
    EXPECT_EQ(model.refusal(), "A margin must be a number 0 to 101.6 millimeters.");
    model.margins.top = "wide";
    model.margins.bottom = "200";
    EXPECT_EQ(model.badMargin(), &PageSetupModel::Margins::top);
    model.margins.top = "9";
    EXPECT_EQ(model.badMargin(), &PageSetupModel::Margins::bottom);
    EXPECT_EQ(PageSetupModel(options, LengthUnit::Inches).refusal(), "A margin must be a number 0 to 4 inches.");
}

TEST(PageSetup, UpdateStoresWhatWasChangedAndLeavesTheRestToTheHundredth) {
    PrintOptions options;
    PageSetupModel model(options, LengthUnit::Inches);
    model.margins.right = "1.5";
    model.colours = false;
    model.lineNumbers = true;
    model.header = false;
    model.update(options);
    EXPECT_EQ(
        options,
        (PrintOptions{.colours = false, .lineNumbers = true, .header = false, .margins = {2000, 1500, 3810, 1500}}));
}

}  // namespace
}  // namespace vexa
