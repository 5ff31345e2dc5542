// A printer that prints into a file.
#pragma once

#include <string>

namespace vexa::test {

// The system's default printer while it lives: a colour PostScript one with A4 paper, made with what Wine brings along.
class TestPrinter {
  public:
    // The file is a full path.
    explicit TestPrinter(const std::string& file);
    ~TestPrinter();
    TestPrinter(const TestPrinter&) = delete;
    TestPrinter& operator=(const TestPrinter&) = delete;

    // False where there is no such driver.
    bool isThere() const { return isThere_; }

  private:
    bool isThere_ = false;
};

// Takes away what a test that was killed has left behind.
void RemoveTestPrinter();
// Whether the user has a printer.
bool HasPrinter();

}  // namespace vexa::test
