// Comments that span lines: whatever was edited and undone, the colours are those of the text as it stands.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "document/document_session.h"
#include "document/random_user.h"
#include "language/line_tokenizer.h"
#include "language/quote_file.h"

namespace vexa {
namespace {

// What each line starts as, line by line from the first.
std::vector<LineState> FreshStates(const TextDocument& document, const ExtensionProfile& profile, std::int32_t lines) {
    const TokenRules rules(profile);
    std::vector<LineState> states;
    LineState state = LineState::Outside;
    for (LineIndex line; line.value < lines; ++line) {
        states.push_back(state);
        LineTokenizer tokens(rules, document.text(line), state);
        while (tokens.NextToken().kind != TokenKind::EndOfLine) {
        }
        state = tokens.endState();
    }
    return states;
}

class CommentLines : public testing::Test, protected test::DocumentSession {
  protected:
    void fill(int lines, const std::string& text = "int x;") {
        DocumentSession::fill(std::vector<std::string>(static_cast<std::size_t>(lines), text));
        document_.setProfile(profile_);
    }
    void setText(int line, std::string_view text) { document_.lines().put(document_.makeLine(text), line); }
    void type(LineIndex line, std::string_view text) {
        view_.goTo(line, CharColumn(0));
        DocumentSession::type(text);
    }
    LineState state(int line) { return document_.startState(LineIndex(line)); }
    bool inside(int line) { return GoesOn(state(line)); }
    void expectFresh(const std::string& when) {
        const std::int32_t lines = document_.lastLine(LastUsed::Plain).value + 3;
        const std::vector<LineState> fresh = FreshStates(document_, profile_, lines);
        for (std::int32_t i = 0; i < lines; ++i)
            ASSERT_EQ(state(i), fresh[static_cast<std::size_t>(i)]) << "line " << i << " " << when;
    }

