#include "language/line_tokenizer.h"

#include <gtest/gtest.h>

#include <random>

#include "language/quote_file.h"
#include "language/token_text.h"
#include "support/case_files.h"

namespace vexa {
namespace {

using test::ColoursOf;

constexpr test::CaseFile kFiles[] = {
#include "language_cases.inc"
};

struct Case {
    std::string_view line;
    std::string_view colours;
};

void ExpectColours(const ExtensionProfile& profile, std::initializer_list<Case> cases) {
    const TokenRules rules(profile);
    for (const Case& one : cases)
        EXPECT_EQ(ColoursOf(rules, one.line), one.colours) << one.line;
}

TEST(LineTokenizer, TheEndOfTheLineHasNoText) {
    const TokenRules rules{ExtensionProfile()};
    LineTokenizer tokens(rules, "");
    for (int i = 0; i < 2; ++i) {
        const Token token = tokens.NextToken();
        EXPECT_EQ(token.kind, TokenKind::EndOfLine);
        EXPECT_EQ(token.text.data(), nullptr);
        EXPECT_EQ(tokens.ColourOfKind(), ColourElement::DefaultText);
    }
}

TEST(LineTokenizer, ColoursLinesOfTheBuiltInProfile) {
    const TokenRules rules{ExtensionProfile()};
    for (const test::Cells& row : test::RowsOf(kFiles, "builtin"))
        EXPECT_EQ(ColoursOf(rules, row.at(0)), row.at(1)) << row.at(0);
}

TEST(LineTokenizer, ColoursLinesOfProfilesWithATextBeside) {
    for (const test::Cells& row : test::RowsOf(kFiles, "quotes")) {
        ExtensionProfile profile;
        profile.setQuotes(ParseQuoteRules(row.at(0)));
        EXPECT_EQ(ColoursOf(TokenRules(profile), row.at(1)), row.at(2)) << row.at(0);
    }
}

TEST(LineTokenizer, ALongWordIsNoKeywordForItsFirstTwentyCharacters) {
    ExtensionProfile profile;
    profile.replaceKeywords({"abcdefghijklmnopqrst"});
    ExpectColours(profile, {{"abcdefghijklmnopqrst", "kkkkkkkkkkkkkkkkkkkk"},
                            {"abcdefghijklmnopqrstu", "wwwwwwwwwwwwwwwwwwwww"}});
}

TEST(LineTokenizer, KeywordsAreFoundInWhateverOrderTheyAreListed) {
    ExtensionProfile profile;
    profile.replaceKeywords({"zebra",
                             "\xFC"
                             "ber",
                             "Alpha", "alpha", "alp"});
    ExpectColours(profile, {{"alp alpha Alpha alph", "kkkykkkkkykkkkkywwww"},
                            {"\xFC"
                             "ber zebra",
                             "kkkkykkkkk"}});
}

TEST(LineTokenizer, MarkersOfOneCharacterAndNone) {
    ExtensionProfile pascal;
    pascal.setCommentStart("{");
    pascal.setCommentEnd("}");
    pascal.setLineComment("");
    // The end is searched from the second character behind the start of the marker.
    ExpectColours(pascal, {{"a { b } c", "wycccccyw"}, {"{}", "cc"}, {"{} }", "cccc"}, {"a } b", "wycyw"}, {"{", "c"}});

    ExtensionProfile basic;
    basic.setCommentStart("'");
    basic.setCommentEnd("");
    basic.setLineComment("");
    ExpectColours(basic, {{"a 'b", "wycc"}, {"a // b", "wywwyw"}});
    EXPECT_EQ(StateAfter(TokenRules(basic), "a 'b", LineState::Outside), LineState::Outside)
        << "no end marker, no next line";
}

TEST(LineTokenizer, WithoutDelimitersOnlyBlanksPartWords) {
    ExtensionProfile profile;
    profile.setDelimiters("");
    ExpectColours(profile, {{"a(b) int;", "wwwwywwww"}, {"(int)", "wwwww"}, {"int ;", "kkkyw"}});
}

TEST(LineTokenizer, LettersAndDigitsAreNoDelimitersThoughListed) {
    ExtensionProfile profile;
    profile.setDelimiters("e1;");
    ExpectColours(profile, {{"else;e1", "kkkkyww"}, {"1e", "nn"}});
}

TEST(LineTokenizer, AByteZeroEndsTheLine) {
    const std::string_view line("a \"b\0\" /*", 9);
    ExpectColours(ExtensionProfile(), {{line, "wyss....."}, {std::string_view("\0", 1), "."}});
    EXPECT_EQ(StateAfter(TokenRules{ExtensionProfile()}, line, LineState::Outside), LineState::Outside);
}

TEST(LineTokenizer, ALineThatStartsInsideACommentBeginsWithItsEnd) {
    const TokenRules rules{ExtensionProfile()};
    EXPECT_EQ(ColoursOf(rules, "b */ c", LineState::Comment), "ccccyw");
    EXPECT_EQ(ColoursOf(rules, "*/", LineState::Comment), "cc");
    EXPECT_EQ(ColoursOf(rules, "// b", LineState::Comment), "cccc");
    EXPECT_EQ(ColoursOf(rules, "\"*/\"", LineState::Comment), "cccs");
}

TEST(LineState, TheEffectOfALineIsThatOfItsTokens) {
    struct {
        std::string_view line;
        bool opens;
        bool closes;
    } const cases[] = {
        {"", false, false},          {"x", false, false},        {"/* x", true, false},   {"x */", false, true},
        {"/* x */", false, true},    {"*/ /*", true, false},     {"// /*", false, false}, {"// */ /*", false, false},
        {"\" */ \" /*", true, true}, {"*/ \"/*\"", false, true},
    };
    const TokenRules rules{ExtensionProfile()};
    for (const auto& one : cases) {
        EXPECT_EQ(StateAfter(rules, one.line, LineState::Outside) == LineState::Comment, one.opens) << one.line;
        EXPECT_EQ(StateAfter(rules, one.line, LineState::Comment) == LineState::Outside, one.closes) << one.line;
    }
}

// ---- against the plain tokenizer -----------------------------------------------------------------------------------

class RandomText {
  public:
    explicit RandomText(unsigned seed) : random_(seed) {}

