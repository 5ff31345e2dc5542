// The commands that run other programs, and show what these have printed: command lines, the shell, the tools of the
// Tools menu, and the compiler.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "external/captured_programs.h"
#include "external/compiler.h"
#include "external/message_list.h"
#include "external/output_list.h"
#include "external/tool_list.h"
#include "shell/command_dispatcher.h"
#include "ui/frame/document_source.h"
#include "ui/frame/frame_lists.h"
#include "ui/frame/frame_timer.h"
#include "ui/lists/list_window_holder.h"

namespace vexa {

class ExternalCommands : private FileOpener {
  public:
    ExternalCommands(OpenDocuments& documents, Application& application, FrameNotices& notices, FrameLists& lists);

    void registerCommands(CommandDispatcher& dispatcher);
    // Shows the tools in the Tools menu of the frame's menu bar.
    void showTools();
    // For a timer of the frame, given by its number: asks whether a program has ended. False when it is none of these.
    bool useTimer(UINT_PTR timer);
    // Shows rows that number lines of a document in the Output window.
    void showRows(DocumentWindow& window, const std::vector<std::string>& rows);
    // A document's window is going to be closed.
    void documentCloses(const DocumentWindow& window);

  private:
    HWND frameWindow() const { return documents_.frame().window(); }
    SourceDocument& sourceOf(DocumentWindow& window);

    void copy();
    void changeTools();
    void runCommandLine();
    void runShell() { programs_.RunShell(); }
    void runTool(std::size_t index);
    bool askForArguments(ProgramRequest& request, int dialog);
    void showOutput() { outputWindow_.show(); }
    void showMessages();
    void nextError() { steps_.next(); }
    void previousError() { steps_.previous(); }
    void compile();
    void setUpCompiler();

    bool openFileAtLine(const std::string& path, std::int32_t line) override;

    OpenDocuments& documents_;
    Application& application_;
    FrameNotices& notices_;
    ListSteps& steps_;
    FrameTimer programTimer_;
    FrameTimer compilerTimer_;
    std::vector<std::unique_ptr<DocumentSource>> sources_;  // of the documents that were compiled
    OutputList output_;
    MessageList messages_;
    ListWindowHolder outputWindow_;
    ListWindowHolder messageWindow_;
    ToolList tools_;
    CapturedPrograms programs_;
    Compiler compiler_;
};

}  // namespace vexa
