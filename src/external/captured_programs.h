// Runs DOS command lines, shells and tools, and brings what they print into the Output window.
#pragma once

#include "base/directories.h"
#include "base/notices.h"
#include "external/output_list.h"
#include "external/poll_timer.h"
#include "external/process_runner.h"
#include "external/program_request.h"

namespace vexa {

// One captured program runs at a time.
class CapturedPrograms {
  public:
    static constexpr int kPollMilliseconds = 350;

    CapturedPrograms(const Directories& directories, OutputList& output, PollTimer& timer, Notices& notices);

    // Whether a captured program may be started; the user is told if not. Asked before the arguments are.
    bool MayStart();
    // Starts a program with its output captured, or tells the user why not. The Output window is begun anew.
    void RunCommandLine(const ProgramRequest& request);
    // Starts the program of a tool, captured or not as it says.
    void RunTool(const ProgramRequest& request);
    // An interactive command interpreter in a window of its own.
    void RunShell();
    // For the timer: takes the output over when the program has ended.
    void Tick();

  private:
    void runCaptured(const ProgramRequest& request);
    void runUnwatched(const ProgramRequest& request);
    bool takeOutput();
    void beginOutput();
    void tell(std::string_view text) { notices_.status(text, false, false); }

    const Directories& directories_;
    OutputList& output_;
    PollTimer& timer_;
    Notices& notices_;
    ProcessRunner runner_;
    bool polling_ = false;
};

// The request of the "DOS Command Line" dialog before it is filled in.
ProgramRequest CommandLineRequest();

}  // namespace vexa
