// The running editor as its user has it: windows, captions, status panes, keys and mouse.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "shell/command_id.h"
#include "ui/test_folder.h"
#include "ui/wait.h"

namespace vexa::test {

// The text of any window of any program.
std::string TextOf(HWND window);
// The same for a window whose caption names a document, without the document's directory.
std::string NameShownBy(HWND window);
std::string ClassOf(HWND window);
std::vector<HWND> ChildrenOf(HWND parent, const std::string& className);

// A run of the program as the system sees it; ended by force, if need be, with the object.
class StartedProgram {
  public:
    // The arguments as they are written on a command line, from the folder as the current directory or another one.
    StartedProgram(const TestFolder& folder, const std::string& arguments, const std::string& directory = {});
    ~StartedProgram();
    StartedProgram(const StartedProgram&) = delete;
    StartedProgram& operator=(const StartedProgram&) = delete;

    HANDLE process() const { return process_; }
    bool isRunning() const { return WaitForSingleObject(process_, 0) == WAIT_TIMEOUT; }
    bool ends() const;  // waits for it
    void kill();
    // The visible windows that have no parent, the uppermost first.
    std::vector<HWND> topWindows() const;
    // The dialog with that caption, or any one for none; null without waiting when there is none.
    HWND findDialog(const std::string& caption) const;
    // Waits for it; null when none comes.
    HWND dialog(const std::string& caption) const;

  private:
    HANDLE process_ = nullptr;
    DWORD processId_ = 0;
};

// An editor that was started in a folder; ended, by force if need be, with the object.
class Editor {
  public:
    // The names are given on the command line; the current directory is the folder or another one.
    explicit Editor(const TestFolder& folder, const std::vector<std::string>& names = {},
                    const std::string& directory = {});

    const StartedProgram& program() const { return program_; }
    HANDLE process() const { return program_.process(); }
    HWND frame() const { return frame_; }
    std::string caption() const { return NameShownBy(frame_); }
    bool hasCaption(const std::string& part) const;  // waits for it
    // The names that the document windows show, in the order in which they lie on each other.
    std::vector<std::string> documents() const;
    HWND activeDocument() const;
    HWND activePane() const;

    // ---- status bar ----

    // In pixels; 0 for one without a text.
    LONG paneWidth(std::size_t index) const;
    std::string pane(std::size_t index) const { return TextOf(paneWindow(index)); }
    std::string message() const { return pane(0); }
    std::string recording() const { return pane(1); }
    std::string mode() const { return pane(4); }
    std::string position() const { return pane(5); }
    int line() const;  // of the position
    // Each waits until the text is there.
    bool showsMessage(const std::string& text) const;
    bool showsPosition(int line, int column) const;

    // ---- doing ----

    // Keys go to the window that has the focus, as from the keyboard.
    void keys(const std::string& script) const;
    void command(CommandId id) const { PostMessageA(frame_, WM_COMMAND, static_cast<WPARAM>(id), 0); }
    // The active pane does what the message asks for before this returns; false when it does not answer.
    bool send(UINT message, WPARAM parameter) const;
    // Runs a command to its end; false when the editor does not answer.
    bool runCommand(CommandId id) const;
    // Waits until no dialog and no closing of windows makes the editor refuse commands and its own end.
    bool takesCommands() const;
    // Whether the editor still takes messages.
    bool answers() const;
    void kill() { program_.kill(); }
    // Presses the left button at a place of the active pane, in pixels, and lets it go at the last of the places.
    void click(POINT position) const;
    void doubleClick(POINT position) const;
    void tripleClick(POINT position) const;
    void rightClick(POINT position) const;
    // Moves the mouse to a place of the active pane, and back there while it waits until the condition holds.
    bool pointUntil(POINT position, const std::function<bool()>& condition) const;
    // The button is held at the last place until the condition holds; false when it never does.
    bool drag(const std::vector<POINT>& places, const std::function<bool()>& condition = nullptr) const;
    // All in one go: the system would else believe the keyboard of the display, where no key is down.
    void dragWithAlt(POINT from, POINT to) const;
    void requestClose() const { PostMessageA(frame_, WM_CLOSE, 0, 0); }

    // ---- dialogs and end ----

    // Waits for a dialog with that caption; null when none comes.
    HWND dialog(const std::string& caption) const { return program_.dialog(caption); }
    bool hasDialog() const { return program_.findDialog("") != nullptr; }
    // Looks once for a window of that class on top of the others: a pop-up menu, a tooltip.
    bool hasTopWindow(const std::string& className) const;
    bool hasPopupMenu() const { return hasTopWindow("#32768"); }
    bool isRunning() const { return program_.isRunning(); }
    bool ends() const { return program_.ends(); }  // waits for it
    // A picture of the screen for people to look at, where somebody takes pictures.
    void takePicture(const std::string& name) const;

  private:
    HWND paneWindow(std::size_t index) const;
    HWND findFrame() const;
    // Waits, before the mouse is first used, until the active pane has stood still for some looks: the first layout may
    // come late.
    void settle() const;
    // Moves the mouse to a place of the active pane where it stays.
    void rest(POINT position) const;
    bool isAt(POINT position) const;
    // The window that has caught the mouse; null when none has.
    HWND capture() const;
    // A place of the active pane; the flags say which button goes up or down there, and when, for none now.
    void moveMouse(POINT position, DWORD flags, DWORD time = 0) const;
    // At one time, so that no machine is too slow for a double click.
    void clickTimes(POINT position, int times) const;

    StartedProgram program_;
    HWND frame_ = nullptr;
    mutable int sameLooks_ = 0;
};

}  // namespace vexa::test
