#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "base/directories.h"
#include "base/platform.h"
#include "base/platform/host/sandbox.h"

namespace vexa::platform {

namespace {

struct Command {
    std::string program;
    std::string rest;
};

Command SplitCommandLine(const std::string& line) {
    const bool quoted = line.starts_with('"');
    const std::size_t begin = quoted ? 1 : 0;
    const std::size_t end = std::min(line.find(quoted ? '"' : ' ', begin), line.size());
    const std::size_t rest = line.find_first_not_of(' ', end + begin);
    return {line.substr(begin, end - begin), rest == std::string::npos ? std::string() : line.substr(rest)};
}

[[noreturn]] void RunScript(const std::string& script, const std::string& argument, const std::string& directory) {
    const int nothing = open("/dev/null", O_RDONLY);
    const bool ready = chdir(directory.c_str()) == 0 && dup2(nothing, STDIN_FILENO) >= 0;
    setenv("VEXA_DISK", host::ThePlaces().root.c_str(), 1);
    if (ready) execl("/bin/sh", "sh", script.c_str(), argument.c_str(), nullptr);
    constexpr int kCannotRun = 127;
    _exit(kCannotRun);
}

}  // namespace

StartedProcess StartProcess(const std::string& commandLine, const std::string&, std::uint16_t) {
    const Command command = SplitCommandLine(commandLine);
    if (!DirectoryExists(CurrentDirectory())) return {kNoProcess, StartResult::DirectoryNotFound};
    if (!DirectoryExists(DirectoryOf(FullPath(command.program)))) return {kNoProcess, StartResult::PathNotFound};
    if (!PathExists(command.program)) return {kNoProcess, StartResult::FileNotFound};
    const std::string script = host::HostPath(command.program);
    const std::string directory = host::HostPath(CurrentDirectory());
    const pid_t process = fork();
    if (process == 0) RunScript(script, command.rest, directory);
    if (process < 0) return {};
    return {process, StartResult::Started};
}

// The program stays to be asked again, as it does on Windows, until its handle is closed.
std::optional<std::uint32_t> ExitCodeOf(ProcessHandle process) {
    siginfo_t ended{};
    if (waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOHANG | WNOWAIT) != 0) return std::nullopt;
    if (ended.si_pid == 0) return std::nullopt;
    return static_cast<std::uint32_t>(ended.si_status);
}

void CloseProcess(ProcessHandle process) {
    waitpid(static_cast<pid_t>(process), nullptr, WNOHANG);
}

}  // namespace vexa::platform
