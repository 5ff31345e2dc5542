// The profiles that are shipped: what their texts say, and how each colours a sample. In a sample a line that begins
// with ">" is a text, and the one below it shows its colours, a letter a character.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "language/profile_file.h"
#include "language/quote_file.h"
#include "language/token_text.h"
#include "profile_source.h"

namespace vexa {
namespace {

struct Shipped {
    const char* name;
    const char* source;
    const char* golden;
    const char* quotes;  // the text beside the profile; empty where there is none
    const char* quoted;  // and the sample for it
};

const Shipped kShipped[] = {
#include "shipped_profiles.inc"
};

ProfileSource SourceOf(const Shipped& shipped) {
    std::string error;
    const auto source = ParseProfileSource(shipped.source, error);
    EXPECT_TRUE(source) << shipped.name << ": " << error;
    return source.value_or(ProfileSource());
}

void ExpectSample(const char* name, const TokenRules& rules, const char* sample) {
    std::istringstream lines(sample);
    std::string text;
    std::string colours;
    LineState state = LineState::Outside;
    int count = 0;
    while (std::getline(lines, text) && std::getline(lines, colours)) {
        ASSERT_EQ(text.substr(0, 2), "> ") << name;
        const std::string_view line = std::string_view(text).substr(2);
        EXPECT_EQ(test::ColoursOf(rules, line, state), colours.substr(2)) << name << ": " << line;
        state = StateAfter(rules, line, state);
        ++count;
    }
    EXPECT_GE(count, 4) << name << " has too short a sample";
    EXPECT_EQ(state, LineState::Outside) << name << " leaves a comment or quote open";
}

TEST(ShippedProfiles, ColourTheirSamples) {
    for (const Shipped& shipped : kShipped)
        ExpectSample(shipped.name, TokenRules(SourceOf(shipped).profile), shipped.golden);
}

TEST(ShippedProfiles, ColourTheirSamplesOfQuotes) {
    int count = 0;
    for (const Shipped& shipped : kShipped) {
        if (*shipped.quotes == '\0') continue;
        ExtensionProfile profile = SourceOf(shipped).profile;
        profile.setQuotes(ParseQuoteRules(shipped.quotes));
        ExpectSample(shipped.name, TokenRules(profile), shipped.quoted);
        ++count;
    }
    EXPECT_GE(count, 6);
}

TEST(ShippedProfiles, EachExtensionHasOneAndItsFileKeepsIt) {
    std::set<std::string> seen;
    for (const Shipped& shipped : kShipped) {
        const ProfileSource source = SourceOf(shipped);
        for (const std::string& extension : source.extensions)
            EXPECT_TRUE(seen.insert(extension).second) << shipped.name << ": " << extension;
        ExtensionProfile again;
        ASSERT_TRUE(DecodeProfile(EncodeProfile(source.profile), again)) << shipped.name;
        EXPECT_EQ(again.keywords(), source.profile.keywords()) << shipped.name;
        EXPECT_EQ(again.delimiters(), source.profile.delimiters()) << shipped.name;
        EXPECT_EQ(again.preprocessor(), source.profile.preprocessor()) << shipped.name;
        EXPECT_FALSE(again.description().empty()) << shipped.name;
    }
    for (const char* extension : {"c",   "cpp", "cs",  "jav", "js",  "ts",  "py",  "rs",  "go",  "pas",
                                  "bas", "asm", "sql", "sh",  "bat", "mak", "htm", "css", "jso", "ini"})
        EXPECT_EQ(seen.count(extension), 1u) << extension;
}

TEST(ProfileSource, ATextThatIsNoProfileIsRefusedWithItsFault) {
    const struct {
        const char* text;
        const char* error;
    } cases[] = {
        {"", "no extension"},
        {"# only a remark\n", "no extension"},
        {"extensions: html\n", "an extension is too long"},
        {"extensions: c\ncolour: red\n", "no field: colour: red"},
        {"extensions: c\ncomment start: /**\n", "too long: comment start: /**"},
        {"extensions: c\nkeywords:\nabcdefghijklmnopqrstu\n", "too long: abcdefghijklmnopqrstu"},
    };
    for (const auto& one : cases) {
        std::string error;
        EXPECT_FALSE(ParseProfileSource(one.text, error)) << one.text;
        EXPECT_EQ(error, one.error);
    }
}

TEST(ProfileSource, FieldsLeftOutAreEmpty) {
    std::string error;
    const auto source = ParseProfileSource("extensions: a b\r\nkeywords: \r\n z # y\r\n", error);
    ASSERT_TRUE(source) << error;
    EXPECT_EQ(source->extensions, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(source->profile.keywords(), (std::vector<std::string>{"#", "y", "z"}));
    EXPECT_EQ(source->profile.commentStart() + source->profile.lineComment() + source->profile.delimiters(), "");
    EXPECT_EQ(source->profile.stringQuote(), '\0');
    EXPECT_EQ(source->profile.preprocessor(), '\0');
}

}  // namespace
}  // namespace vexa
