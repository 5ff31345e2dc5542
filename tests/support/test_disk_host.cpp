#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>

#include "base/platform/host/open_files.h"
#include "base/platform/host/sandbox.h"
#include "support/test_disk.h"

namespace vexa::test {

namespace fs = std::filesystem;

TestDisk::TestDisk() {
    std::string root = (fs::temp_directory_path() / "vexa-XXXXXX").string();
    if (!mkdtemp(root.data())) ADD_FAILURE() << "cannot make " << root;
    folder_ = fs::path(root) / "c";
    fs::create_directory(folder_);
    dosPath_ = "C:";
    platform::host::SetSandboxRoot(root);
    platform::host::SetProgramPath(programPath());
}

TestDisk::~TestDisk() {
    platform::host::SetSandboxRoot("");
    std::error_code ignored;
    fs::remove_all(folder_.parent_path(), ignored);
}

void TestDisk::setReadOnly(std::string_view name, bool readOnly) const {
    constexpr mode_t kReadable = 0444;
    constexpr mode_t kWritable = 0644;
    EXPECT_EQ(chmod(real(name).c_str(), readOnly ? kReadable : kWritable), 0) << name;
}

void TestDisk::setHidden(std::string_view name) const {
    EXPECT_TRUE(real(name).filename().string().starts_with('.')) << name;
}

EnvironmentSetting::EnvironmentSetting(const std::string& name, const std::string& value) : name_(name) {
    EXPECT_EQ(setenv(name.c_str(), value.c_str(), 1), 0) << name;
}

EnvironmentSetting::~EnvironmentSetting() {
    unsetenv(name_.c_str());
}

LockedFile::LockedFile(const std::string& path) : handle_(platform::host::LockFile(path)) {
    EXPECT_GE(handle_, 0) << "cannot lock " << path;
}

LockedFile::~LockedFile() {
    platform::host::UnlockFile(static_cast<int>(handle_));
}

}  // namespace vexa::test
