#include "external/compile_job.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/directories.h"
#include "external/program_command.h"

namespace vexa {

namespace {

constexpr std::string_view kErrorExtension = ".err";

std::string Lower(std::string text) {
    std::ranges::transform(text, text.begin(), LowerAscii);
    return text;
}

// In a batch file, a "%" begins a variable.
std::string InBatch(const std::string& name) {
    std::string doubled;
    for (const char c : name)
        doubled.append(c == '%' ? 2 : 1, c);
    return NameInCommand(doubled);
}

// The error file is quoted where the document is.
std::string BatchText(const CompileJob& job, const CompilerSetup& setup) {
    const RedirectedCommand command(ExpandCommand(setup.command(), InBatch(job.fileName)));
    const std::string line = command.withOutputTo(InBatch(job.errorFile)) + "\r\n";
    return setup.debug ? line + "pause\r\n" : "@echo off \r\n" + line;
}

// What the run file is told: the source, the error file to write, and the base name.
std::string RunFileArguments(const CompileJob& job) {
    return NameInCommand(job.fileName) + " " + NameInCommand(job.errorFile) + " " + NameInCommand(job.baseName);
}

}  // namespace

CompileJob::CompileJob(const std::string& documentPath, const CompilerSetup& setup)
    : directory(DirectoryOf(documentPath)),
      fileName(Lower(documentPath.substr(directory.size()))),
      baseName(fileName.substr(0, fileName.rfind('.'))),
      errorFile(baseName + std::string(kErrorExtension)) {
    if (setup.usesBatchFile) {
        batchPath = directory + CompilerSetup::kBatchFile;
        batchText = BatchText(*this, setup);
        shownCommand = ExpandCommand(setup.command(), NameInCommand(fileName));
        request = ProgramRequest(CompilerSetup::kBatchFile, {}, directory);
    } else {
        request = ProgramRequest(setup.runFile(), RunFileArguments(*this), directory);
        shownCommand = request.program() + " " + request.arguments();
    }
    request.showMode = setup.display;
    request.capture = false;
}

bool CompileJob::batchFileIsDocument() const {
    return !batchPath.empty() && EqualIgnoringCase(fileName, CompilerSetup::kBatchFile);
}

}  // namespace vexa
