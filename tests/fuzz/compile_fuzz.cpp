// Any command and any name give a batch file of whole lines whose command is taken apart and put together again.
#include <cstdint>
#include <string>

#include "external/compile_job.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::string name = input.text(input.byte() % 40);
    const std::string command = input.rest();
    CompilerSetup setup;
    if (const auto parsed = ParseSampleCommand(command)) {
        Require(parsed->format.find("%s") != std::string::npos);
        setup.setCommand(*parsed);
    }
    Require(setup.command().size() <= CompilerSetup::kCommandLimit);
    const CompileJob job("C:\\" + name, setup);
    Require(job.batchText.starts_with("@echo off \r\n") && job.batchText.ends_with("\r\n"));
    Require(job.errorPath().ends_with(".err"));
    return 0;
}

}  // namespace vexa::fuzz
