#include "external/program_command.h"

#include "base/ascii.h"
#include "base/platform.h"

namespace vexa {

namespace {

constexpr std::string_view kSpecial = " &()^=;,+!'";
constexpr std::string_view kErrorsToOutput = "2>&1";

bool IsTakenApart(std::string_view text) {
    return text.find_first_of(kSpecial) != std::string_view::npos;
}

std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

// The program of a request may have arguments with it; it is a path when there is a file of that whole name.
std::string ProgramInCommand(const std::string& program) {
    const bool hasDirectory = program.find_first_of("\\:") != std::string::npos;
    return hasDirectory && IsTakenApart(program) && platform::PathExists(program) ? PathInCommand(program) : program;
}

std::string CommandOf(const ProgramRequest& request, const std::string& arguments) {
    const std::string program = ProgramInCommand(request.program());
    return request.kind == ProgramKind::Interpreter ? arguments : program + " " + arguments;
}

}  // namespace

std::string PathInCommand(const std::string& path) {
    if (!IsTakenApart(path)) return path;
    const std::string shortPath = platform::ShortPath(path);
    return !shortPath.empty() && !IsTakenApart(shortPath) ? shortPath : Quoted(path);
}

std::string NameInCommand(const std::string& name) {
    return IsTakenApart(name) ? Quoted(name) : name;
}

RedirectedCommand::RedirectedCommand(std::string_view text) : command(text) {
    std::string_view rest = TrimBlanks(text);
    if (!rest.ends_with(kErrorsToOutput)) return;
    rest.remove_suffix(kErrorsToOutput.size());
    if (!rest.empty() && !IsBlank(rest.back())) return;
    errorsToo = true;
    command = TrimBlanks(rest);
}

std::string RedirectedCommand::withOutputTo(std::string_view file) const {
    std::string redirected = command + " > " + std::string(file);
    if (errorsToo) redirected.append(" ").append(kErrorsToOutput);
    return redirected;
}

std::string CommandLineOf(const ProgramRequest& request, const std::string& interpreter, const std::string& capture) {
    const std::string starter = PathInCommand(interpreter);
    const bool isShell = request.kind == ProgramKind::Interpreter && request.arguments().empty();
    const bool redirects = !capture.empty() && request.kind != ProgramKind::Windows;
    const RedirectedCommand arguments(redirects ? request.arguments() : std::string());
    const std::string& argumentText = arguments.errorsToo ? arguments.command : request.arguments();
    std::string line = isShell ? starter : CommandOf(request, argumentText) + " ";
    if (!isShell && request.kind != ProgramKind::Windows) line.insert(0, starter + " /C ");
    if (!capture.empty()) line += " > " + PathInCommand(capture);
    if (arguments.errorsToo) line.append(" ").append(kErrorsToOutput);
    return line;
}

}  // namespace vexa
