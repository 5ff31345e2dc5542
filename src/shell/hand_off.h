// Giving a file to the editor that is already running instead of starting another, and taking it there.
//
// The file goes through "VEXACMD.DAT" in the program's directory, two lines of text: the full path of the file to open,
// and the line number, -1 for none. What another program asked for has two more: the column, and the number of the
// start that waits, each 0 for none. The running editor is told by a broadcast message and deletes the file when it has
// read it. Starts take turns, and one that has handed its file over keeps the turn until it has been read, so that
// files that are started together do not overwrite each other. Of two that could not wait so long the later one counts.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/notices.h"
#include "base/platform.h"
#include "shell/command_line.h"
#include "shell/document_wait.h"

namespace vexa {

// Names that all instances share: the marker that is there while one runs, and the message that says a file waits.
inline constexpr const char* kActiveMarker = "VexaIsActive";
inline constexpr const char* kFileOpenMessage = "VexaFileOpen";

// The turn that a start has while it decides whether it becomes an editor, and how long it waits for it, in
// milliseconds. One that has waited in vain becomes an editor.
inline constexpr const char* kStartTurn = "VexaStart";
inline constexpr std::uint32_t kStartPatience = 20'000;

struct HandOffDecision {
    bool handOff = false;
    std::int32_t line = -1;  // -1 when the command line names none

    bool operator==(const HandOffDecision&) const = default;
};

// One file, or one file and a line, goes to a running editor; everything else, and every name with "*" or "?", takes an
// editor of its own. Does not check whether an editor is running.
HandOffDecision ShouldHandOff(std::string_view commandLine, std::span<const std::string> arguments);

// Hands the file that the whole command line names over; true when the running editor has been told. A line is cut off
// the command line where it is written "-L"; one of another form stays part of the name. Tells the user only when the
// file cannot be written.
bool HandOffToRunningInstance(std::string_view commandLine, std::int32_t line, Notices& notices);

// All of it: true when this process has handed its file over and ends. Else it starts as an editor.
bool HandedOff(const CommandLine& commandLine, Notices& notices);

// The same for one file of a command line in the form of other programs, by its full name.
bool HandOffFile(const FileAtLine& file, Notices& notices);

// Waits until the running editor has read what was handed over, or for as long as nobody would wait for a start.
// Whether it has been read.
bool AwaitReading();

// Takes back what no editor has read.
void WithdrawHandOff();

// The running editor's side. All editors hear of each file that is handed over, and one of them takes it.
class HandOffInbox {
  public:
    // What another instance has handed over, whose file is then gone; none when there is no such file. An empty name
    // names no file. A start that waits for the document does so from before the file is gone.
    std::optional<FileAtLine> take();
    // Whether the file that a broadcast tells of has been taken. The broadcast's time is that of the platform's ticks.
    bool wasTaken(std::uint32_t broadcastAt) const;
    WaitedDocuments& waited() { return waited_; }

  private:
    WaitedDocuments waited_;
    platform::SharedNumber lastTaken_{"VexaHandOffTaken"};  // in ticks; 0 before the first
};

// For a broadcast without a file.
void TellMissingHandOff(Notices& notices);

}  // namespace vexa
