// A program for the editor to run.
//
//     test_program wait FILE ...    makes FILE.begun, which goes at the end, and ends when FILE exists
//     test_program gcc ...          the compiler of the machine that runs the tests, with its messages as errors
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr const char* kEnd = "(the compiler has ended)";
constexpr DWORD kPollMilliseconds = 20;

int WaitForFile(const std::string& name) {
    std::ofstream{name + ".begun"};
    while (!std::filesystem::exists(name))
        Sleep(kPollMilliseconds);
    std::filesystem::remove(name + ".begun");
    return 0;
}

std::string Read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool StartOnHost(std::string commandLine, HANDLE output) {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = output;
    PROCESS_INFORMATION started{};
    return CreateProcessA(R"(\\?\unix\bin\sh)", commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                          &startup, &started);
}

// Nobody but its output tells of the end of a program of the host.
int RunCompiler(const std::string& arguments) {
    const std::string path = "test_program.out";
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE output = CreateFileA(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                      CREATE_ALWAYS, 0, nullptr);
    const std::string compiler = "/usr/bin/i686-w64-mingw32-gcc" + arguments + " 2>&1; echo '" + kEnd + "'";
    if (!StartOnHost("sh -c \"" + compiler + "\"", output)) return 1;
    std::string text;
    while ((text = Read(path)).find(kEnd) == std::string::npos)
        Sleep(kPollMilliseconds);
    CloseHandle(output);
    std::fputs(text.substr(0, text.find(kEnd)).c_str(), stderr);
    return 0;
}

}  // namespace

int main(int count, char** words) {
    const std::string task = count > 1 ? words[1] : "";
    if (task == "wait" && count > 2) return WaitForFile(words[2]);
    std::string arguments;
    for (int i = 2; i < count; ++i)
        arguments += std::string(" ") + words[i];
    return task == "gcc" ? RunCompiler(arguments) : 1;
}
