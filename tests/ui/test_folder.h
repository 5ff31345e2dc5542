// A program folder of a test's own: the editor, its settings and the files that it edits.
#pragma once

#include <string>

namespace vexa::test {

class TestFolder {
  public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    // The full path of a name in the folder; the folder's own without a name; a name with a drive as it is.
    std::string path(const std::string& name = {}) const;
    std::string program() const { return path("vexa.exe"); }
    // The program of the tests that the editor can run.
    void putTestProgram() const;
    // A file that stands beside the program under test.
    void putFromProgramFolder(const std::string& name) const;
    void put(const std::string& name, const std::string& bytes) const;
    // Empty for a missing file.
    std::string get(const std::string& name) const;
    bool has(const std::string& name) const;
    void setReadOnly(const std::string& name) const;
    void makeDirectory(const std::string& name) const;

  private:
    std::string path_;
};

}  // namespace vexa::test
