#include "external/captured_programs.h"

#include "base/strings.h"

namespace vexa {

namespace {

constexpr const char* kInterpreterName = "COMMAND.COM";
constexpr const char* kErrorFileName = "VexaPi2.dat";

}  // namespace

ProgramRequest CommandLineRequest() {
    ProgramRequest request(kInterpreterName);
    request.kind = ProgramKind::Interpreter;
    return request;
}

CapturedPrograms::CapturedPrograms(const Directories& directories, OutputList& output, PollTimer& timer,
                                   Notices& notices)
    : directories_(directories),
      output_(output),
      timer_(timer),
      notices_(notices),
      runner_(directories, kErrorFileName) {}

bool CapturedPrograms::MayStart() {
    if (polling_) tell(SpawnText(SpawnResult::StillActive));
    return !polling_;
}

void CapturedPrograms::RunCommandLine(const ProgramRequest& request) {
    if (!MayStart()) return;
    beginOutput();
    runCaptured(request);
    if (!polling_) output_.AddLine(runner_.StatusText());
}

void CapturedPrograms::RunTool(const ProgramRequest& request) {
    if (!request.capture) return runUnwatched(request);
    beginOutput();
    if (MayStart()) runCaptured(request);
}

void CapturedPrograms::RunShell() {
    ProgramRequest request = CommandLineRequest();
    request.capture = false;
    request.showMode = ShowMode::Normal;
    tell(request.description());
    runUnwatched(request);
}

void CapturedPrograms::beginOutput() {
    output_.clearRows();
    output_.AddBanner();
}

void CapturedPrograms::runCaptured(const ProgramRequest& request) {
    tell(request.description());
    polling_ = runner_.Run(request);
    if (polling_) {
        timer_.start(kPollMilliseconds);
    } else {
        tell(runner_.StatusText());
    }
}

// With the runner goes the handle: nobody asks whether the program has ended.
void CapturedPrograms::runUnwatched(const ProgramRequest& request) {
    ProcessRunner runner(directories_, kErrorFileName);
    if (!runner.Run(request)) tell(runner.StatusText());
}

void CapturedPrograms::Tick() {
    if (!polling_ || !runner_.IsIdle()) return;
    timer_.stop();
    polling_ = false;
    if (notices_.pumpMessages()) return;
    // What was let run may have started the next program, whose files these now are.
    if (polling_) return;
    tell(takeOutput() ? std::string(LoadText(TextId::CommandCompleted))
                      : FillText(TextId::CannotOpenErrorFile, {runner_.CaptureFile()}));
}

bool CapturedPrograms::takeOutput() {
    return runner_.HasCapture() &&
           output_.LoadCapture(runner_.CaptureFile(), runner_.HasErrors() ? runner_.ErrorFile() : std::string(),
                               runner_.WorkDirectory());
}

}  // namespace vexa
