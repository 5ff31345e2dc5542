// The two formats of profile files, and files that are neither.
#include <gtest/gtest.h>

#include "base/file.h"
#include "language/extension_profile.h"
#include "language/profile_file.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using Keywords = std::vector<std::string>;

std::string Padded(std::string_view text, std::size_t size) {
    return std::string(text) + std::string(size - text.size(), '\0');
}

std::string Number(unsigned number) {
    return {static_cast<char>(number & 0xFF), static_cast<char>(number >> 8)};
}

// The fields between the magic and the keywords, as both formats have them.
std::string PascalFields(unsigned keywordCount) {
    return Padded("Pascal", 36) + Padded("{", 3) + Padded("pas", 4) + Padded("}", 3) + Padded("();:=", 61) +
           Padded("//", 3) + "'$" + Number(keywordCount);
}

const std::string kPascal = Padded("TLCNJ1", 10) + PascalFields(3) + Number(5) + Padded("BEGIN", 21) + Number(5) +
                            Padded("begin", 21) + Number(3) + Padded("end", 21);
const std::string kOldPascal = PascalFields(2) + Number(5) + Padded("while", 16) + Number(2) + Padded("do", 16);

ExtensionProfile Pascal() {
    ExtensionProfile profile;
    profile.setDescription("Pascal");
    profile.setCommentStart("{");
    profile.setCommentEnd("}");
    profile.setExtension("pas");
    profile.setDelimiters("();:=");
    profile.setStringQuote('\'');
    profile.setPreprocessor('$');
    profile.replaceKeywords({"end", "begin", "BEGIN"});
    return profile;
}

void ExpectPascal(const ExtensionProfile& profile) {
    EXPECT_EQ(profile.description(), "Pascal");
    EXPECT_EQ(profile.commentStart(), "{");
    EXPECT_EQ(profile.commentEnd(), "}");
    EXPECT_EQ(profile.lineComment(), "//");
    EXPECT_EQ(profile.extension(), "pas");
    EXPECT_EQ(profile.delimiters(), "();:=");
    EXPECT_EQ(profile.stringQuote(), '\'');
    EXPECT_EQ(profile.preprocessor(), '$');
}

class ProfileFile : public testing::Test {
  protected:
    bool read(std::string_view bytes, ExtensionProfile& profile) {
        disk.put("P.PRF", bytes);
        return profile.read(disk.path("P.PRF"));
    }

    test::TestDisk disk;
};

TEST_F(ProfileFile, IsWrittenByteForByteWithSortedKeywords) {
    ExtensionProfile profile = Pascal();
    ASSERT_TRUE(profile.write(disk.path("P.PRF")));
    const std::string bytes = disk.get("P.PRF");
    EXPECT_EQ(bytes, kPascal);
    EXPECT_EQ(bytes.size(), 124u + 3 * 23);
}

TEST_F(ProfileFile, KeepsAllFieldsOverWritingAndReading) {
    ExtensionProfile read;
    ASSERT_TRUE(Pascal().write(disk.path("P.PRF")));
    ASSERT_TRUE(read.read(disk.path("P.PRF")));
    ExpectPascal(read);
    EXPECT_EQ(read.keywords(), (Keywords{"BEGIN", "begin", "end"}));
    EXPECT_EQ(read.version(), 1);
}

TEST_F(ProfileFile, OfTheOldFormatIsReadAndSavedAsTheCurrentOne) {
    ExtensionProfile profile;
    ASSERT_TRUE(read(kOldPascal, profile));
    ExpectPascal(profile);
    EXPECT_EQ(profile.keywords(), (Keywords{"while", "do"}));
    EXPECT_EQ(profile.version(), 0);
    ASSERT_TRUE(profile.write(disk.path("P.PRF")));
    EXPECT_EQ(profile.version(), 1);
    EXPECT_EQ(disk.get("P.PRF"),
              Padded("TLCNJ1", 10) + PascalFields(2) + Number(2) + Padded("do", 21) + Number(5) + Padded("while", 21));
}

TEST_F(ProfileFile, ThatIsCutShortGivesItsWholeFieldsAndKeywords) {
    const ExtensionProfile builtIn;
    for (const std::string& whole : {kPascal, kOldPascal}) {
        const std::size_t header = whole.starts_with("TLCNJ") ? 124 : 114;
        const std::size_t record = header == 124 ? 23 : 18;
        for (std::size_t size = 0; size < whole.size(); ++size) {
            ExtensionProfile profile;
            EXPECT_FALSE(DecodeProfile(whole.substr(0, size), profile)) << size;
            EXPECT_EQ(profile.description(), size >= header - 78 ? "Pascal" : "") << size;
            EXPECT_EQ(profile.delimiters(), size >= header - 7 ? "();:=" : builtIn.delimiters()) << size;
            EXPECT_EQ(profile.preprocessor(), size >= header - 2 ? '$' : '#') << size;
            EXPECT_EQ(profile.keywords().size(), size >= header ? (size - header) / record : 55u) << size;
        }
        ExtensionProfile profile;
        EXPECT_TRUE(DecodeProfile(whole, profile));
        EXPECT_TRUE(DecodeProfile(whole + "more", profile)) << "what follows is not looked at";
    }
}

