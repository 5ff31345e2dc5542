// The names and texts of one compilation, all made from the document's path and the setup.
#pragma once

#include <string>

#include "external/compiler_setup.h"
#include "external/program_request.h"

namespace vexa {

struct CompileJob {
    CompileJob(const std::string& documentPath, const CompilerSetup& setup);

    std::string directory;     // with "\" at the end
    std::string fileName;      // lower case
    std::string baseName;      // lower case, without the last extension
    std::string errorFile;     // lower case
    std::string batchPath;     // empty with the user's own run file
    std::string batchText;     // what the batch file holds
    std::string shownCommand;  // for the status line
    ProgramRequest request;    // what is run

    std::string errorPath() const { return directory + errorFile; }
    // Whether a file that the compilation makes would take the document's place.
    bool errorFileIsDocument() const { return errorFile == fileName; }
    bool batchFileIsDocument() const;
};

}  // namespace vexa
