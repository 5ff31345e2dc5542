// Compiles a document: saves it, starts the compiler, and loads what it has reported into the Message window.
#pragma once

#include <string>

#include "base/directories.h"
#include "base/notices.h"
#include "base/strings.h"
#include "external/compile_job.h"
#include "external/compiler_setup.h"
#include "external/message_list.h"
#include "external/poll_timer.h"
#include "external/process_runner.h"
#include "external/source_document.h"

namespace vexa {

// One compilation runs at a time.
class Compiler {
  public:
    static constexpr int kPollMilliseconds = 400;

    Compiler(const CompilerSetup& setup, const Directories& directories, MessageList& messages, PollTimer& timer,
             Notices& notices);

    // Starts compiling a document, or tells the user why not. Refused while another compilation runs, with nothing
    // touched.
    void Compile(SourceDocument& document);
    // For the timer: takes the messages over when the compiler has ended.
    void Tick();
    // A document is about to close; its compilation runs on, but nobody is told of its end.
    void OnDocumentClosed(const SourceDocument& document);

    bool IsActive() const { return active_; }

  private:
    bool saved(SourceDocument& document);
    bool prepare(const CompileJob& job);
    bool writeBatchFile(const CompileJob& job);
    void start(const CompileJob& job);
    TextId outcomeText() const;
    bool refuse(std::string_view text);
    void tell(std::string_view text) { notices_.status(text, false, false); }

    const CompilerSetup& setup_;
    MessageList& messages_;
    PollTimer& timer_;
    Notices& notices_;
    ProcessRunner runner_;
    const SourceDocument* document_ = nullptr;
    std::string directory_;
    std::string errorPath_;
    std::string batchPath_;  // that was written for the document; empty if none
    bool active_ = false;
};

}  // namespace vexa
