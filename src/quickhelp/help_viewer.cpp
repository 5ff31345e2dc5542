#include "quickhelp/help_viewer.h"

#include "base/ascii.h"

namespace vexa {

namespace {

// The stub has about 10 KB, every viewer more than 200.
constexpr std::uint64_t kLargestStub = 64 * 1024;

}  // namespace

std::string HelpViewerSetting(const ConfigStore& store) {
    constexpr std::size_t kLongest = 16;
    return store.ReadString("Editor Options", "HelpViewer", "", kLongest);
}

HelpViewer ChooseHelpViewer(const HelpViewerFacts& facts) {
    if (EqualIgnoringCase(facts.setting, "System")) return HelpViewer::System;
    if (EqualIgnoringCase(facts.setting, "Own")) return HelpViewer::Own;
    return !facts.isWine && facts.systemViewerSize > kLargestStub ? HelpViewer::System : HelpViewer::Own;
}

}  // namespace vexa
