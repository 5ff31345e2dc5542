// Copies of changed documents that the editor makes by itself.
#include <gtest/gtest.h>

#include "ui/editor.h"

namespace vexa::test {
namespace {

// The shortest interval that the settings know counts in minutes; none at all makes a copy at every check.
TEST(Backup, ChangedDocumentIsCopiedAgainAndAgainWhileItStaysChanged) {
    const TestFolder folder;
    folder.put("vexa.INI", "[Editor Options]\r\nBackupInterval=0\r\n");
    folder.put("a.txt", "a\r\n");
    folder.put("b.txt", "b\r\n");
    const Editor editor(folder, {"a.txt", "b.txt"});
    const auto copied = [&](const std::string& text) {
        const auto isThere = [&] { return folder.get("vbackup\\b.txt") == text; };
        return WaitUntil(isThere) || WaitUntil(isThere);  // the checks are seconds apart
    };
    editor.keys("1");
    EXPECT_TRUE(copied("1b\r\n"));
    editor.keys("2");
    EXPECT_TRUE(copied("12b\r\n"));
    EXPECT_TRUE(editor.hasCaption("b.txt *]"));
    EXPECT_EQ(folder.get("b.txt"), "b\r\n");
    EXPECT_FALSE(folder.has("vbackup\\a.txt"));
}

}  // namespace
}  // namespace vexa::test
