// What the dialogs "File Extensions" and "Edit File Extension" show, ask, refuse and write.
#include <gtest/gtest.h>

#include "base/platform.h"
#include "language/file_extensions_model.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using Words = std::vector<std::string>;

class ExtensionDialogs : public testing::Test {
  protected:
    ExtensionDialogs() { disk.makeDirectory("vConfig"); }

    void store(const std::string& extension, const char* description, Words keywords = {}) {
        ExtensionProfile profile;
        profile.setDescription(description);
        profile.setExtension(extension);
        profile.replaceKeywords(std::move(keywords));
        ASSERT_TRUE(profile.write(list.profilePath(extension)));
    }
    ExtensionProfile stored(const std::string& extension) {
        ExtensionProfile profile;
        EXPECT_TRUE(profile.read(list.profilePath(extension))) << extension;
        return profile;
    }
    std::string lastBox() const { return notices.boxes.empty() ? std::string() : notices.boxes.back().text; }

    test::TestDisk disk;
    ProfileList list{disk.path("vConfig")};
    test::RecordingNotices notices;
};

// ---- the list ----------------------------------------------------------------------------------------------------

TEST_F(ExtensionDialogs, ListShowsWhateverHasAProfileFile) {
    store("pas", "Pascal");
    store("C", "C");
    disk.put("vConfig\\VEXAbas.prf", "damaged");
    for (const char* other : {"Vexa.PRF", "Vexapas.PRF.~0", "VexaTool.INF", "Vexapas.PR", "xVexapas.PRF"})
        disk.put(std::string("vConfig\\") + other, "x");
    const FileExtensionsModel model(list);
    const std::vector<FileExtensionRow> expected = {{"bas", ""}, {"C", "C"}, {"pas", "Pascal"}};
    EXPECT_EQ(model.rows(), expected);
    EXPECT_EQ(model.rowOf("PAS"), 2u);
    EXPECT_EQ(model.rowOf("pa"), std::nullopt);
    EXPECT_TRUE(FileExtensionsModel(ProfileList(disk.path("missing"))).rows().empty());
}

TEST_F(ExtensionDialogs, DeletingIsAskedFirst) {
    store("bas", "Basic");
    store("pas", "Pascal");
    FileExtensionsModel model(list);
    notices.answers = {BoxAnswer::No};
    EXPECT_FALSE(model.deleteProfile(1, notices));
    EXPECT_EQ(model.rows().size(), 2u);
    notices.answers = {BoxAnswer::Yes};
    EXPECT_TRUE(model.deleteProfile(1, notices));
    EXPECT_EQ(notices.boxes.back(), (test::BoxNotice{"Are you sure you want to delete the 'pas' extension profile?",
                                                     "Vexa 95", BoxButtons::YesNo}));
    EXPECT_EQ(model.rows(), (std::vector<FileExtensionRow>{{"bas", "Basic"}}));
    EXPECT_FALSE(disk.has("vConfig\\Vexapas.PRF"));
}

TEST_F(ExtensionDialogs, AProfileThatCannotBeDeletedStaysInTheList) {
    store("pas", "Pascal");
    FileExtensionsModel model(list);
    // Neither platform takes a directory away in place of a file.
    ASSERT_TRUE(platform::RemoveFile(list.profilePath("pas")));
    disk.makeDirectory("vConfig\\Vexapas.PRF");
    notices.answers = {BoxAnswer::Yes};
    EXPECT_FALSE(model.deleteProfile(0, notices));
    EXPECT_NE(lastBox().find("unable to write to the file 'Vexapas.PRF'"), std::string::npos) << lastBox();
    EXPECT_EQ(model.rows().size(), 1u);
}

// ---- fields ------------------------------------------------------------------------------------------------------

TEST_F(ExtensionDialogs, NewProfileBeginsAsTheBuiltInOne) {
    ExtensionEditModel model = FileExtensionsModel(list).newProfile();
    EXPECT_TRUE(model.isExtensionEnabled());
    EXPECT_EQ(model.extension, "");
    EXPECT_EQ(model.preprocessor + model.stringCharacter, "#\"");
    EXPECT_EQ(model.keywords().size(), 55u);
    model.extension = " new ";
    ASSERT_TRUE(model.update(notices));
    ExtensionProfile expected;
    expected.setExtension("new");
    const ExtensionProfile written = stored("new");
    EXPECT_EQ(written.extension(), "new");
    EXPECT_EQ(written.keywords(), expected.keywords());
    EXPECT_EQ(written.delimiters(), expected.delimiters());
    EXPECT_TRUE(notices.boxes.empty());
}

