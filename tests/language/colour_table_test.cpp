#include "language/colour_table.h"

#include <gtest/gtest.h>

#include "language/colour_setup_model.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using E = ColourElement;

TEST(ColourTable, ComesUpAsClassicVexa) {
    test::TestDisk disk;
    ColourTable table;
    table.setElementColour(E::Strings, 2);
    table.setHighlighting(false);
    table.load(ConfigStore(disk.path("VEXA.INI")));
    EXPECT_EQ(table, ColourTable());
    EXPECT_EQ(table.elementColours(), PresetColours(ColourPreset::ClassicVexa, {}));
    EXPECT_TRUE(table.isHighlightingOn());
    EXPECT_EQ(table.colourOf(E::Background), (Rgb{0, 0, 128}));
    EXPECT_EQ(table.colourOf(E::DefaultText), (Rgb{255, 255, 0}));
    EXPECT_EQ(table.colourOf(E::Keywords), (Rgb{255, 255, 255}));
}

TEST(ColourTable, IsWrittenInItsOrderAndReadBack) {
    test::TestDisk disk;
    ColourTable table;
    for (int i = 0; i < 10; ++i)
        table.setElementColour(static_cast<E>(i), 20 + i);
    table.setHighlighting(false);
    ConfigStore store(disk.path("VEXA.INI"));
    table.save(store);
    ColourTable again;
    again.load(store);
    EXPECT_EQ(again, table) << "indices outside the palette are kept";
    std::string text = disk.get("VEXA.INI");
    std::erase(text, '\r');
    EXPECT_NE(text.find("[Color Table]\nHighlighting=0\nSymbol=29\nString=28\nNumber=26\nComment=21\nKeyword=23\n"
                        "Default=22\nPreproc=27\nMarkblock=24\nMarktext=25\nBackground=20\n"),
              std::string::npos)
        << text;
}

TEST(ColourTable, AnIndexOutsideThePaletteIsPaintedByItsLowFourBits) {
    ColourTable table;
    table.setElementColour(E::Comments, 18);
    EXPECT_EQ(table.colourOf(E::Comments), kPalette[2]);
    table.setElementColour(E::Comments, -1);
    EXPECT_EQ(table.colourOf(E::Comments), kPalette[15]);
    table.setElementColour(E::Comments, INT32_MIN);
    EXPECT_EQ(table.colourOf(E::Comments), kPalette[0]);
}

TEST(ColourTable, MonochromeIsBlackOnWhiteAndMarksWhiteOnBlack) {
    ColourTable table;
    table.setElementColours(PresetColours(ColourPreset::MonochromeVexa, {}));
    const Rgb white{255, 255, 255};
    for (const E element : {E::Comments, E::DefaultText, E::Keywords, E::Numbers, E::Preprocessors, E::Strings,
                            E::Symbols, E::MarkingBackground})
        EXPECT_EQ(table.colourOf(element), Rgb{}) << ElementName(element);
    EXPECT_EQ(table.colourOf(E::Background), white);
    EXPECT_EQ(table.colourOf(E::MarkingText), white);
}

TEST(ColourSetupModel, PresetsFillTheWorkingSetAndUserDefinedGoesBack) {
    ColourTable table;
    table.setElementColour(E::Comments, 9);
    ColourSetupModel model(table);
    EXPECT_EQ(model.preset(), ColourPreset::UserDefined);
    model.choosePreset(ColourPreset::GrayVexa);
    EXPECT_EQ(model.preset(), ColourPreset::GrayVexa);
    EXPECT_EQ(model.colour(), 1) << "the background is chosen first";
    model.choosePreset(ColourPreset::UserDefined);
    EXPECT_EQ(model.working(), table);
}

TEST(ColourSetupModel, SaysTheContrastOfWhatIsChosen) {
    ColourSetupModel model{ColourTable()};
    const std::pair<E, const char*> rows[] = {
        {E::Background, "Contrast 14.9 to 1"},
        {E::Keywords, "Contrast 16.0 to 1"},
        {E::Numbers, "Contrast 5.1 to 1"},
        {E::MarkingBackground, "Contrast 4.3, hard to read"},
        {E::MarkingText, "Contrast 4.3, hard to read"},
    };
    for (const auto& [element, text] : rows) {
        model.chooseElement(element);
        EXPECT_EQ(model.contrastText(), text) << ElementName(element);
    }
    model.chooseColour(13);
    EXPECT_EQ(model.contrastText(), "Contrast 1.0, hard to read") << "a colour on itself";
}

TEST(ColourSetupModel, OnlyUpdateTakesTheChoicesIntoEffect) {
    ColourTable table;
    ColourSetupModel model(table);
    EXPECT_EQ(model.preset(), ColourPreset::ClassicVexa);
    model.chooseElement(E::Strings);
    EXPECT_EQ(model.colour(), 5);
    model.chooseColour(12);
    model.setHighlighting(false);
    EXPECT_EQ(model.preset(), ColourPreset::UserDefined);
    EXPECT_EQ(table, ColourTable());
    model.update(table);
    EXPECT_EQ(table.indexOf(E::Strings), 12);
    model.chooseColour(5);
    EXPECT_EQ(model.preset(), ColourPreset::ClassicVexa) << "its colours again";
    model.choosePreset(ColourPreset::UserDefined);
    EXPECT_EQ(model.preset(), ColourPreset::UserDefined) << "as it was chosen, though the colours are Classic Vexa's";
    EXPECT_FALSE(table.isHighlightingOn());
}

}  // namespace
}  // namespace vexa
