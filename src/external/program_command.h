// The texts of commands: what a path or a file name must look like in one, and the command line of a request.
#pragma once

#include <string>
#include <string_view>

#include "external/program_request.h"

namespace vexa {

// A path as it may stand in a command line. One with a blank or with a character that means something to the command
// interpreter is given in its short form, and in quotes when that has them too: as it is, "C:\My Programs\A.EXE" would
// start "C:\My".
std::string PathInCommand(const std::string& path);

// A file's name without directory, in quotes where the command interpreter would take it apart.
std::string NameInCommand(const std::string& name);

// A command that ends in "2>&1", which sends the errors where the output goes, means the output as it is redirected
// after that.
struct RedirectedCommand {
    explicit RedirectedCommand(std::string_view text);
    // The command with its output sent to a file, whose name is ready for a command.
    std::string withOutputTo(std::string_view file) const;

    std::string command;
    bool errorsToo = false;
};

// The command line of a request. Without a capture file its path is empty. The blanks are those that programs have
// always been started with, also the one at the end.
std::string CommandLineOf(const ProgramRequest& request, const std::string& interpreter, const std::string& capture);

}  // namespace vexa
