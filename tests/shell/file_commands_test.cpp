#include "shell/file_commands.h"
#include "document/document_session.h"

#include <gtest/gtest.h>

#include "base/strings.h"
#include "support/test_disk.h"

namespace vexa {
namespace {

using test::BoxNotice;

class ScriptedQuestions : public FileQuestions {
  public:
    std::optional<std::string> askSaveName(const TextDocument&) override {
        ++asked;
        return answer;
    }
    void nameChanged(const TextDocument& document) override { newName = document.fullPath(); }

    std::optional<std::string> answer;
    int asked = 0;
    std::string newName;
};

class FileCommandsTest : public testing::Test, protected test::DocumentSession {
  protected:
    void openFile(const std::string& name, std::string_view bytes) {
        disk_.put(name, bytes);
        ASSERT_TRUE(commands_.open(document_, disk_.path(name)));
    }
    void truncate() {
        std::string lines;
        for (int i = 0; i < 90002; ++i)
            lines += "x\n";
        openFile("BIG.TXT", lines);
        notices_.boxes.clear();
        ASSERT_TRUE(document_.isTruncated());
    }

    test::TestDisk disk_;
    ScriptedQuestions questions_;
    ProfileList profiles_{disk_.path()};
    FileCommands commands_{notices_, questions_, profiles_};
};

TEST_F(FileCommandsTest, AnUntitledDocumentAsksForItsNameAtTheFirstSave) {
    ASSERT_TRUE(commands_.open(document_, std::nullopt));
    EXPECT_EQ(document_.fullPath(), "untitled.txt");
    type("x");
    EXPECT_FALSE(commands_.save(document_)) << "cancelled";
    EXPECT_TRUE(document_.isModified());
    questions_.answer = disk_.path("NEW.TXT");
    EXPECT_TRUE(commands_.save(document_));
    EXPECT_EQ(questions_.asked, 2);
    EXPECT_EQ(questions_.newName, disk_.path("NEW.TXT"));
    EXPECT_EQ(disk_.get("NEW.TXT"), "x\r\n");
    EXPECT_EQ(notices_.lastStatus(), "Write successful.");
    EXPECT_TRUE(commands_.save(document_));
    EXPECT_EQ(questions_.asked, 2) << "from now on it has a name";
}

TEST_F(FileCommandsTest, AMissingFileGivesAnEmptyDocumentOfThatName) {
    ASSERT_TRUE(commands_.open(document_, disk_.path("MISSING.C")));
    EXPECT_EQ(document_.baseName(), "MISSING.C");
    EXPECT_FALSE(document_.isNamed());
    EXPECT_TRUE(notices_.boxes.empty());
    commands_.save(document_);
    EXPECT_EQ(questions_.asked, 1);
}

TEST_F(FileCommandsTest, WhatCannotBeOpenedIsToldWithItsBaseName) {
    disk_.makeDirectory("SUB");
    EXPECT_FALSE(commands_.open(document_, disk_.path("SUB")));
    ASSERT_EQ(notices_.boxes.size(), 1u);
    EXPECT_EQ(notices_.boxes[0], (BoxNotice{FillText(TextId::CannotOpenFile, {"SUB"}), "Vexa Error", BoxButtons::Ok}));
}

TEST_F(FileCommandsTest, AnUnmodifiedDocumentIsNotWrittenButCountsAsSaved) {
    openFile("A.TXT", "abc");
    EXPECT_TRUE(commands_.save(document_));
    EXPECT_EQ(disk_.get("A.TXT"), "abc");
    EXPECT_EQ(notices_.lastStatus(), "Write successful.");
}

TEST_F(FileCommandsTest, ATruncatedDocumentIsSavedOnlyUnderAName) {
    ASSERT_NO_FATAL_FAILURE(truncate());
    type("y");
    EXPECT_FALSE(commands_.save(document_));
    ASSERT_EQ(notices_.boxes.size(), 1u);
    EXPECT_EQ(notices_.boxes[0].text, FillText(TextId::FileTruncated, {"BIG.TXT"}));
    questions_.answer = disk_.path("SMALL.TXT");
    EXPECT_TRUE(commands_.saveAs(document_));
    EXPECT_FALSE(document_.isTruncated());
    EXPECT_EQ(disk_.get("BIG.TXT").size(), 90002u * 2) << "the file that was read is whole";
}

TEST_F(FileCommandsTest, AFailedSaveIsToldAndKeepsNameAndChanges) {
    openFile("A.TXT", "abc");
    type("x");
    disk_.setReadOnly("A.TXT", true);
    EXPECT_FALSE(commands_.save(document_));
    ASSERT_EQ(notices_.boxes.size(), 1u);
    EXPECT_EQ(notices_.boxes[0].text, FillText(TextId::CannotWriteFile, {"A.TXT"}));
    questions_.answer = disk_.path("NODIR\\B.TXT");
    EXPECT_FALSE(commands_.saveAs(document_));
    EXPECT_EQ(notices_.boxes.back().text, FillText(TextId::CannotWriteFile, {"B.TXT"}));
    EXPECT_EQ(document_.fullPath(), disk_.path("A.TXT"));
    EXPECT_TRUE(document_.isModified());
    EXPECT_TRUE(questions_.newName.empty());
}

TEST_F(FileCommandsTest, ANewSuffixBringsItsProfile) {
    ExtensionProfile pascal;
    pascal.setExtension("pas");
    pascal.setLineComment("//");
    pascal.setDescription("Pascal");
    ASSERT_TRUE(pascal.write(profiles_.profilePath("pas")));
    openFile("A.TXT", "abc");
    EXPECT_EQ(document_.profile()->description(), "");
    questions_.answer = disk_.path("A.pas");
    ASSERT_TRUE(commands_.saveAs(document_));
    EXPECT_EQ(document_.profile()->description(), "Pascal");
}

TEST_F(FileCommandsTest, ClosingAsksAboutChanges) {
    openFile("A.TXT", "abc");
    EXPECT_TRUE(commands_.queryClose(document_));
    EXPECT_TRUE(notices_.boxes.empty()) << "nothing has changed";

    type("x");
    notices_.answers = {BoxAnswer::Cancel};
    EXPECT_FALSE(commands_.queryClose(document_));
    EXPECT_EQ(notices_.boxes.back().text, FillText(TextId::SaveChanges, {disk_.path("A.TXT")}));
    EXPECT_EQ(notices_.boxes.back().buttons, BoxButtons::YesNoCancel);

    notices_.answers = {BoxAnswer::Yes};
    EXPECT_TRUE(commands_.queryClose(document_));
    EXPECT_EQ(disk_.get("A.TXT"), "xabc\r\n");

    type("y");
    disk_.setReadOnly("A.TXT", true);
    notices_.answers = {BoxAnswer::Yes};
    EXPECT_FALSE(commands_.queryClose(document_)) << "what could not be saved is not closed";
    disk_.setReadOnly("A.TXT", false);

    notices_.answers = {BoxAnswer::No};
    EXPECT_TRUE(commands_.queryClose(document_));
    EXPECT_TRUE(document_.isModified()) << "until it is really closed";
}

TEST_F(FileCommandsTest, WhatAnotherProgramHasChangedIsAskedAbout) {
    openFile("A.TXT", "abc");
    type("x");
    disk_.put("A.TXT", "theirs");
    notices_.answers = {BoxAnswer::No};
    EXPECT_FALSE(commands_.save(document_));
    EXPECT_EQ(notices_.boxes.back().text, FillText(TextId::FileChangedOutside, {"A.TXT"}));
    EXPECT_EQ(disk_.get("A.TXT"), "theirs");
    EXPECT_TRUE(document_.isModified());
    notices_.answers = {BoxAnswer::Yes};
    EXPECT_TRUE(commands_.save(document_));
    EXPECT_EQ(disk_.get("A.TXT"), "xabc\r\n");
    EXPECT_EQ(notices_.boxes.size(), 2u);
}

TEST_F(FileCommandsTest, ANameWithoutRoomForACopysEndingIsSaid) {
    const std::string name(256 - disk_.path().size() - 1, 'n');
    disk_.put(name, "abc");
    ASSERT_TRUE(commands_.open(document_, disk_.path(name)));
    type("x");
    notices_.answers = {BoxAnswer::No};
    EXPECT_FALSE(commands_.save(document_)) << "the copy's path would have 260 characters";
    EXPECT_EQ(notices_.boxes.back().text, FillText(TextId::NoSafetyCopy, {name, LoadText(TextId::NameTooLongForCopy)}));
}

TEST_F(FileCommandsTest, WithoutASafetyCopyTheUserDecides) {
    openFile("A.TXT", "abc");
    type("x");
    for (char digit = '0'; digit <= '9'; ++digit)
        disk_.put(std::string("A.TXT.vx") + digit, "kept");
    notices_.answers = {BoxAnswer::No, BoxAnswer::Yes};
    EXPECT_FALSE(commands_.save(document_));
    EXPECT_EQ(notices_.boxes.back().text,
              FillText(TextId::NoSafetyCopy, {"A.TXT", LoadText(TextId::AllCopyNamesTaken)}));
    EXPECT_EQ(disk_.get("A.TXT"), "abc");
    EXPECT_TRUE(commands_.save(document_));
    EXPECT_EQ(disk_.get("A.TXT"), "xabc\r\n");
    EXPECT_EQ(disk_.get("A.TXT.vx9"), "kept");
}

TEST_F(FileCommandsTest, AFileThatHasGoneIsWrittenAgain) {
    openFile("A.TXT", "abc");
    platform::RemoveFile(disk_.path("A.TXT"));
    EXPECT_TRUE(commands_.save(document_));
    EXPECT_EQ(disk_.get("A.TXT"), "abc\r\n");
    platform::RemoveFile(disk_.path("A.TXT"));
    disk_.makeDirectory("A.TXT");
    EXPECT_FALSE(commands_.save(document_));
    EXPECT_EQ(notices_.boxes.back().text, FillText(TextId::CannotWriteFile, {"A.TXT"}));
}

TEST_F(FileCommandsTest, ATruncatedDocumentIsNotSavedOverItsFileUnderAnyName) {
    ASSERT_NO_FATAL_FAILURE(truncate());
    disk_.link("BIG.TXT", "LINK.TXT");
    for (const char* name : {"BIG.TXT", "big.txt", ".\\BIG.TXT", "LINK.TXT"}) {
        questions_.answer = disk_.path(name);
        EXPECT_FALSE(commands_.saveAs(document_)) << name;
        EXPECT_EQ(notices_.boxes.back().text, FillText(TextId::FileTruncated, {"BIG.TXT"})) << name;
    }
    EXPECT_EQ(disk_.get("BIG.TXT").size(), 90002u * 2);
}

TEST_F(FileCommandsTest, ANameToSaveUnderIsMadeFullOrRefused) {
    ASSERT_TRUE(commands_.open(document_, std::nullopt));
    type("x");
    for (const std::string& name :
         {std::string(300, 'n'), std::string("a|b"), std::string("NUL"), std::string("SUB\\")}) {
        questions_.answer = name;
        EXPECT_FALSE(commands_.saveAs(document_)) << name;
        EXPECT_EQ(notices_.boxes.back().text,
                  FillText(name.size() == 300 ? TextId::NameTooLong : TextId::NameNotAFile, {name}));
    }
    questions_.answer = disk_.path("NO\\DIR.TXT");
    EXPECT_FALSE(commands_.saveAs(document_));
    EXPECT_EQ(document_.fullPath(), "untitled.txt") << "what failed leaves no name";
    EXPECT_FALSE(document_.isNamed());
    questions_.answer = disk_.path().substr(0, 2) + "foo";
    EXPECT_TRUE(commands_.saveAs(document_));
    EXPECT_EQ(document_.fullPath(), disk_.path("foo"));
    EXPECT_EQ(document_.baseName(), "foo");
    EXPECT_EQ(disk_.get("foo"), "x\r\n");
}

TEST_F(FileCommandsTest, AnOpenedFileSaysWhatASaveWouldMeet) {
    openFile("CRLF.TXT", "a\r\n");
    EXPECT_TRUE(notices_.statuses.empty());
    openFile("LF.TXT", "a\n");
    EXPECT_EQ(notices_.lastStatus(), FillText(TextId::OtherLineEnds, {"LF", "CR LF"}));
    disk_.setReadOnly("LF.TXT", true);
    ASSERT_TRUE(commands_.open(document_, disk_.path("LF.TXT")));
    EXPECT_EQ(notices_.lastStatus(),
              FillText(TextId::FileIsReadOnly, {"LF.TXT"}) + " " + FillText(TextId::OtherLineEnds, {"LF", "CR LF"}));
    disk_.setReadOnly("LF.TXT", false);
    options_.FileWrite = true;
    openFile("MIXED.TXT", "a\r\nb\n");
    EXPECT_EQ(notices_.lastStatus(), FillText(TextId::OtherLineEnds, {LoadText(TextId::LineEndsMixed), "LF"}));
}

TEST_F(FileCommandsTest, WhatIsNoTextIsAskedAboutBeforeItsUneditedBytesChange) {
    const std::string binary("a\0b\n", 4);
    openFile("A.BIN", binary);
    EXPECT_TRUE(commands_.save(document_)) << "nothing is written";
    type("x");
    notices_.answers = {BoxAnswer::No, BoxAnswer::Yes};
    EXPECT_FALSE(commands_.save(document_));
    EXPECT_EQ(notices_.boxes.back().text, FillText(TextId::NotPlainText, {"A.BIN", LoadText(TextId::ZeroBytes)}));
    EXPECT_EQ(disk_.get("A.BIN"), binary);
    EXPECT_TRUE(commands_.save(document_));
    type("y");
    EXPECT_TRUE(commands_.save(document_)) << "asked once";
}

}  // namespace
}  // namespace vexa
