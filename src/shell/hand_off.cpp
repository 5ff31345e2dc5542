#include "shell/hand_off.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/directories.h"
#include "base/file.h"
#include "base/strings.h"
#include "base/take_text.h"

namespace vexa {

namespace {

constexpr std::size_t kCommandLineLimit = 259;
constexpr std::size_t kPathLimit = 255;
constexpr std::size_t kNumberLimit = 49;
constexpr std::size_t kReadLimit = 4096;
constexpr std::int32_t kNoLine = -1;
constexpr std::uint32_t kReadingPatience = 5'000;  // milliseconds
constexpr std::uint32_t kReadingPause = 10;

// Whoever writes, announces or reads the file does so alone.
constexpr const char* kFileTurn = "VexaHandOffFile";
constexpr std::uint32_t kFilePatience = 2'000;

std::string HandOffFile() {
    return DirectoryOf(platform::ProgramPath()) + "VEXACMD.DAT";
}

void TellUnexpectedError(Notices& notices, std::string_view module, std::string_view line) {
    notices.box(FillText(TextId::UnexpectedError, {module, line}), TextId::ErrorCaption, BoxButtons::Ok);
}

// Quotes only keep blanks together; no name has one.
std::string NameIn(std::string_view commandLine, std::int32_t line) {
    std::string name(commandLine.substr(0, kCommandLineLimit));
    if (line != kNoLine) name.erase(std::min(name.find("-L"), name.size()));
    std::erase(name, '"');
    return std::string(TrimBlanks(name));
}

std::string PathIn(std::string_view commandLine, std::int32_t line) {
    std::string path = platform::ParseFileName(NameIn(commandLine, line));
    std::ranges::transform(path, path.begin(), UpperAscii);
    return path;
}

std::int32_t TakeNumberLine(std::string_view& text) {
    return LeadingInteger(TakeLine(text).substr(0, kNumberLimit));
}

std::optional<FileAtLine> ReadHandOff() {
    File file(HandOffFile(), platform::OpenMode::Read);
    const std::optional<std::string> bytes = file.isOpen() ? file.readUpTo(kReadLimit) : std::nullopt;
    if (!bytes) return std::nullopt;
    std::string_view rest = *bytes;
    FileAtLine read{std::string(TakeLine(rest).substr(0, kPathLimit)), TakeNumberLine(rest)};
    read.column = TakeNumberLine(rest);
    read.wait = std::max(TakeNumberLine(rest), 0);
    return read;
}

// Lines as the file has them; true when the running editor has been told.
bool PutHandOff(const std::string& lines, Notices& notices) {
    const platform::SystemTurn turn(kFileTurn, kFilePatience);
    if (WriteWholeFile(HandOffFile(), lines))
        return platform::PostBroadcast(platform::RegisterBroadcast(kFileOpenMessage));
    TellUnexpectedError(notices, "VEXA", "95");
    return false;
}

}  // namespace

HandOffDecision ShouldHandOff(std::string_view commandLine, std::span<const std::string> arguments) {
    if (commandLine.find_first_of("*?") != std::string_view::npos) return {};
    if (arguments.size() == 1) return {true, kNoLine};
    if (arguments.size() != 2) return {};
    const std::int32_t first = LineNamedBy(arguments[0]);
    const std::int32_t line = first != kNoLine ? first : LineNamedBy(arguments[1]);
    return {line != kNoLine, line};
}

bool HandOffToRunningInstance(std::string_view commandLine, std::int32_t line, Notices& notices) {
    if (platform::RegisterBroadcast(kFileOpenMessage) == 0) return false;
    const std::string path = PathIn(commandLine, line);
    return !path.empty() && PutHandOff(path + "\r\n" + std::to_string(line) + "\r\n", notices);
}

bool HandOffFile(const FileAtLine& file, Notices& notices) {
    std::string lines = file.file + "\r\n";
    for (const std::int32_t number : {file.line, file.column, file.wait})
        lines += std::to_string(number) + "\r\n";
    return PutHandOff(lines, notices);
}

bool HandedOff(const CommandLine& commandLine, Notices& notices) {
    const std::string_view text = std::string_view(commandLine.text).substr(0, kCommandLineLimit);
    const HandOffDecision decision = ShouldHandOff(text, commandLine.arguments);
    return decision.handOff && platform::GlobalMarkerExists(kActiveMarker) &&
           HandOffToRunningInstance(text, decision.line, notices);
}

bool AwaitReading() {
    const std::uint32_t start = platform::Ticks();
    while (platform::PathExists(HandOffFile()) && platform::Ticks() - start < kReadingPatience)
        platform::Pause(kReadingPause);
    return !platform::PathExists(HandOffFile());
}

void WithdrawHandOff() {
    platform::RemoveFile(HandOffFile());
}

std::optional<FileAtLine> HandOffInbox::take() {
    const platform::SystemTurn turn(kFileTurn, kFilePatience);
    const std::optional<FileAtLine> read = ReadHandOff();
    if (!read) return std::nullopt;
    if (read->wait != 0) waited_.expect(read->wait);
    platform::RemoveFile(HandOffFile());
    lastTaken_.set(std::max(platform::Ticks(), std::uint32_t{1}));
    return read;
}

// The clock begins again after a while, so that only differences count.
bool HandOffInbox::wasTaken(std::uint32_t broadcastAt) const {
    const std::uint32_t last = lastTaken_.get();
    return last != 0 && static_cast<std::int32_t>(last - broadcastAt) >= 0;
}

void TellMissingHandOff(Notices& notices) {
    TellUnexpectedError(notices, "VXEAPP01", "2173");
}

}  // namespace vexa