TEST_F(ProfileFile, LengthsAndCountsThatLieDoNoHarm) {
    const std::string magic = Padded("TLCNJ1", 10);
    const std::string full(21, 'k');
    ExtensionProfile profile;
    EXPECT_TRUE(DecodeProfile(magic + PascalFields(4) + Number(65535) + Padded("begin", 21) + Number(2) +
                                  Padded("begin", 21) + Number(21) + full + Number(0) + Padded("gone", 21),
                              profile));
    EXPECT_EQ(profile.keywords(), (Keywords{"begin", "be", std::string(20, 'k')}));
    EXPECT_FALSE(DecodeProfile(magic + PascalFields(65535) + Number(2) + Padded("do", 21), profile));
    EXPECT_EQ(profile.keywords(), Keywords{"do"});
    EXPECT_TRUE(DecodeProfile(PascalFields(1) + Number(16) + std::string(16, 'o'), profile));
    EXPECT_EQ(profile.keywords(), Keywords{std::string(16, 'o')});
    std::string unterminated = kPascal;
    unterminated.replace(10, 112, std::string(112, 'x'));
    EXPECT_TRUE(DecodeProfile(unterminated, profile));
    EXPECT_EQ(profile.description(), std::string(35, 'x'));
    EXPECT_EQ(profile.delimiters(), std::string(60, 'x'));
    EXPECT_EQ(profile.commentStart(), "xx");
    EXPECT_EQ(profile.extension(), "xxx");
    const std::pair<const char*, int> versions[] = {{"TLCNJ0", 0}, {"TLCNJ7", 7}, {"TLCNJ", 1}, {"TLCNJx", 1}};
    for (const auto& [text, version] : versions) {
        EXPECT_TRUE(DecodeProfile(Padded(text, 10) + kPascal.substr(10), profile));
        EXPECT_EQ(profile.version(), version) << text;
    }
}

TEST_F(ProfileFile, TheLargestCountIsKept) {
    ExtensionProfile profile;
    profile.replaceKeywords(Keywords(70000, std::string(25, 'k')));
    EXPECT_EQ(profile.keywords().size(), 65535u);
    ASSERT_TRUE(profile.write(disk.path("P.PRF")));
    EXPECT_EQ(disk.get("P.PRF").size(), kLargestProfileFile);
    ExtensionProfile again;
    EXPECT_TRUE(again.read(disk.path("P.PRF")));
    EXPECT_EQ(again.keywords(), profile.keywords());
}

TEST_F(ProfileFile, ThatCannotBeOpenedOrWrittenChangesNothing) {
    ExtensionProfile profile = Pascal();
    EXPECT_FALSE(profile.read(disk.path("NONE.PRF")));
    EXPECT_FALSE(profile.read(disk.path()));
    ExpectPascal(profile);
    disk.put("P.PRF", "old");
    SetFileFault([](FileStep step) { return step == FileStep::Write; });
    EXPECT_FALSE(profile.write(disk.path("P.PRF")));
    SetFileFault(nullptr);
    EXPECT_EQ(disk.get("P.PRF"), "old");
    EXPECT_FALSE(profile.write(disk.path("NO\\P.PRF")));
    EXPECT_EQ(disk.count(), 1u);
}

TEST_F(ProfileFile, SettersCutAtTheirLimitsAndAtAByteZero) {
    const std::string longText(100, 'x');
    ExtensionProfile profile;
    profile.setDescription(longText);
    profile.setDelimiters(longText);
    profile.setCommentStart(longText);
    profile.setCommentEnd(longText);
    profile.setLineComment(longText);
    profile.setExtension(longText);
    EXPECT_EQ(profile.description().size(), 35u);
    EXPECT_EQ(profile.delimiters().size(), 60u);
    EXPECT_EQ(profile.commentStart().size() + profile.commentEnd().size() + profile.lineComment().size(), 6u);
    EXPECT_EQ(profile.extension(), "xxx");
    profile.setDescription(std::string_view("a\0b", 3));
    EXPECT_EQ(profile.description(), "a");
    profile.replaceKeywords({longText, "", std::string("do\0x", 4)});
    EXPECT_EQ(profile.keywords(), (Keywords{std::string(20, 'x'), "do"}));
}

}  // namespace
}  // namespace vexa