    ExtensionProfile profile_;
};

TEST_F(CommentLines, AnOpenedCommentReachesToItsEndAndGoesWithItsMarker) {
    fill(5000);
    setText(4000, "x */ y");
    EXPECT_FALSE(inside(3000));
    type(LineIndex(0), "/*");
    EXPECT_FALSE(inside(0));
    EXPECT_TRUE(inside(1));
    EXPECT_TRUE(inside(4000));
    EXPECT_FALSE(inside(4001));
    view_.undo();
    expectFresh("after half the marker is undone");
    EXPECT_FALSE(inside(4000));
    view_.redo();
    EXPECT_TRUE(inside(4000));
}

TEST_F(CommentLines, LinesThatComeAndGoCarryTheCommentAlong) {
    fill(300);
    setText(100, "/* a");
    setText(200, "b */");
    EXPECT_TRUE(inside(150));
    view_.goTo(LineIndex(100), CharColumn(0));
    view_.key({.key = 'D', .alt = true});
    expectFresh("without the opening line");
    EXPECT_FALSE(inside(150));
    view_.undo();
    expectFresh("with the opening line");
    EXPECT_TRUE(inside(150));
    view_.goTo(LineIndex(100), CharColumn(1));
    view_.key({.key = kKeyEnter});
    expectFresh("with the marker split");
    EXPECT_FALSE(inside(150));
    view_.key({.key = kKeyBackspace});
    view_.key({.key = kKeyDelete});
}

TEST_F(CommentLines, LinesBeyondTheLastTakeItsState) {
    fill(10);
    setText(9, "/*");
    EXPECT_FALSE(inside(9));
    EXPECT_TRUE(inside(10));
    EXPECT_TRUE(inside(1000000));
}

TEST_F(CommentLines, IdleStepsComeToAnEndAndChangeNothing) {
    fill(1000);
    setText(10, "/*");
    int steps = 1;
    while (document_.lookAheadForComments(128))
        ++steps;
    EXPECT_EQ(steps, 8);
    EXPECT_FALSE(document_.lookAheadForComments(128));
    expectFresh("after the idle steps");
    type(LineIndex(20), "x");
    EXPECT_FALSE(document_.lookAheadForComments(128)) << "an ordinary key takes nothing back";
    type(LineIndex(20), "*/");
    EXPECT_TRUE(document_.lookAheadForComments(128));
    expectFresh("after the comment was closed");
}

TEST_F(CommentLines, AnotherProfileMakesOtherComments) {
    fill(200);
    setText(5, "{");
    EXPECT_FALSE(inside(100));
    view_.goTo(LineIndex(5), CharColumn(0));
    view_.key({.key = 'D', .alt = true});
    profile_.setCommentStart("{");
    profile_.setCommentEnd("}");
    document_.setProfile(profile_);
    EXPECT_FALSE(inside(100));
    view_.undo();
    EXPECT_TRUE(inside(100)) << "the line came back from the time of the old profile";
    type(LineIndex(6), "}");
    EXPECT_FALSE(inside(100));
}

TEST_F(CommentLines, InALargeFileAFarLineIsKnownOnlyAfterTheIdleSteps) {
    for (const bool isLarge : {false, true}) {
        options_.habits.largeFiles = isLarge;
        fill(60'000);
        setText(0, "/*");
        EXPECT_EQ(inside(59'000), !isLarge);
        EXPECT_FALSE(document_.takeGuessedComments());
        while (document_.lookAheadForComments(5000)) {
        }
        EXPECT_EQ(document_.takeGuessedComments(), isLarge);
        EXPECT_FALSE(document_.takeGuessedComments());
        EXPECT_TRUE(inside(59'000));
    }
}

TEST_F(CommentLines, WithoutAProfileOrAnEndMarkerNothingSpansLines) {
    fill(3, "/* x");
    EXPECT_TRUE(inside(2));
    profile_.setCommentEnd("");
    document_.setProfile(profile_);
    EXPECT_FALSE(inside(2));
    TextDocument plain(options_, notices_);
    plain.newEmpty();
    EXPECT_EQ(plain.startState(LineIndex(3)), LineState::Outside);
    EXPECT_FALSE(plain.lookAheadForComments(100));
}

class CommentProperty : public CommentLines, public testing::WithParamInterface<unsigned> {};

TEST_P(CommentProperty, ColoursAreThoseOfAFreshLoad) {
    std::mt19937 random(GetParam());
    if (GetParam() % 2 == 1) {
        profile_.setQuotes(
            ParseQuoteRules("escape: \\\nquote: \" lines\nquote: '\ncode in quotes: $( )\ntext behind: <<"));
    }
    fill(300, "a");
    static constexpr const char* kParts[] = {"/* b", "c */", "\" $(", ") \"", "<<a", "a", "'\\"};
    for (std::size_t i = 0; i < 28; ++i)
        setText(static_cast<int>(random() % 300), kParts[i % std::size(kParts)]);
    static constexpr std::uint16_t kKeys[] = {kKeyEnter, kKeyBackspace, kKeyDelete, 'D', 'K', kKeyDown, kKeyUp, 'L'};
    test::RandomUser user(view_, GetParam(), "/*/*\"a \\'$()<", kKeys);
    for (int step = 0; step < 300; ++step) {
        user.act();
        // Sometimes a window asks, sometimes the idle steps, and sometimes nobody until much later.
        const auto choice = random() % 4;
        if (choice == 0) inside(static_cast<int>(random() % 320));
        if (choice == 1) document_.lookAheadForComments(64);
        if (step % 25 == 0) expectFresh("at step " + std::to_string(step));
        if (HasFatalFailure()) return;
    }
    while (!document_.history().isEmpty())
        view_.undo();
    expectFresh("when everything is undone");
}

INSTANTIATE_TEST_SUITE_P(Seeds, CommentProperty, testing::Range(0u, 60u));

}  // namespace
}  // namespace vexa
