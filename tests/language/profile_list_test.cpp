// Which profile a file gets.
#include "language/profile_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/platform.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

class Profiles : public testing::Test {
  protected:
    Profiles() { disk.makeDirectory("vConfig"); }

    void store(const char* extension, const char* description, const char* heldExtension) {
        ExtensionProfile profile;
        profile.setDescription(description);
        profile.setExtension(heldExtension);
        ASSERT_TRUE(profile.write(list.profilePath(extension)));
    }

    bool isBuiltIn(std::string_view fileName) { return &list.profileFor(fileName) == &list.profileFor("no extension"); }

    test::TestDisk disk;
    ProfileList list{disk.path("vConfig")};
};

TEST(ExtensionOf, IsWhatFollowsTheLastDotOfTheName) {
    const std::pair<const char*, const char*> expected[] = {
        {"a.cpp", "cpp"}, {"a.b.C", "C"},          {"makefile", ""}, {"C:\\v1.2\\make", ""},
        {"a.", ""},       {".profile", "profile"}, {"C:x.y", "y"},   {"", ""}};
    for (const auto& [name, extension] : expected)
        EXPECT_EQ(ExtensionOf(name), extension) << name;
}

TEST_F(Profiles, TheBuiltInOneIsForCAndServesWhateverHasNoFile) {
    const ExtensionProfile& profile = list.profileFor("C:\\src\\main.c");
    EXPECT_TRUE(isBuiltIn("main.c"));
    EXPECT_TRUE(isBuiltIn("README"));
    EXPECT_TRUE(isBuiltIn("a.???"));
    EXPECT_TRUE(isBuiltIn("a." + std::string(500, 'x')));
    EXPECT_EQ(profile.description(), "");
    EXPECT_EQ(profile.delimiters(), "[](){},;:.&*+-=~!%<>^|?");
    EXPECT_EQ(profile.commentStart() + profile.commentEnd() + profile.lineComment(), "/**///");
    EXPECT_EQ(profile.extension(), "*.T");
    EXPECT_EQ(profile.preprocessor(), '#');
    EXPECT_EQ(profile.stringQuote(), '"');
    ASSERT_EQ(profile.keywords().size(), 55u);
    EXPECT_TRUE(std::ranges::is_sorted(profile.keywords()));
    EXPECT_EQ(profile.keywords().front(), "asm");
    EXPECT_EQ(profile.keywords().back(), "while");
}

TEST_F(Profiles, TheTextBesideAFileCountsWithTheHabitAlone) {
    store("abc", "", "abc");
    disk.put("vConfig\\Vexaabc.QUO", "escape: \\");
    Habits habits;
    ProfileList chosen(disk.path("vConfig"), habits);
    EXPECT_FALSE(chosen.profileFor("a.abc").quotes().isGiven());
    habits.languageQuotes = true;
    chosen.forgetLoaded();
    EXPECT_EQ(chosen.profileFor("a.abcd").quotes().escape, '\\');
    EXPECT_FALSE(chosen.profileFor("a.c").quotes().isGiven());
}

TEST_F(Profiles, ThreeCharactersOfTheExtensionCountInAnyCase) {
    store("cpp", "C++", "cpp");
    const ExtensionProfile& profile = list.profileFor("a.cpp");
    EXPECT_EQ(profile.description(), "C++");
    EXPECT_EQ(&list.profileFor("b.CPP"), &profile);
    EXPECT_EQ(&list.profileFor("c.cpp1"), &profile);
    EXPECT_EQ(ProfileList(disk.path("vConfig")).profileFor("c.cpp1").description(), "C++") << "as the first file too";
    EXPECT_TRUE(isBuiltIn("d.cp"));
    EXPECT_TRUE(isBuiltIn("d.c"));
}

TEST_F(Profiles, AFileIsReadOnceARun) {
    EXPECT_TRUE(isBuiltIn("a.pas"));
    store("pas", "first", "pas");
    const ExtensionProfile& profile = list.profileFor("a.pas");
    store("pas", "second", "pas");
    EXPECT_EQ(list.profileFor("a.pas").description(), "first");
    for (int i = 0; i < 50; ++i) {
        const std::string extension = std::to_string(100 + i);
        store(extension.c_str(), "other", extension.c_str());
        list.profileFor("a." + extension);
    }
    EXPECT_EQ(&list.profileFor("b.PAS"), &profile) << "profiles stay where they are";
}

TEST_F(Profiles, WhatHasBeenForgottenIsReadAnew) {
    store("pas", "first", "pas");
    const ExtensionProfile& first = list.profileFor("a.pas");
    store("pas", "second", "pas");
    store("bas", "Basic", "bas");
    list.forgetLoaded();
    EXPECT_EQ(first.description(), "first") << "for documents that have it";
    EXPECT_EQ(list.profileFor("a.pas").description(), "second");
    EXPECT_EQ(list.profileFor("a.bas").description(), "Basic");
    ASSERT_TRUE(platform::RemoveFile(list.profilePath("pas")));
    list.forgetLoaded();
    EXPECT_TRUE(isBuiltIn("a.pas"));
}

TEST_F(Profiles, AFileThatHoldsAnotherExtensionServesBoth) {
    store("pas", "Pascal", "inc");
    const ExtensionProfile& profile = list.profileFor("a.pas");
    EXPECT_EQ(&list.profileFor("a.inc"), &profile);
    EXPECT_EQ(&list.profileFor("b.pas"), &profile) << "not read again";
}

TEST_F(Profiles, ADamagedFileIsUsedAsFarAsItGoes) {
    disk.put("vConfig\\Vexabad.PRF", "TLCNJ1");
    const ExtensionProfile& profile = list.profileFor("a.bad");
    EXPECT_FALSE(isBuiltIn("a.bad"));
    EXPECT_EQ(profile.keywords().size(), 55u);
    EXPECT_EQ(&list.profileFor("b.bad"), &profile);
    EXPECT_EQ(&list.profileFor("b.bad1"), &profile);
}

}  // namespace
}  // namespace vexa