TEST_F(ExtensionDialogs, EveryFieldIsShownAndWritten) {
    store("pas", "Pascal", {"end", "begin"});
    ExtensionEditModel model = FileExtensionsModel(list).profileOf(0);
    EXPECT_FALSE(model.isExtensionEnabled());
    EXPECT_EQ(model.extension, "pas");
    EXPECT_EQ(model.keywords(), (Words{"begin", "end"}));
    model.description = "Turbo Pascal";
    model.preprocessor = "";
    model.stringCharacter = "'";
    model.lineComment = "";
    model.commentStart = "{";
    model.commentEnd = "}";
    model.delimiters = "();";
    model.removeKeyword(1);
    ASSERT_TRUE(model.update(notices));
    const ExtensionProfile written = stored("pas");
    EXPECT_EQ(written.description(), "Turbo Pascal");
    EXPECT_EQ(written.preprocessor(), '\0');
    EXPECT_EQ(written.stringQuote(), '\'');
    EXPECT_EQ(written.lineComment() + written.commentStart() + written.commentEnd(), "{}");
    EXPECT_EQ(written.delimiters(), "();");
    EXPECT_EQ(written.keywords(), (Words{"begin"}));
    const ExtensionEditModel again = FileExtensionsModel(list).profileOf(0);
    EXPECT_EQ(again.preprocessor, "");
    EXPECT_EQ(again.stringCharacter, "'");
}

TEST_F(ExtensionDialogs, OldProfileIsWrittenInTheCurrentFormat) {
    const auto padded = [](std::string text, std::size_t size) { return text.append(size - text.size(), '\0'); };
    disk.put("vConfig\\Vexaold.PRF", padded("Old", 36) + padded("", 3) + padded("old", 4) + padded("", 3 + 61 + 3) +
                                         "'$" + padded("\1", 2) + padded("\2", 2) + padded("do", 16));
    const ExtensionEditModel model = FileExtensionsModel(list).profileOf(0);
    EXPECT_EQ(model.description, "Old");
    EXPECT_EQ(model.keywords(), (Words{"do"}));
    ASSERT_TRUE(model.update(notices));
    EXPECT_TRUE(disk.get("vConfig\\Vexaold.PRF").starts_with("TLCNJ1"));
    EXPECT_EQ(stored("old").keywords(), (Words{"do"}));
}

// ---- the extension -----------------------------------------------------------------------------------------------

TEST_F(ExtensionDialogs, ExtensionsThatCannotStandInAFileNameAreRefused) {
    ExtensionEditModel model = FileExtensionsModel(list).newProfile();
    for (const char* bad :
         {"", "  ", "a.b", "*", "a?", "\\", "a/b", "c:", "\"", "<", ">", "|", "a b", "\x01", "four"}) {
        notices.boxes.clear();
        model.extension = bad;
        EXPECT_FALSE(model.update(notices)) << bad;
        EXPECT_NE(lastBox().find("1 to 3 characters"), std::string::npos) << bad;
    }
    EXPECT_EQ(disk.count("vConfig"), 0u);
    for (const char* good : {"a", "c++", "\xE4", "~1_"}) {
        model.extension = good;
        EXPECT_TRUE(model.update(notices)) << good;
    }
    EXPECT_EQ(disk.count("vConfig"), 4u);
}

TEST_F(ExtensionDialogs, ReplacingAnExistingExtensionIsAskedFirst) {
    store("pas", "Pascal");
    ExtensionEditModel model = FileExtensionsModel(list).newProfile();
    model.extension = "PAS";
    model.description = "Other";
    notices.answers = {BoxAnswer::No};
    EXPECT_FALSE(model.update(notices));
    EXPECT_EQ(notices.boxes.back(),
              (test::BoxNotice{"The extension 'PAS' already exists. Do you want to replace\n the old extension?",
                               "Vexa 95", BoxButtons::YesNo}));
    EXPECT_EQ(stored("pas").description(), "Pascal");
    notices.answers = {BoxAnswer::Yes};
    EXPECT_TRUE(model.update(notices));
    EXPECT_EQ(stored("pas").description(), "Other");
    EXPECT_EQ(disk.count("vConfig"), 1u);
}

TEST_F(ExtensionDialogs, AProfileThatCannotBeWrittenIsToldAndTheOldOneStays) {
    store("pas", "Pascal");
    ExtensionEditModel model = FileExtensionsModel(list).profileOf(0);
    model.description = "Other";
    disk.setReadOnly("vConfig\\Vexapas.PRF", true);
    EXPECT_FALSE(model.update(notices));
    EXPECT_NE(lastBox().find("unable to write to the file 'Vexapas.PRF'"), std::string::npos) << lastBox();
    disk.setReadOnly("vConfig\\Vexapas.PRF", false);
    EXPECT_EQ(stored("pas").description(), "Pascal");
    EXPECT_EQ(disk.count("vConfig"), 1u) << "nothing is left beside it";
}

