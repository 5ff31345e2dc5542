#include "shell/open_path.h"

#include <gtest/gtest.h>

#include "support/test_disk.h"

namespace vexa {
namespace {

TEST(OpenPath, NameWithADriveIsFullAndEveryOtherNameIsInTheCurrentDirectory) {
    const test::TestDisk disk;
    std::string here = disk.path();
    if (!here.ends_with('\\')) here += '\\';
    const std::pair<std::string, std::string> cases[] = {
        {"C:\\TEXT\\A.C", "C:\\TEXT\\A.C"},
        {here.substr(0, 2) + "a.c", here + "a.c"},
        {"\\\\server\\share\\a.c", "\\\\server\\share\\a.c"},
        {"a.c", here + "a.c"},
        {"sub\\a.c", here + "a.c"},  // the directory is dropped
        {"\\text\\a.c", here + "a.c"},
        {"C:\\TEXT\\.\\SUB\\..\\A.C", "C:\\TEXT\\A.C"},
    };
    for (const auto& [name, path] : cases)
        EXPECT_EQ(OpenPathOf(name), path);
}

}  // namespace
}  // namespace vexa
