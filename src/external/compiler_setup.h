// How documents are compiled: the settings of the section "Compiler".
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/config_store.h"
#include "external/program_request.h"

namespace vexa {

// A compiler command as the user writes it for a file called SAMPLE, taken apart.
struct SampleCommand {
    std::string format;    // with "%s" where the file's name goes
    std::string fileName;  // the sample's, as it was written
};

// None for a text without the word SAMPLE, in any letter case.
std::optional<SampleCommand> ParseSampleCommand(std::string_view text);

// A command format with its first "%s" replaced by a name; any other "%" stands for itself.
std::string ExpandCommand(std::string_view format, std::string_view name);

class CompilerSetup {
  public:
    // Characters that each text keeps; a longer one is cut.
    static constexpr std::size_t kCommandLimit = 150;
    static constexpr std::size_t kFileNameLimit = 50;
    static constexpr std::size_t kRunFileLimit = 254;
    // The batch file that a compile writes.
    static constexpr const char* kBatchFile = "VexaCC.BAT";

    void Load(const ConfigStore& store);
    void Save(ConfigStore& store) const;

    // The batch file is written and run; otherwise the user's own run file.
    bool usesBatchFile = true;
    bool debug = false;
    bool wait = true;
    ShowMode display = ShowMode::MinimisedInactive;

    const std::string& command() const { return command_; }
    const std::string& runFile() const { return runFile_; }
    void setCommand(const SampleCommand& command);
    void setRunFile(std::string_view name);

    // The command for the sample, as the user is shown it.
    std::string expandedCommand() const;

  private:
    std::string command_ = "BCC +c:\\vexa\\vexa.cfg -c %s";
    std::string sampleName_ = "SAMPLE.CPP";
    std::string runFile_ = kBatchFile;
};

}  // namespace vexa
