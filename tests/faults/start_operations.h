// Operations on what one start of the program leaves to another: files that are read once, and then taken away.
#pragma once

#include <string>

#include "document/text/text_document.h"
#include "faults/fault_scene.h"

namespace vexa::test {

// The lines of a session's file, and what they say is open.
inline constexpr const char* kSessionLine = "1 7 0\tC:\\A.TXT\r\n";

// Makes a recovery file of a document in the directory of backups.
bool WriteRecoveryFile(FaultScene& scene, TextDocument& document, const std::string& file);
void KeepFirstUnsaved(FaultScene& scene);
void TakeUnsavedOfOthers(FaultScene& scene);
void OfferUnsaved(FaultScene& scene);
void RenameLeftCopy(FaultScene& scene);
void TakeHandOff(FaultScene& scene);
void TakeSession(FaultScene& scene);
void CallOffSession(FaultScene& scene);
void CallOffStartupFiles(FaultScene& scene);
void GoOnWithRecentFiles(FaultScene& scene);

}  // namespace vexa::test
