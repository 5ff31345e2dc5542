#include "shell/unsaved/recovery_file.h"

#include <cstring>
#include <utility>

#include "base/checksum.h"
#include "base/file.h"
#include "base/file_contents.h"
#include "base/file_name.h"
#include "base/take_text.h"
#include "document/text/document_line_ends.h"

namespace vexa {

namespace {

constexpr std::string_view kCtrlZ = "\x1A";

// The checksum of the lines as a save writes them; of bytes, with a Ctrl-Z after them.
std::uint64_t ChecksumWhenSaved(const LineViews& lines, bool bytes) {
    Checksum checksum;
    const bool endsInCtrlZ = lines.back().ends_with(kCtrlZ);
    for (const LineView& line : lines) {
        checksum.add(line);
        const bool isLast = &line == &lines.back();
        if (!(bytes && isLast && endsInCtrlZ)) checksum.add(bytes ? "\n" : "\r\n");
    }
    if (bytes && !endsInCtrlZ) checksum.add(kCtrlZ);
    return checksum.value();
}

LineViews LinesBeforeLf(std::string_view rest) {
    LineViews lines;
    do {
        lines.push_back(TakeUpTo(rest, '\n'));
    } while (!rest.empty());
    return lines;
}

LineViews LinesWithEnds(std::string_view text) {
    LineViews lines;
    LineCutter cutter(text, LinesEndWith::AnyEnd);
    do {
        const CutLine line = cutter.next();
        lines.push_back({cutter.take(line), line.end});
    } while (!cutter.isAtEnd());
    return lines;
}

}  // namespace

std::string RecoveryBeginning(const TextDocument& document) {
    const DiskState& disk = document.disk();
    RecoveryHead head;
    head.isFileKnown = disk.checksum && disk.facts;
    head.fileChecksum = disk.checksum.value_or(0);
    if (disk.facts) head.fileSize = disk.facts->stamp.size;
    if (disk.facts) head.fileWriteTime = disk.facts->stamp.writeTime;
    head.caretLine = document.currentLine().value;
    head.keepsLineEnds = document.rules().keepsLineEnds;
    head.pathLength = static_cast<std::uint32_t>(document.fullPath().size());
    std::string bytes(sizeof head, '\0');
    std::memcpy(bytes.data(), &head, sizeof head);
    return bytes += document.fullPath();
}

std::string_view RecoveredLineEnd(const TextDocument& document, LineIndex line, LineIndex last) {
    return document.rules().keepsLineEnds ? BytesOf(LineEndAt(document, line, last)) : "\n";
}

void SealRecovery(std::string& bytes, std::uint64_t checksum) {
    std::memcpy(bytes.data() + sizeof(RecoveryHead::mark), &checksum, sizeof checksum);
}

LineViews RecoveredText::lines() const {
    return head.keepsLineEnds ? LinesWithEnds(text()) : LinesBeforeLf(text());
}

std::optional<RecoveredText> ReadRecoveryText(std::string bytes) {
    RecoveryHead head;
    if (bytes.size() < sizeof head) return std::nullopt;
    std::memcpy(&head, bytes.data(), sizeof head);
    const bool isWhole = head.mark == RecoveryHead::kMark && head.pathLength <= bytes.size() - sizeof head &&
                         head.checksum == ChecksumOf(std::string_view(bytes).substr(kUncounted));
    if (!isWhole) return std::nullopt;
    return RecoveredText{head, std::move(bytes)};
}

std::optional<RecoveredText> ReadRecoveryFile(const std::string& path) {
    File file(path, platform::OpenMode::Read);
    auto bytes = file.isOpen() ? file.readAll(2 * kLargestKept) : std::nullopt;
    return bytes ? ReadRecoveryText(std::move(*bytes)) : std::nullopt;
}

bool IsTextOfFile(const RecoveredText& recovered) {
    const std::string path = recovered.path();
    const auto contents = IsFullName(path) ? ContentsOf(path) : std::nullopt;
    if (!contents) return false;
    if (recovered.head.keepsLineEnds) return contents->checksum == ChecksumOf(recovered.text());
    const LineViews lines = recovered.lines();
    return contents->checksum == ChecksumWhenSaved(lines, false) ||
           contents->checksum == ChecksumWhenSaved(lines, true);
}

}  // namespace vexa
