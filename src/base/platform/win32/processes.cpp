#include <windows.h>

#include "base/platform.h"

namespace vexa::platform {

namespace {

HANDLE Native(ProcessHandle process) {
    return reinterpret_cast<HANDLE>(process);
}

StartResult ResultOf(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
            return StartResult::FileNotFound;
        case ERROR_PATH_NOT_FOUND:
            return StartResult::PathNotFound;
        case ERROR_DIRECTORY:
            return StartResult::DirectoryNotFound;
        default:
            return StartResult::Failed;
    }
}

}  // namespace

// The system may write into the command line and only reads the title, although its type does not say so.
StartedProcess StartProcess(const std::string& commandLine, const std::string& title, std::uint16_t showMode) {
    std::string writableLine = commandLine;
    std::string writableTitle = title;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.lpTitle = writableTitle.data();
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = showMode;
    PROCESS_INFORMATION started{};
    if (!CreateProcessA(nullptr, writableLine.data(), nullptr, nullptr, FALSE,
                        CREATE_NEW_CONSOLE | NORMAL_PRIORITY_CLASS, nullptr, nullptr, &startup, &started))
        return {kNoProcess, ResultOf(GetLastError())};
    CloseHandle(started.hThread);
    return {reinterpret_cast<ProcessHandle>(started.hProcess), StartResult::Started};
}

// The exit code alone cannot tell a program that runs from one that ended with 259.
std::optional<std::uint32_t> ExitCodeOf(ProcessHandle process) {
    DWORD code = 0;
    if (WaitForSingleObject(Native(process), 0) != WAIT_OBJECT_0 || !GetExitCodeProcess(Native(process), &code))
        return std::nullopt;
    return code;
}

void CloseProcess(ProcessHandle process) {
    CloseHandle(Native(process));
}

}  // namespace vexa::platform
