#include "ui/document/key_translation.h"

#include <gtest/gtest.h>

#include <string>

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

TEST(KeyTranslation, KeysBecomeKeystrokes) {
    struct Case {
        const char* what;
        KeyPress press;
        const char* word;
    };
    const Case cases[] = {
        {"letter", {.key = 'A'}, "65"},
        {"letter with Alt", {.key = 'D', .alt = kOn}, "68A"},
        {"letter with AltGr", {.key = 'Q', .control = kOn, .alt = kOn}, "-"},
        {"delete with AltGr", {.key = 0x2E, .extended = kOn, .control = kOn, .alt = kOn}, "-"},
        {"grey left arrow", {.key = 0x25, .extended = kOn, .shift = kOn}, "37S"},
        {"keypad left arrow", {.key = 0x25}, "37K"},
        {"grey insert", {.key = 0x2D, .extended = kOn}, "45"},
        {"keypad insert", {.key = 0x2D}, "45K"},
        {"keypad plus", {.key = 0x6B}, "107K"},
        {"keypad minus", {.key = 0x6D, .control = kOn}, "109CK"},
        {"keypad divide, which is extended", {.key = 0x6F, .extended = kOn}, "111K"},
        {"main minus", {.key = 0xBD}, "189"},
        {"main enter", {.key = 0x0D}, "13"},
        {"keypad enter", {.key = 0x0D, .extended = kOn}, "13K"},
        {"digit of a character code, Num Lock on", {.key = 0x62, .alt = kOn}, "-"},
        {"digit of a character code, Num Lock off", {.key = 0x28, .alt = kOn}, "-"},
        {"the 5 of a character code, Num Lock off", {.key = 0x0C, .alt = kOn}, "-"},
        {"grey down arrow with Alt", {.key = 0x28, .extended = kOn, .alt = kOn}, "40A"},
        {"keypad plus with Alt", {.key = 0x6B, .alt = kOn}, "107AK"},
    };
    for (const Case& c : cases) {
        KeyTranslator translator;
        EXPECT_EQ(Word(translator.keyDown(c.press)), c.word) << c.what;
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
