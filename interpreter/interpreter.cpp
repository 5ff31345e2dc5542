// VexaDOS.PIF: starts the system's command interpreter for the editor, waits for it, and ends with its exit code.
//
//     VexaDOS.PIF /C COMMAND    carries the command out
//     VexaDOS.PIF               an interactive shell
//
// The interpreter is the one that COMSPEC names by its full path, else CMD.EXE of the system's directory, else
// COMMAND.COM of Windows' directory. CMD.EXE gets "/D", so that no command of the registry runs before the user's.
// VEXA_STDERR, where it is set, names the file that takes the standard error; it is not handed on.
//
// The program imports kernel32 alone: there is no run-time library, so nothing here may call one or need a start-up.
#include <windows.h>

namespace {

constexpr DWORD kNotStarted = 1;
constexpr DWORD kPathSize = MAX_PATH;

char interpreter[kPathSize];
char errorFile[kPathSize];

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

const char* SkipBlanks(const char* text) {
    while (*text == ' ' || *text == '\t')
        ++text;
    return text;
}

// What follows the program's own name.
const char* Arguments(const char* commandLine) {
    const bool quoted = *commandLine == '"';
    if (quoted) ++commandLine;
    while (*commandLine && (quoted ? *commandLine != '"' : *commandLine != ' ' && *commandLine != '\t'))
        ++commandLine;
    return SkipBlanks(quoted && *commandLine ? commandLine + 1 : commandLine);
}

bool IsFile(const char* path) {
    const DWORD attributes = GetFileAttributesA(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// A bare name would be looked for in the current directory first.
bool IsFullPath(const char* path) {
    return (path[0] && path[1] == ':' && path[2] == '\\') || (path[0] == '\\' && path[1] == '\\');
}

bool FindInDirectory(UINT(WINAPI* directory)(LPSTR, UINT), const char* name) {
    const UINT length = directory(interpreter, kPathSize);
    if (length == 0 || length + static_cast<UINT>(lstrlenA(name)) >= kPathSize) return false;
    lstrcatA(interpreter, name);
    return IsFile(interpreter);
}

bool FindInterpreter() {
    const DWORD length = GetEnvironmentVariableA("COMSPEC", interpreter, kPathSize);
    if (length > 0 && length < kPathSize && IsFullPath(interpreter) && IsFile(interpreter)) return true;
    return FindInDirectory(GetSystemDirectoryA, "\\CMD.EXE") || FindInDirectory(GetWindowsDirectoryA, "\\COMMAND.COM");
}

bool EndsIgnoringCase(const char* text, const char* end) {
    const int skipped = lstrlenA(text) - lstrlenA(end);
    if (skipped < 0) return false;
    for (text += skipped; *text && Lower(*text) == Lower(*end); ++text)
        ++end;
    return *text == '\0';
}

const char* AfterCarryOut(const char* arguments) {
    return arguments[0] == '/' && Lower(arguments[1]) == 'c' ? SkipBlanks(arguments + 2) : nullptr;
}

// CMD.EXE takes the first and the last quote of a command that begins with one away, so such a command is given another
// pair.
char* InterpreterLine(const char* arguments) {
    constexpr SIZE_T kRoomForMore = 32;
    const SIZE_T size = static_cast<SIZE_T>(lstrlenA(interpreter) + lstrlenA(arguments)) + kRoomForMore;
    auto* line = static_cast<char*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, size));
    if (!line) return nullptr;
    const bool isCmd = EndsIgnoringCase(interpreter, "\\cmd.exe");
    const char* command = AfterCarryOut(arguments);
    const bool guarded = isCmd && command && *command == '"';
    lstrcatA(line, "\"");
    lstrcatA(line, interpreter);
    lstrcatA(line, isCmd ? "\" /D " : "\" ");
    lstrcatA(line, guarded ? "/C \"" : arguments);
    if (guarded) {
        lstrcatA(line, command);
        lstrcatA(line, "\"");
    }
    return line;
}

// None where no file is asked for, or it cannot be made.
HANDLE OpenErrorFile() {
    const DWORD length = GetEnvironmentVariableA("VEXA_STDERR", errorFile, kPathSize);
    SetEnvironmentVariableA("VEXA_STDERR", nullptr);
    if (length == 0 || length >= kPathSize) return INVALID_HANDLE_VALUE;
    SECURITY_ATTRIBUTES inherited;
    inherited.nLength = sizeof inherited;
    inherited.lpSecurityDescriptor = nullptr;
    inherited.bInheritHandle = TRUE;
    return CreateFileA(errorFile, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, CREATE_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

STARTUPINFOA Startup() {
    STARTUPINFOA startup;
    GetStartupInfoA(&startup);
    const HANDLE errors = OpenErrorFile();
    if (errors == INVALID_HANDLE_VALUE) return startup;
    startup.dwFlags |= STARTF_USESTDHANDLES;
    startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    startup.hStdError = errors;
    return startup;
}

DWORD RunInterpreter(char* line) {
    STARTUPINFOA startup = Startup();
    PROCESS_INFORMATION started;
    if (!CreateProcessA(interpreter, line, nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &started))
        return kNotStarted;
    DWORD code = kNotStarted;
    WaitForSingleObject(started.hProcess, INFINITE);
    GetExitCodeProcess(started.hProcess, &code);
    return code;
}

}  // namespace

extern "C" [[noreturn]] void Start() {
    char* line = FindInterpreter() ? InterpreterLine(Arguments(GetCommandLineA())) : nullptr;
    ExitProcess(line ? RunInterpreter(line) : kNotStarted);
}
