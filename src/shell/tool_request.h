// The forms of arguments that other programs write: "a.c:12", "a.c:12:5", "+12 a.c" and "-wait".
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "shell/command_line.h"

namespace vexa {

struct ToolRequest {
    std::vector<FileAtLine> files;
    bool waits = false;  // the start ends when the user has closed the files
};

// None when no argument has one of these forms; an argument that is the name of an existing file never has. "+12"
// counts for the next file, or for the last one when none follows; a line option for every file without a line of its
// own. Names that come this way keep a directory also without a drive: whoever writes them means the current one.
// Looks into the current directory, so it must be called before that changes.
std::optional<ToolRequest> ToolRequestOf(std::span<const std::string> arguments);

}  // namespace vexa
