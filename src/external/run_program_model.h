// The rules of the "DOS Command Line" and "Program Arguments" dialogs: what a program is given before it runs.
#pragma once

#include <string>

#include "base/history_list.h"
#include "external/program_request.h"

namespace vexa {

class RunProgramModel {
  public:
    // Names of the history files of the two combo boxes.
    static constexpr const char* kDirectoryHistoryFile = "VexaDir.his";
    static constexpr const char* kArgumentHistoryFile = "VexaArg.his";

    RunProgramModel(ProgramRequest& request, HistoryList& directories, HistoryList& argumentHistory);

    std::string directory;
    std::string arguments;

    // What the dialog shows of the program.
    const std::string& program() const { return request_.program(); }
    // Whether "Run" is enabled. A command line is not run without a command: nobody would see the shell that starts.
    bool canRun() const;
    // "Run": the request is given the fields, and the histories note them.
    void run();

  private:
    ProgramRequest& request_;
    HistoryList& directories_;
    HistoryList& argumentHistory_;
};

}  // namespace vexa
