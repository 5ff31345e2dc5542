// The rules of the "Setup Compiler" dialog.
#pragma once

#include <string>

#include "base/notices.h"
#include "external/compiler_setup.h"

namespace vexa {

// The dialog moves the fields in and out of its controls.
class CompilerSetupModel {
  public:
    // What the dialog does after "Update".
    enum class Outcome { Close, StayAtCommand, StayAtRunFile };

    explicit CompilerSetupModel(CompilerSetup& setup);

    bool debug;
    // Maximised, Normal, or MinimisedInactive.
    ShowMode display;
    std::string command;  // enabled in batch mode
    std::string runFile;  // enabled with the user's own run file

    bool usesBatchFile() const { return usesBatchFile_; }
    bool commandEnabled() const { return usesBatchFile_; }
    bool runFileEnabled() const { return !usesBatchFile_; }
    // Switches the mode, which changes what the run file's field shows.
    void setUsesBatchFile(bool uses);

    // "Test": shows how the command is understood. The command's field then has the focus.
    void test(Notices& notices) const;
    // "Update": takes the fields over if they are right; the setup is untouched if not, and the field that the outcome
    // names is selected.
    Outcome update(Notices& notices);

  private:
    bool acceptsRunFile(Notices& notices) const;

    CompilerSetup& setup_;
    bool usesBatchFile_;
};

}  // namespace vexa