// ---- keywords ----------------------------------------------------------------------------------------------------

TEST_F(ExtensionDialogs, KeywordsKeepByteOrderAndAreThereOnce) {
    store("x", "", {"do", "End"});
    ExtensionEditModel model = FileExtensionsModel(list).profileOf(0);
    EXPECT_EQ(model.addKeywords("end", notices), 2u);
    EXPECT_EQ(model.addKeywords(" \xE4h  Begin ", notices), 4u) << "the row of the first word";
    EXPECT_EQ(model.addKeywords("do", notices), 2u) << "the one that is there already";
    EXPECT_EQ(model.keywords(), (Words{"Begin", "End", "do", "end", "\xE4h"}));
    EXPECT_TRUE(notices.boxes.empty());
    for (const char* none : {"", " \t "}) {
        EXPECT_EQ(model.addKeywords(none, notices), std::nullopt);
        EXPECT_EQ(lastBox(), "No keyword has been specified.");
    }
    model.removeKeyword(5);
    model.removeKeyword(0);
    EXPECT_EQ(model.keywords(), (Words{"End", "do", "end", "\xE4h"}));
}

TEST(KeywordFile, WordsStandBetweenBlanksAndControlCharacters) {
    const std::string twenty(20, 'k');
    struct Case {
        std::string text;
        KeywordWords words;
    };
    const Case cases[] = {
        {"", {}},
        {" \r\n\t\x1A", {}},
        {"if", {{"if"}, 0}},
        {"if then\r\nelse\nfi\rdo\tod", {{"if", "then", "else", "fi", "do", "od"}, 0}},
        {"b a b", {{"b", "a", "b"}, 0}},
        {std::string("a\0b\x7F"
                     "c",
                     5),
         {{"a", "b", "c"}, 0}},
        {twenty + " " + twenty + "x y", {{twenty, "y"}, 1}},
        {"\xEF\xBB\xBFif \xFC", {{"if", "\xFC"}, 0}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(CutKeywords(c.text), c.words) << c.text;
}

TEST_F(ExtensionDialogs, ImportSaysWhatCameInAndWhatDidNot) {
    store("x", "", {"do", "end"});
    ExtensionEditModel model = FileExtensionsModel(list).profileOf(0);
    disk.put("one.txt", "while do while\r\n" + std::string(21, 'x'));
    disk.put("two.txt", "until while");
    model.importFiles({disk.path("one.txt"), disk.path("missing.txt"), disk.path("two.txt")}, notices);
    EXPECT_EQ(model.keywords(), (Words{"do", "end", "until", "while"}));
    ASSERT_EQ(notices.boxes.size(), 2u);
    EXPECT_NE(notices.boxes[0].text.find("unable to open the file 'missing.txt'"), std::string::npos);
    EXPECT_EQ(lastBox(),
              "Keywords added to the list: 2\nIn the list already: 3\nLeft out, longer than 20 characters: 1");
}

TEST_F(ExtensionDialogs, AFullListTakesTheFirstAndCountsTheRest) {
    std::string text;
    for (int i = 0; i < 65535 - 55; ++i)
        text += "k" + std::to_string(i) + "\n";
    disk.put("many.txt", text + "zz1 zz2 zz3");
    ExtensionEditModel model = FileExtensionsModel(list).newProfile();
    model.importFiles({disk.path("many.txt")}, notices);
    EXPECT_EQ(lastBox(), "Keywords added to the list: 65480\nLeft out, because the list is full: 3");
    ASSERT_EQ(model.keywords().size(), 65535u);
    EXPECT_EQ(model.addKeywords("zz4", notices), std::nullopt);
    EXPECT_EQ(lastBox(), "Left out, because the list is full: 1");
    model.extension = "big";
    ASSERT_TRUE(model.update(notices));
    EXPECT_EQ(stored("big").keywords(), model.keywords());
}

TEST_F(ExtensionDialogs, AFileThatIsNoListOfKeywordsIsRefused) {
    disk.put("huge.bin", std::string(kLargestKeywordFile + 1, 'x'));
    ExtensionEditModel model = FileExtensionsModel(list).newProfile();
    model.importFiles({disk.path("huge.bin")}, notices);
    EXPECT_EQ(notices.boxes.size(), 1u);
    EXPECT_NE(lastBox().find("unable to open the file 'huge.bin'"), std::string::npos);
    EXPECT_EQ(model.keywords().size(), 55u);
}

}  // namespace
}  // namespace vexa
