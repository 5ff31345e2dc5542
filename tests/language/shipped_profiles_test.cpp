// The profiles that are shipped: what their texts say, and how each colours a sample. In a sample a line that begins
// with ">" is a text, and the one below it shows its colours, a letter a character.
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "language/block_comment.h"
#include "language/profile_file.h"
#include "language/token_text.h"
#include "profile_source.h"

namespace vexa {
namespace {

struct Shipped {
    const char* name;
    const char* source;
    const char* golden;
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

TEST(ShippedProfiles, ColourTheirSamples) {
    for (const Shipped& shipped : kShipped) {
        const TokenRules rules(SourceOf(shipped).profile);
        std::istringstream lines(shipped.golden);
        std::string text;
        std::string colours;
        bool inside = false;
        int count = 0;
        while (std::getline(lines, text) && std::getline(lines, colours)) {
            ASSERT_EQ(text.substr(0, 2), "> ") << shipped.name;
            const std::string_view line = std::string_view(text).substr(2);
            EXPECT_EQ(test::ColoursOf(rules, line, inside), colours.substr(2)) << shipped.name << ": " << line;
            inside = CommentEffectOf(rules, line).after(inside);
            ++count;
        }
        EXPECT_GE(count, 4) << shipped.name << " has too short a sample";
        EXPECT_FALSE(inside) << shipped.name << " leaves a comment open";
    }
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
