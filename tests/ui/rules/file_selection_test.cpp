#include "ui/dialogs/file_selection.h"

#include <gtest/gtest.h>

#include "support/test_disk.h"

namespace vexa {
namespace {

using Paths = std::vector<std::string>;

class FileSelectionTest : public ::testing::Test {
  protected:
    FileSelectionTest() {
        for (const char* name : {"A.C", "B.C", "MY FILE.C"})
            disk.put(name, "x");
    }
    // The names of an answer, each with its full path.
    Paths paths(const Paths& names) const {
        Paths full;
        for (const std::string& name : names)
            full.push_back(disk.path(name));
        return full;
    }

    test::TestDisk disk;
};

TEST_F(FileSelectionTest, OnePathIsTakenWholeAlsoWithBlanks) {
    for (const char* name : {"A.C", "MY FILE.C", "NEW.C", "A NEW FILE.C"}) {
        EXPECT_EQ(SplitSelection(disk.path(name)), paths({name}));
    }
}

TEST_F(FileSelectionTest, SeveralNamesComeWithTheirDirectoryInBothStyles) {
    const std::string zero(1, '\0');
    EXPECT_EQ(SplitSelection(disk.path() + zero + "A.C" + zero + "MY FILE.C"), paths({"A.C", "MY FILE.C"}));
    EXPECT_EQ(SplitSelection(disk.path() + " A.C B.C"), paths({"A.C", "B.C"}));
    EXPECT_EQ(SplitSelection(disk.path("A.C") + " B.C"), paths({"A.C", "B.C"}));
}

TEST_F(FileSelectionTest, NamesMayHavePathsOfTheirOwn) {
    const Paths expected = {disk.path("A.C"), "D:\\B.C", "\\\\HOST\\SHARE\\C.C"};
    EXPECT_EQ(SplitSelection(disk.path() + " A.C D:\\B.C \\\\HOST\\SHARE\\C.C"), expected);
}

TEST_F(FileSelectionTest, UsersFiltersComeBeforeTheOthers) {
    EditorOptions options;
    const auto count = OfferedFileKinds(options).size();
    options.Filter2 = "*.pas;*.inc";
    const auto kinds = OfferedFileKinds(options);
    ASSERT_EQ(kinds.size(), count + 1);
    EXPECT_EQ(kinds.front().label, "Files (*.pas;*.inc)");
    EXPECT_EQ(kinds.front().patterns, "*.pas;*.inc");
    EXPECT_EQ(kinds[1].patterns, "*.*");
}

}  // namespace
}  // namespace vexa
