// A directory of its own for each test, under the same DOS paths on every platform: on the host the root of drive C: of
// a fresh sandbox, on Windows a fresh temporary directory. It is the current directory while it lives.
// Files are put and looked at past the code under test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vexa::test {

class TestDisk {
  public:
    TestDisk();
    ~TestDisk();
    TestDisk(const TestDisk&) = delete;
    TestDisk& operator=(const TestDisk&) = delete;

    // The full DOS path of a name relative to the disk ("A.TXT", "SUB\\A.TXT"); the disk's own without a name, then
    // without "\" at the end.
    std::string path(std::string_view name = {}) const;
    // The path that a program on this disk has.
    std::string programPath() const { return path("VEXA.EXE"); }

    void put(std::string_view name, std::string_view bytes) const;
    // The whole file; a missing one fails the test and gives "".
    std::string get(std::string_view name) const;
    bool has(std::string_view name) const;
    // Gives a file a second name.
    void link(std::string_view name, std::string_view second) const;
    void makeDirectory(std::string_view name) const;
    // A file, or a directory with everything in it.
    void remove(std::string_view name) const;
    void setReadOnly(std::string_view name, bool readOnly) const;
    void setHidden(std::string_view name) const;  // on the host only for names that begin with "."
    // How many files and directories a directory holds, hidden ones too.
    std::size_t count(std::string_view directory = {}) const;

  private:
    std::filesystem::path real(std::string_view name) const;

    std::filesystem::path folder_;  // the disk as the operating system names it
    std::string outerDirectory_;    // where to go back to
    std::string dosPath_;           // without "\" at the end
};

// An environment variable has this value while it lives, and none afterwards.
class EnvironmentSetting {
  public:
    EnvironmentSetting(const std::string& name, const std::string& value);
    ~EnvironmentSetting();
    EnvironmentSetting(const EnvironmentSetting&) = delete;
    EnvironmentSetting& operator=(const EnvironmentSetting&) = delete;

  private:
    const std::string name_;
};

// Another program has the file open for itself alone while this lives.
class LockedFile {
  public:
    explicit LockedFile(const std::string& path);
    ~LockedFile();
    LockedFile(const LockedFile&) = delete;
    LockedFile& operator=(const LockedFile&) = delete;

  private:
    std::intptr_t handle_;
};

}  // namespace vexa::test
