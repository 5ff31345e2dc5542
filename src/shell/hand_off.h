// Giving a file to the editor that is already running instead of starting another, and taking it there.
//
// The file goes through "VEXACMD.DAT" in the program's directory, two lines of text: the full path of the file to open,
// and the line number, -1 for none. The running editor is told by a broadcast message and deletes the file when it has
// read it. Of two hand-offs at the same moment the later one counts.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/notices.h"
#include "shell/command_line.h"

namespace vexa {

// Names that all instances share: the marker that is there while one runs, and the message that says a file waits.
inline constexpr const char* kActiveMarker = "VexaIsActive";
inline constexpr const char* kFileOpenMessage = "VexaFileOpen";

struct HandOffDecision {
    bool handOff = false;
    std::int32_t line = -1;  // -1 when the command line names none

    bool operator==(const HandOffDecision&) const = default;
};

// One file, or one file and a line, goes to a running editor; everything else, and every name with "*" or "?", takes an
// editor of its own. Whether one runs is another question.
HandOffDecision ShouldHandOff(std::string_view commandLine, std::span<const std::string> arguments);

// Hands the file that the whole command line names over; true when the running editor has been told. A line is cut off
// the command line where it is written "-L"; one of another form stays part of the name. Tells the user only when the
// file cannot be written.
bool HandOffToRunningInstance(std::string_view commandLine, std::int32_t line, Notices& notices);

// All of it: true when this process has handed its file over and ends. Else it starts as an editor.
bool HandedOff(const CommandLine& commandLine, Notices& notices);

// What another instance has handed over; none, and the user is told, when there is no such file. An empty name names no
// file.
std::optional<FileAtLine> ReadHandOff(Notices& notices);
void DeleteHandOff();

}  // namespace vexa
