#include "shell/file_commands.h"

#include <gtest/gtest.h>

#include "base/strings.h"
#include "document/edit_view.h"
#include "support/recording_notices.h"
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

class FileCommandsTest : public testing::Test {
  protected:
    void type(std::string_view text) {
        EditView view(document_, options_, notices_);
        for (const char c : text) {
            KeyEvent event;
            event.character = static_cast<unsigned char>(c);
            view.key(event);
        }
    }
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
    test::RecordingNotices notices_;
    ScriptedQuestions questions_;
    ProfileList profiles_{disk_.path()};
    EditorOptions options_;
    TextDocument document_{options_, notices_};
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
    disk_.setReadOnly("A.TXT", false);
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
    EXPECT_FALSE(document_.isModified());
}

TEST_F(FileCommandsTest, ASafetyCopyThatACrashLeftIsAnnounced) {
    disk_.put("A.TXT.vx0", "the old text");
    openFile("A.TXT", "half");
    ASSERT_EQ(notices_.boxes.size(), 1u);
    EXPECT_EQ(notices_.boxes[0].text, FillText(TextId::SaveInterrupted, {"A.TXT", disk_.path("A.TXT.vx0")}));
    EXPECT_TRUE(disk_.has("A.TXT.vx0"));
}

}  // namespace
}  // namespace vexa
