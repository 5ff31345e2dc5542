// The program's command line: its arguments, the line that one of them may name, and the files that it asks for.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vexa {

// A command line without the program's name, at most 32 KB of any bytes.
struct CommandLine {
    std::string text;                    // as it was given
    std::vector<std::string> arguments;  // cut as the C run-time library does; wildcards are left alone
};

// Cuts the whole command line of the process. Blanks part arguments, but not between quotes; a quote that is not closed
// goes on to the end. A backslash stands for itself except before a quote, where two mean one and \" means a quote;
// between quotes "" means a quote.
CommandLine ParseCommandLine(std::string_view whole);

// Whether "/?" or "-?" is the only argument; the program then shows a text and ends.
bool AsksForHelp(std::span<const std::string> arguments);

// The line that an argument names; matches anywhere in the argument: -l120, /L 7, --ll3. -1 when it names none.
std::int32_t ParseLineOption(const std::string& argument);

struct FileAtLine {
    std::string file;
    std::int32_t line = 0;  // counted from 1; 0 or less means the first
    std::int32_t column = 0;
    std::int32_t wait = 0;  // the number of the start that waits until the user closes it; 0 for none

    bool operator==(const FileAtLine&) const = default;
};

// The same, but an argument that is the name of an existing file ("my-l2.c") is that file and names no line.
std::int32_t LineNamedBy(const std::string& argument);

// The files that the arguments name, by full names: the last line option counts for every file named as it is, and a
// name with "*" or "?" stands for the normal files that match, each at its first line. Looks into the current
// directory, so it must be called before that changes.
std::vector<FileAtLine> FilesOf(std::span<const std::string> arguments);

}  // namespace vexa
