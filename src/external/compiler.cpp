#include "external/compiler.h"

#include <utility>

#include "base/file.h"
#include "base/strings.h"

namespace vexa {

namespace {

constexpr const char* kErrorFileName = "VexaCC2.dat";

}  // namespace

Compiler::Compiler(const CompilerSetup& setup, const Directories& directories, MessageList& messages, PollTimer& timer,
                   Notices& notices)
    : setup_(setup), messages_(messages), timer_(timer), notices_(notices), runner_(directories, kErrorFileName) {}

bool Compiler::refuse(std::string_view text) {
    tell(text);
    return false;
}

void Compiler::Compile(SourceDocument& document) {
    if (active_) return tell(SpawnText(SpawnResult::StillActive));
    document_ = &document;
    batchPath_.clear();
    messages_.Reset(&document);
    if (!saved(document)) return;
    const CompileJob job(document.path(), setup_);
    if (prepare(job)) start(job);
}

// A document that still has no name is one whose user has been asked for it and does not want to compile after all.
bool Compiler::saved(SourceDocument& document) {
    bool onDisk = !document.isModified() && !document.path().empty();
    if (!onDisk) {
        const BusyCursor busy(notices_);
        onDisk = document.save();
    }
    if (document.path().empty()) return false;
    return onDisk || refuse(FillText(TextId::CannotUpdateFile, {document.path()}));
}

// An error file of an earlier compilation that stays would be taken for this one's.
bool Compiler::prepare(const CompileJob& job) {
    if (job.errorFileIsDocument() || !platform::RemoveFile(job.errorPath()))
        return refuse(FillText(TextId::CannotOpenErrorFile, {job.errorPath()}));
    return job.batchPath.empty() || writeBatchFile(job);
}

bool Compiler::writeBatchFile(const CompileJob& job) {
    if (job.batchFileIsDocument() || !WriteWholeFile(job.batchPath, job.batchText))
        return refuse(FillText(TextId::CannotCreateBatchFile, {job.batchPath}));
    batchPath_ = job.batchPath;
    return true;
}

// With debug on, the errors are to be seen in the compiler's own window.
void Compiler::start(const CompileJob& job) {
    directory_ = job.directory;
    errorPath_ = job.errorPath();
    tell(job.shownCommand);
    active_ = setup_.debug ? runner_.Run(job.request) : runner_.RunForErrors(job.request);
    if (active_) {
        timer_.start(kPollMilliseconds);
    } else {
        tell(runner_.StatusText());
    }
}

void Compiler::Tick() {
    if (!active_ || !runner_.IsIdle()) return;
    timer_.stop();
    active_ = false;
    if (notices_.pumpMessages()) return;
    // What was let run may have closed the document or started to compile again.
    if (!document_ || active_) return;
    messages_.Load(errorPath_, runner_.HasErrors() ? runner_.ErrorFile() : std::string(), directory_);
    tell(LoadText(outcomeText()));
}

TextId Compiler::outcomeText() const {
    if (messages_.ErrorsSeen()) return TextId::CompiledWithErrors;
    return messages_.WarningsSeen() ? TextId::CompiledWithWarnings : TextId::Compiled;
}

// With debug on, the user may want to run the batch file by hand.
void Compiler::OnDocumentClosed(const SourceDocument& document) {
    messages_.OnDocumentClosed(document);
    if (document_ != &document) return;
    document_ = nullptr;
    if (!setup_.debug && !batchPath_.empty()) platform::RemoveFile(std::exchange(batchPath_, {}));
}

}  // namespace vexa
