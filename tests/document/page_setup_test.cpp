// What the settings file keeps of printing, and the rules of the "Page Setup" dialog.
#include <gtest/gtest.h>

#include <string>

#include "document/print/page_setup_model.h"
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

TEST(PageSetup, LengthsAreShownAndReadInTheUsersUnit) {
    constexpr auto kMm = LengthUnit::Millimetres;
    constexpr auto kInch = LengthUnit::Inches;
    EXPECT_EQ(ShownLength(2000, kMm), "20");
    EXPECT_EQ(ShownLength(1250, kMm), "12.5");
    EXPECT_EQ(ShownLength(5, kMm), "0.05");
    EXPECT_EQ(ShownLength(0, kMm), "0");
    EXPECT_EQ(ShownLength(2000, kInch), "0.79");
    EXPECT_EQ(ShownLength(2540, kInch), "1");
    struct {
        const char* typed;
        LengthUnit unit;
        std::optional<std::int32_t> length;
    } const cases[] = {
        {"20", kMm, 2000},
        {" 12,5 ", kMm, 1250},
        {".5", kMm, 50},
        {"7.", kMm, 700},
        {"1.259", kMm, 125},
        {"0", kMm, 0},
        {"101.6", kMm, 10160},
        {"101.61", kMm, std::nullopt},
        {"1", kInch, 2540},
        {"0.79", kInch, 2007},
        {"4", kInch, 10160},
        {"4.01", kInch, std::nullopt},
        {"", kMm, std::nullopt},
        {".", kMm, std::nullopt},
        {"-1", kMm, std::nullopt},
        {"1.2.3", kMm, std::nullopt},
        {"1mm", kMm, std::nullopt},
        {"1.234x", kMm, std::nullopt},
        {"99999999999999999999", kInch, std::nullopt},
    };
    for (const auto& test : cases)
        EXPECT_EQ(TypedLength(test.typed, test.unit), test.length) << test.typed;
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
