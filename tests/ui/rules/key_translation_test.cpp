#include "ui/document/key_translation.h"

#include <gtest/gtest.h>

#include <string>

#include "support/case_files.h"

namespace vexa {
namespace {

// A key as a word: its code, then "S", "C", "A" for the modifiers and "K" for the keypad; "-" when the view gets
// nothing.
std::string Word(const std::optional<KeyEvent>& event) {
    if (!event) return "-";
    if (event->key == kKeyNone) return "'" + std::to_string(event->character) + "'x" + std::to_string(event->repeat);
    return std::to_string(event->key) + (event->shift ? "S" : "") + (event->control ? "C" : "") +
           (event->alt ? "A" : "") + (event->keypad ? "K" : "");
}

constexpr bool kOn = true;
constexpr test::CaseFile kFiles[] = {
#include "rule_cases.inc"
};

TEST(KeyTranslation, KeysBecomeKeystrokes) {
    for (const test::Cells& row : test::RowsOf(kFiles, "keys")) {
        const auto has = [&](char flag) { return row.at(2).find(flag) != std::string::npos; };
        KeyTranslator translator;
        EXPECT_EQ(Word(translator.keyDown({.key = static_cast<std::uint16_t>(std::stoi(row.at(1))),
                                           .extended = has('E'),
                                           .shift = has('S'),
                                           .control = has('C'),
                                           .alt = has('A')})),
                  row.at(3))
            << row.at(0);
    }
}

TEST(KeyTranslation, RepeatedKeysAndCharactersKeepTheirCount) {
    KeyTranslator translator;
    EXPECT_EQ(translator.keyDown({.key = 0x25, .repeat = 7})->repeat, 7);
    EXPECT_EQ(Word(translator.character('x', 3, false)), "'120'x3");
}

TEST(KeyTranslation, ControlCharactersAreDroppedAndAllOthersAreTyped) {
    KeyTranslator translator;
    for (const unsigned char c : std::initializer_list<unsigned char>{0, '\b', '\t', '\r', 0x1B, 0x1F})
        EXPECT_EQ(Word(translator.character(c, 1, false)), "-") << int{c};
    for (const unsigned char c : std::initializer_list<unsigned char>{0x20, 0x7E, 0x7F, 0x80, 0xFF})
        EXPECT_NE(Word(translator.character(c, 1, false)), "-");
    EXPECT_EQ(Word(translator.character(127, 1, true)), "-");       // what Ctrl+Backspace makes
    EXPECT_EQ(Word(translator.character('@', 1, true)), "'64'x1");  // typed with AltGr
}

TEST(KeyTranslation, CharacterOfAUsedKeyIsDroppedUntilTheNextKey) {
    KeyTranslator translator;
    translator.keyDown({.key = 0x6B});
    translator.used();
    EXPECT_TRUE(translator.dropsCharacter());
    EXPECT_EQ(Word(translator.character('+', 1, false)), "-");
    translator.keyDown({.key = 'Q', .control = kOn, .alt = kOn});
    EXPECT_EQ(Word(translator.character('@', 1, true)), "'64'x1");
}

}  // namespace
}  // namespace vexa
