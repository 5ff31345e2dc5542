// What a case about the real program is told on, the words of its steps and the tables of them.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "shell/command_id.h"
#include "support/case_files.h"
#include "ui/clipboard.h"
#include "ui/editor.h"
#include "ui/test_printer.h"

namespace vexa::test {

// What a case needs is not on this machine.
struct Missing {
    const char* what;
};

struct Stage {
    HWND dialog() const { return dialogs.at(dialogs.size() - 1); }  // none fails the step
    HWND tabs() const;

    TestFolder folder;
    std::unique_ptr<TestPrinter> printer;
    std::unique_ptr<Editor> editor;
    std::unique_ptr<StartedProgram> waiting;  // a start that waits for what it has opened there
    std::vector<HWND> dialogs;                // the one that is meant is the last
    std::unique_ptr<OpenedClipboard> heldClipboard;
    POINT cell{};  // the size of a character
};

bool HasReturned(const StartedProgram& start, DWORD expected);

// An unknown name fails by an exception.
CommandId CommandNamed(const std::string& name);
std::vector<CommandId> AllCommands();
int ControlNamed(const std::string& name);
std::size_t PaneNamed(const std::string& name);

// The text of a step and the lines that go with it.
class StepWords : public Words {
  public:
    StepWords(std::string text, std::string lines) : Words(std::move(text)), lines_(std::move(lines)) {}

    const std::string& lines() const { return lines_; }
    // What is left when it is looked at: a comparison may take words after it has asked for this.
    const std::string& rest() const { return text_; }
    HWND control(const Stage& stage) { return GetDlgItem(stage.dialog(), ControlNamed(word())); }
    // The editor's, for "text", or the dialog that is meant.
    HWND window(const Stage& stage) { return word() == "text" ? stage.editor->frame() : stage.dialog(); }
    std::size_t pane() { return PaneNamed(word()); }
    // The middle of a line and column.
    POINT pixel(const Stage& stage);

  private:
    std::string lines_;
};

// Whether a step has succeeded.
using Run = bool (*)(Stage& stage, StepWords words);

// What is done, once, and what is seen, sooner or later.
const std::map<std::string, Run>& DoingSteps();
const std::map<std::string, Run>& SeeingSteps();

}  // namespace vexa::test
