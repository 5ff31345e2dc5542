// Starts one external program at a time and lets its owner ask whether it has ended. It never waits.
#pragma once

#include <string>
#include <string_view>

#include "base/directories.h"
#include "base/platform.h"
#include "external/program_request.h"

namespace vexa {

// How the last start went; the numbers are those of the texts.
enum class SpawnResult {
    Started = 0,
    Failed = 1,
    StillActive = 2,
    FileNotFound = 3,
    PathNotFound = 4,
    DirectoryNotFound = 5,
    OutOfMemory = 6,
    AccessDenied = 7,
};

// The text of a result; that of a failure for other numbers.
std::string_view SpawnText(SpawnResult result);

class ProcessRunner {
  public:
    // The file of the program directory that takes what a captured program reports as errors. Runners whose programs
    // may run at the same time need different ones.
    ProcessRunner(const Directories& directories, std::string_view errorFileName);
    // A program that runs goes on.
    ~ProcessRunner() { closeProcess(); }
    ProcessRunner(const ProcessRunner&) = delete;
    ProcessRunner& operator=(const ProcessRunner&) = delete;

    // Starts the program of a request, in the request's directory. False when it could not be started or one is still
    // running; nothing has changed then but the capture files, and with one running not even those.
    bool Run(const ProgramRequest& request);
    // The same where the program sends its output to a file itself, and only its errors are to be captured.
    bool RunForErrors(const ProgramRequest& request) { return run(request, true); }
    // Asks whether the program has ended. True also when none was started.
    bool IsIdle();

    const std::string& CaptureFile() const { return captureFile_; }
    const std::string& ErrorFile() const { return errorFile_; }
    // Whether the last run has a capture file of its own; where it could not be made anew, it may hold older output.
    bool HasCapture() const { return hasCapture_; }
    bool HasErrors() const { return hasErrors_; }
    // That of the last start, absolute.
    const std::string& WorkDirectory() const { return workDirectory_; }
    SpawnResult LastError() const { return lastError_; }
    // What is shown after a failed start: nothing, which clears the status line.
    std::string_view StatusText() const { return {}; }

  private:
    bool run(const ProgramRequest& request, bool capturesErrors);
    bool start(const std::string& commandLine, std::uint16_t showMode);
    void closeProcess();

    const std::string captureFile_;
    const std::string errorFile_;
    const std::string interpreterFile_;
    std::string workDirectory_;
    platform::ProcessHandle process_ = platform::kNoProcess;
    SpawnResult lastError_ = SpawnResult::Started;
    bool hasCapture_ = false;
    bool hasErrors_ = false;
};

}  // namespace vexa
