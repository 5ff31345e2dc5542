#include "external/run_program_model.h"

#include "base/ascii.h"

namespace vexa {

RunProgramModel::RunProgramModel(ProgramRequest& request, HistoryList& directories, HistoryList& argumentHistory)
    : directory(request.directory()),
      arguments(request.arguments()),
      request_(request),
      directories_(directories),
      argumentHistory_(argumentHistory) {}

bool RunProgramModel::canRun() const {
    return request_.kind != ProgramKind::Interpreter || !TrimBlanks(arguments).empty();
}

void RunProgramModel::run() {
    request_.setDirectory(directory);
    request_.setArguments(arguments);
    directories_.Add(directory);
    argumentHistory_.Add(arguments);
}

}  // namespace vexa
