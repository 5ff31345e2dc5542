#include "external/process_runner.h"

#include <array>
#include <utility>

#include "base/ascii.h"
#include "base/file.h"
#include "base/strings.h"
#include "external/program_command.h"

namespace vexa {

namespace {

constexpr const char* kCaptureFileName = "VexaPip.dat";
constexpr const char* kInterpreterFileName = "VexaDOS.PIF";
constexpr const char* kWindowTitle = "VexaCommand";
// The variable by which the interpreter file is told where the standard error goes.
constexpr const char* kErrorFileVariable = "VEXA_STDERR";

constexpr std::array kSpawnTexts = {TextId::SpawnOk,           TextId::SpawnError,
                                    TextId::SpawnActive,       TextId::SpawnFileNotFound,
                                    TextId::SpawnPathNotFound, TextId::SpawnDirectoryNotFound,
                                    TextId::SpawnOutOfMemory,  TextId::SpawnAccessDenied};

// The current drive and directory are others while this lives.
class VisitedDirectory {
  public:
    explicit VisitedDirectory(const std::string& directory) : before_(platform::CurrentDirectory()) {
        if (directory.size() > 1 && directory[1] == ':') platform::ChangeDrive(UpperAscii(directory[0]) - 'A');
        entered_ = platform::ChangeDirectory(directory);
    }
    ~VisitedDirectory() {
        if (before_.size() > 1 && before_[1] == ':') platform::ChangeDrive(UpperAscii(before_[0]) - 'A');
        platform::ChangeDirectory(before_);
    }
    VisitedDirectory(const VisitedDirectory&) = delete;
    VisitedDirectory& operator=(const VisitedDirectory&) = delete;

    bool entered() const { return entered_; }

  private:
    const std::string before_;
    bool entered_ = false;
};

class VisitedVariable {
  public:
    explicit VisitedVariable(const std::string& value) { platform::SetEnvironmentValue(kErrorFileVariable, value); }
    ~VisitedVariable() { platform::SetEnvironmentValue(kErrorFileVariable, {}); }
    VisitedVariable(const VisitedVariable&) = delete;
    VisitedVariable& operator=(const VisitedVariable&) = delete;
};

SpawnResult ResultOf(platform::StartResult result) {
    switch (result) {
        case platform::StartResult::Started:
            return SpawnResult::Started;
        case platform::StartResult::FileNotFound:
            return SpawnResult::FileNotFound;
        case platform::StartResult::PathNotFound:
            return SpawnResult::PathNotFound;
        case platform::StartResult::DirectoryNotFound:
            return SpawnResult::DirectoryNotFound;
        case platform::StartResult::Failed:
            break;
    }
    return SpawnResult::Failed;
}

bool MakeEmpty(const std::string& path) {
    File file(path, platform::OpenMode::CreateAlways);
    return file.isOpen() && file.close();
}

}  // namespace

std::string_view SpawnText(SpawnResult result) {
    const auto index = static_cast<std::size_t>(result);
    return LoadText(index < kSpawnTexts.size() ? kSpawnTexts[index] : TextId::SpawnError);
}

ProcessRunner::ProcessRunner(const Directories& directories, std::string_view errorFileName)
    : captureFile_(directories.GetDirectory(kProgramDirectory) + kCaptureFileName),
      errorFile_(directories.GetDirectory(kProgramDirectory).append(errorFileName)),
      interpreterFile_(directories.GetDirectory(kProgramDirectory) + kInterpreterFileName) {}

bool ProcessRunner::Run(const ProgramRequest& request) {
    return run(request, request.capture && request.kind != ProgramKind::Windows);
}

bool ProcessRunner::run(const ProgramRequest& request, bool capturesErrors) {
    if (!IsIdle()) {
        lastError_ = SpawnResult::StillActive;
        return false;
    }
    hasCapture_ = request.capture && MakeEmpty(captureFile_);
    hasErrors_ = capturesErrors && MakeEmpty(errorFile_);
    const std::string line = CommandLineOf(request, interpreterFile_, request.capture ? captureFile_ : std::string());
    workDirectory_ = request.directory().empty() ? platform::CurrentDirectory() : request.directory();
    lastError_ = SpawnResult::Failed;
    const VisitedDirectory visited(workDirectory_);
    if (!visited.entered()) return false;
    workDirectory_ = platform::CurrentDirectory();
    return start(line, static_cast<std::uint16_t>(request.showMode));
}

bool ProcessRunner::start(const std::string& commandLine, std::uint16_t showMode) {
    const VisitedVariable variable(hasErrors_ ? errorFile_ : std::string());
    const platform::StartedProcess started = platform::StartProcess(commandLine, kWindowTitle, showMode);
    process_ = started.process;
    lastError_ = ResultOf(started.result);
    return lastError_ == SpawnResult::Started;
}

bool ProcessRunner::IsIdle() {
    if (process_ != platform::kNoProcess && platform::ExitCodeOf(process_)) closeProcess();
    return process_ == platform::kNoProcess;
}

void ProcessRunner::closeProcess() {
    if (process_ != platform::kNoProcess) platform::CloseProcess(std::exchange(process_, platform::kNoProcess));
}

}  // namespace vexa
