#include "external/compiler_setup_model.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/platform.h"
#include "base/strings.h"

namespace vexa {

namespace {

ShowMode Offered(ShowMode mode) {
    return mode == ShowMode::MinimisedInactive || mode == ShowMode::Maximised ? mode : ShowMode::Normal;
}

}  // namespace

CompilerSetupModel::CompilerSetupModel(CompilerSetup& setup)
    : debug(setup.debug),
      display(Offered(setup.display)),
      command(setup.expandedCommand()),
      setup_(setup),
      usesBatchFile_(setup.usesBatchFile) {
    setUsesBatchFile(usesBatchFile_);
}

void CompilerSetupModel::setUsesBatchFile(bool uses) {
    usesBatchFile_ = uses;
    const bool isOwn = !EqualIgnoringCase(setup_.runFile(), CompilerSetup::kBatchFile);
    runFile = uses ? CompilerSetup::kBatchFile : isOwn ? setup_.runFile() : std::string();
}

void CompilerSetupModel::test(Notices& notices) const {
    if (const std::optional<SampleCommand> parsed = ParseSampleCommand(command)) {
        CompilerSetup tried;
        tried.setCommand(*parsed);
        notices.box(tried.expandedCommand(), TextId::SampleFormatOk, BoxButtons::Ok);
    } else {
        notices.box(LoadText(TextId::SampleFormatError), TextId::ErrorCaption, BoxButtons::Ok);
    }
}

// A name without a file in the current directory may still be one of the PATH.
bool CompilerSetupModel::acceptsRunFile(Notices& notices) const {
    return platform::PathExists(runFile) || notices.box(FillText(TextId::RunFileMissing, {runFile}),
                                                        TextId::ErrorCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
}

CompilerSetupModel::Outcome CompilerSetupModel::update(Notices& notices) {
    const std::optional<SampleCommand> parsed = ParseSampleCommand(command);
    if (usesBatchFile_ && !parsed) {
        notices.box(LoadText(TextId::BadSampleCommand), TextId::ErrorCaption, BoxButtons::Ok);
        return Outcome::StayAtCommand;
    }
    if (!usesBatchFile_ && !acceptsRunFile(notices)) return Outcome::StayAtRunFile;
    if (usesBatchFile_) {
        setup_.setCommand(*parsed);
    } else {
        std::ranges::transform(runFile, runFile.begin(), UpperAscii);
        setup_.setRunFile(runFile);
    }
    setup_.wait = true;
    setup_.debug = debug;
    setup_.usesBatchFile = usesBatchFile_;
    const bool staysUnseen = display == ShowMode::MinimisedInactive && debug;
    setup_.display = staysUnseen ? ShowMode::Maximised : display;
    return Outcome::Close;
}

}  // namespace vexa
