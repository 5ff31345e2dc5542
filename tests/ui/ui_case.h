// Cases of what a user does with the real program and what is seen then, in the files of the folder cases/. A line is a
// step; each waits until what it looks for is there, and a case ends at the first step that fails.
//
//   # A macro is played again       the case's name
//   file a.txt                      writes a file with the lines that follow; %FOLDER% in any step is the test's folder
//   < one
//   numbered a.txt 500              or with the lines "line 1" to "line 500"
//   folder sub, read-only a.txt, remove a.txt
//   test-program, help-file A.HLP, manual, printer    what the editor can run, show, and print on
//   compiler, no-printer            passes the case by where it is otherwise
//
//   start a.txt -L7                 starts the editor with that command line; "start-in FOLDER" in another directory
//   start-again a.txt               a second start, which hands its file over and ends
//   end, kill
//
//   keys abc{Enter}{Shift+Down*3}   the keyboard
//   command FileSave                a command by its name in the table of commands
//   click-pane line-ends            a pane of the status bar
//   click pattern-pieces            a control of the dialog, by its name in dialog_controls.h
//   click-label L&andscape          or by its text
//   measure-cell                    puts the caret at 2 2 to learn the size of a character, which the mouse needs
//   mouse-click 3 14                at a line and column of what is shown; column 0 is the margin
//   mouse-double, mouse-triple, mouse-right
//   mouse-drag 3 1 4 7              from one place to another; "mouse-column" with Alt held
//   wheel shift -120                with a key held: shift, control, or "alone"
//   scroll vertical page-down       a bar: vertical, horizontal; line-down, line-up, page-down, page-up, start, end
//   fill tab-size 7                 the text of a field
//   choose a.txt                    the file of a dialog that asks for one
//   press yes                       a button that closes the dialog: ok, cancel, yes, no
//   go-to text, go-to dialog        which of them has the keyboard
//   move 333 222                    puts the dialog there
//   minimise
//   dde [open("a.c")]               a request of another program
//   copy-elsewhere, hold-clipboard, release-clipboard    its use of the clipboard, with the lines that follow
//
//   ! Write successful.             the message on the status bar
//   at 3 14                         line and column on it
//   beyond 100                      a later line
//   pane mode OVR                   another of its panes: recording, read-only, line-ends, mode
//   caption a.txt *]                a part of the frame's caption, without directories; "title" for all of it
//   wide recording, narrow recording    whether a pane takes room
//   says-below COMMAND.COM          a part of the message
//   other-program                   has the keyboard; "keys-there" are its
//   documents 2
//   ended, minimised, restored
//   dialog Find                     a dialog or box that has the keyboard now; it is the one meant until it has gone
//   says The file 'a.txt'           a part of its text
//   gone, no-dialog
//   field find-text beta, field-has find-text et, checked match-case, unchecked match-case, enabled replace, disabled
//   replace rows functions 5                how many rows a list has row functions 0 int main        a row's text
//   chosen functions 2              which row is chosen
//   moved 333 222                   where the dialog stands
//   file-is a.txt                   a file's lines, which follow
//   > one
//   file-has vexa.INI TabSize=7     a line of a file
//   exists a.txt, missing a.txt
//   clipboard                       the lines on the clipboard, which follow; "clipboard one" for a text within a line
//   > one
//   clipboard-has one
//   menu                            a menu has opened
//   over-frame                      the dialog stands in the middle of the frame
//   shown StatusBarCL, hidden StatusBarCL     a part of the frame, by its class
//   viewer Made - First             the help viewer's caption; "no-viewer"
//   viewer-says Printing completed.     at its foot
//   topic FileSave                  the manual's topic of a command, of a dialog ("dialog-find"), or "contents"
//   background black, first-line yellow       colours of the text's window
//   pages 3                         pages that were printed last
//   picture find                    for people to look at
//   picture-of dialog find          and which part of it the dialog, the frame or the viewer is
#pragma once

#include "support/case_files.h"

namespace vexa::test {

// Runs a case and reports the step that fails to GoogleTest.
void RunUiCase(const Case& uiCase);

}  // namespace vexa::test
