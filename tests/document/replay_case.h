// Key-replay cases: a text with the caret in it, keys, and the text with the caret and the marking as they then are.
//
//   # Enter splits a line           the case's name
//   SmartIndent=0 TabSize=8         options of the editor, where they differ from the defaults
//   Electric:if=if (\c)             an electric word, in the form in which the list has it
//   < ab|cd                         the text before: "|" is the caret, "~" a column beyond the line's end
//   Enter                           keys and commands, with any modifiers and a count: Shift+Right*3 "typed text";
//                                   Clipboard:text puts a text of another program on the clipboard, Clipboard2:text one
//                                   of the editor, of that kind of block
//   > ab                            the text after; "{" and "}" enclose what is marked: once for a stream, on each line
//   > |cd                           for whole lines ("{" first, "}" last) and for a column
//   ! Nothing to undo!              the last text on the status line, where a case is about that
//   = 1 ab\r\n                      the kind and the text on the clipboard, where a case is about that
//
// In texts \t is a tab, \r and \n the characters of a line end, \\ a backslash, \xNN any byte. Keys and ">" blocks may
// go on by turns. After the last block everything is undone, which must bring back the text before, unmodified, and
// done again, which must bring back the last.
#pragma once

#include <string>

#include "document/view/edit_view.h"
#include "support/case_files.h"
#include "support/recording_notices.h"

namespace vexa::test {

// Where a case runs: what its options and its keys mean.
class ReplaySession {
  public:
    virtual ~ReplaySession() = default;
    virtual void setOptions(const std::string& options) = 0;
    virtual void run(const std::string& keys) = 0;
    virtual EditView& view() = 0;
    virtual const RecordingNotices& notices() const = 0;
    virtual std::string clipboard() const { return {}; }
};

// How the lines of a case's steps begin.
inline constexpr std::string_view kReplayMarks = "<>!=";

// Runs a case and reports its failures to GoogleTest.
void RunReplayCase(const Case& replay, ReplaySession& session);

// Presses a key, which is written as in a case, or runs a command of the view.
void PressWord(EditView& view, std::string word);

}  // namespace vexa::test