    std::string of(std::string_view signs, std::size_t longest) {
        std::string text(random_() % (longest + 1), ' ');
        for (char& c : text)
            c = random_() % 40 == 0 ? static_cast<char>(random_() % 256) : signs[random_() % signs.size()];
        return text;
    }
    ExtensionProfile profile() {
        ExtensionProfile profile;
        if (random_() % 4 == 0) return profile;
        profile.setDelimiters(of("()*/{}ab1 \t#\"", 8));
        profile.setCommentStart(of("/*{(a\"", 2));
        profile.setCommentEnd(of("*/})a", 2));
        profile.setLineComment(of("/;a", 2));
        profile.setPreprocessor("#a/\"\0 "[random_() % 6]);
        profile.setStringQuote("\"'a/\0\t"[random_() % 6]);
        profile.replaceKeywords({"a", "ab", "aa", "b1", "if", of("ab(", 3), of("ab", 22)});
        return profile;
    }

  private:
    std::mt19937 random_;
};

TEST(LineTokenizer, AgreesWithThePlainTokenizerWhateverTheProfile) {
    for (unsigned seed = 0; seed < 3000; ++seed) {
        RandomText random(seed);
        const ExtensionProfile profile = random.profile();
        const TokenRules rules(profile);
        for (int i = 0; i < 20; ++i) {
            const std::string line = random.of(i % 2 ? "ab1. /*{}\"#(\t" : "/*\"a}", 30);
            for (const bool startsInside : {false, rules.hasBlockComments()}) {
                bool inside = startsInside;
                const std::string plain = test::PlainColoursOf(profile, line, inside);
                const LineState start = startsInside ? LineState::Comment : LineState::Outside;
                ASSERT_EQ(ColoursOf(rules, line, start), plain) << "seed " << seed << ": " << line;
                ASSERT_EQ(StateAfter(rules, line, start), inside ? LineState::Comment : LineState::Outside)
                    << "seed " << seed << ": " << line;
            }
        }
    }
}

}  // namespace
}  // namespace vexa
