#include <gtest/gtest.h>
#include <windows.h>

#include <array>

#include "base/platform.h"
#include "support/test_disk.h"

namespace vexa::test {

namespace fs = std::filesystem;

TestDisk::TestDisk() : outerDirectory_(platform::CurrentDirectory()) {
    static unsigned number = 0;
    std::array<char, MAX_PATH> temporary{};
    GetTempPathA(static_cast<DWORD>(temporary.size()), temporary.data());
    do {
        dosPath_ = temporary.data() + ("vexa" + std::to_string(GetCurrentProcessId()) + "_" + std::to_string(number++));
    } while (!CreateDirectoryA(dosPath_.c_str(), nullptr) && GetLastError() == ERROR_ALREADY_EXISTS);
    folder_ = dosPath_;
    EXPECT_TRUE(platform::ChangeDirectory(dosPath_)) << dosPath_;
}

// A directory is removed only when nobody stands in it and nothing in it is read-only.
TestDisk::~TestDisk() {
    platform::ChangeDirectory(outerDirectory_);
    std::error_code ignored;
    for (const auto& entry : fs::recursive_directory_iterator(folder_, ignored))
        SetFileAttributesA(entry.path().string().c_str(), FILE_ATTRIBUTE_NORMAL);
    fs::remove_all(folder_, ignored);
}

void TestDisk::setReadOnly(std::string_view name, bool readOnly) const {
    const DWORD attributes = readOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
    EXPECT_TRUE(SetFileAttributesA(path(name).c_str(), attributes)) << name;
}

void TestDisk::setHidden(std::string_view name) const {
    EXPECT_TRUE(SetFileAttributesA(path(name).c_str(), FILE_ATTRIBUTE_HIDDEN)) << name;
}

EnvironmentSetting::EnvironmentSetting(const std::string& name, const std::string& value) : name_(name) {
    EXPECT_TRUE(SetEnvironmentVariableA(name.c_str(), value.c_str())) << name;
}

EnvironmentSetting::~EnvironmentSetting() {
    SetEnvironmentVariableA(name_.c_str(), nullptr);
}

LockedFile::LockedFile(const std::string& path)
    : handle_(reinterpret_cast<std::intptr_t>(
          CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))) {
    EXPECT_NE(handle_, platform::kNoFile) << "cannot lock " << path;
}

LockedFile::~LockedFile() {
    CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace vexa::test
