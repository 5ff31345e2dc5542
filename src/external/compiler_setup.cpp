#include "external/compiler_setup.h"

#include <algorithm>

#include "base/ascii.h"
#include "external/error_line_parser.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Compiler";
constexpr std::string_view kSample = "SAMPLE";
constexpr std::string_view kNameMark = "%s";
constexpr std::size_t kExtensionWithDot = 4;
constexpr std::size_t kFormatLimit = 185;
// The characters that end a file's name in a command.
constexpr std::string_view kNameEnds = " \"";

std::string Limited(std::string_view text, std::size_t limit) {
    return std::string(text.substr(0, std::min(text.find('\0'), limit)));
}

// A flag that is kept as a word, of which the first letter counts.
bool ReadWord(const ConfigStore& store, const char* key, const char* fallback, char first) {
    const std::string word = store.ReadString(kSection, key, fallback, 16);
    return !word.empty() && UpperAscii(word[0]) == first;
}

std::string_view NameOfSample(std::string_view word) {
    const std::size_t dot = word.find('.');
    return word.substr(0, dot == std::string_view::npos ? kSample.size() : dot + kExtensionWithDot);
}

}  // namespace

std::optional<SampleCommand> ParseSampleCommand(std::string_view text) {
    const std::optional<std::size_t> start = ScanIgnoringCase(text, kSample);
    if (!start) return std::nullopt;
    const std::string_view rest = text.substr(*start);
    const std::string_view word = rest.substr(0, rest.find_first_of(kNameEnds));
    std::string format = Limited(text, kFormatLimit);
    if (*start >= format.size()) return std::nullopt;
    format.replace(*start, std::min(word.size(), format.size() - *start), kNameMark);
    return SampleCommand{format, std::string(NameOfSample(word.substr(0, CompilerSetup::kFileNameLimit)))};
}

std::string ExpandCommand(std::string_view format, std::string_view name) {
    std::string command(format);
    const std::size_t mark = command.find(kNameMark);
    return mark == std::string::npos ? command : command.replace(mark, kNameMark.size(), name);
}

void CompilerSetup::Load(const ConfigStore& store) {
    const auto text = [&store](const char* key, const std::string& fallback, std::size_t limit) {
        return Limited(store.ReadGuarded(kSection, key, fallback, limit), limit);
    };
    command_ = text("Command", command_, kCommandLimit);
    sampleName_ = text("FileName", sampleName_, kFileNameLimit);
    runFile_ = text("RunFile", runFile_, kRunFileLimit);
    debug = ReadWord(store, "Debug", "NO", 'Y');
    wait = ReadWord(store, "Wait", "YES", 'Y');
    usesBatchFile = ReadWord(store, "Mode", "VEXA", 'V');
    display = static_cast<ShowMode>(store.ReadInt(kSection, "Display", static_cast<int>(display)));
}

void CompilerSetup::Save(ConfigStore& store) const {
    store.WriteGuarded(kSection, "Command", command_);
    store.WriteGuarded(kSection, "FileName", sampleName_);
    store.WriteGuarded(kSection, "RunFile", runFile_);
    store.WriteString(kSection, "Debug", debug ? "YES" : "NO");
    store.WriteString(kSection, "Wait", wait ? "YES" : "NO");
    store.WriteString(kSection, "Mode", usesBatchFile ? "Vexa" : "Other");
    store.WriteInt(kSection, "Display", static_cast<std::int32_t>(display));
}

void CompilerSetup::setCommand(const SampleCommand& command) {
    command_ = Limited(command.format, kCommandLimit);
    sampleName_ = Limited(command.fileName, kFileNameLimit);
}

void CompilerSetup::setRunFile(std::string_view name) {
    runFile_ = Limited(name, kRunFileLimit);
}

std::string CompilerSetup::expandedCommand() const {
    std::string sample = sampleName_;
    std::ranges::transform(sample, sample.begin(), LowerAscii);
    return ExpandCommand(command_, sample);
}

}  // namespace vexa
