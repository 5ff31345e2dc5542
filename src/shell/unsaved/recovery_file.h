// What a recovery file holds: the text of one document that has not been saved, and which file it belongs to.
//
// A head of fixed length, whose checksum counts all that follows it, then the document's path, then the lines, each
// with LF after it, or with its own end where the document keeps these. Each file tells all about itself, so no list
// of them can be out of step with what is there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "document/text/text_document.h"
#include "document/view/text_exchange.h"

namespace vexa {

struct RecoveryHead {
    static constexpr std::uint64_t kMark = 0x312D747865547856;  // "VxText-1"

    std::uint64_t mark = kMark;
    std::uint64_t checksum = 0;  // of what follows the head's first two numbers
    // Of the document's file when it was read: not known without a file, or where not all of it could be read.
    std::uint64_t fileSize = 0;
    std::uint64_t fileWriteTime = 0;
    std::uint64_t fileChecksum = 0;
    std::uint32_t isFileKnown = 0;
    std::int32_t caretLine = 0;
    std::uint32_t pathLength = 0;
    std::uint32_t keepsLineEnds = 0;
};

// The beginning of a document's recovery file, before its lines: the head, without its checksum, and the path.
std::string RecoveryBeginning(const TextDocument& document);
// What it has after a line of a text that ends with the last line.
std::string_view RecoveredLineEnd(const TextDocument& document, LineIndex line, LineIndex last);
// Puts the checksum into the head of a file that is all there.
void SealRecovery(std::string& bytes, std::uint64_t checksum);
// What of a file's beginning the checksum does not count.
inline constexpr std::size_t kUncounted = 2 * sizeof(std::uint64_t);

// Of a larger file, in bytes, no changes are kept: the copy would take the memory that the text leaves.
inline constexpr std::size_t kLargestKept = std::size_t{1} << 28;

// A recovery file that has been read.
struct RecoveredText {
    RecoveryHead head;
    std::string bytes;

    // No full name for a document that was never saved.
    std::string path() const { return bytes.substr(sizeof(RecoveryHead), head.pathLength); }
    std::string_view text() const { return std::string_view(bytes).substr(sizeof(RecoveryHead) + head.pathLength); }
    // Valid as long as this is.
    LineViews lines() const;
};

// None for what is no recovery file, or a damaged one: any other byte than was written is found out.
std::optional<RecoveredText> ReadRecoveryText(std::string bytes);
std::optional<RecoveredText> ReadRecoveryFile(const std::string& path);

// Whether the document's file holds just this text, as a save writes it.
bool IsTextOfFile(const RecoveredText& recovered);

}  // namespace vexa
