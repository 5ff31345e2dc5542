// Writing a document to a file without ever losing what the file held before.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/callback.h"
#include "document/text/safety_copy.h"

namespace vexa {

class File;
class TextDocument;

// Takes bytes; false when it has not taken them all.
using ByteSink = Callback<bool(std::string_view)>;

// Writes the lines up to the last that is not empty, each with its line end: that which is kept; else CR LF as text,
// and LF as bytes, then a Ctrl-Z after the last line, unless that ends in one already. False when the sink has not
// taken all of it.
bool WriteLines(const TextDocument& document, const ByteSink& sink, bool bytes);

enum class WriteResult {
    Written,
    Failed,       // the file cannot be opened, read or written
    Torn,         // the same, and its old contents could not be put back, which the user has been told
    FileChanged,  // it no longer holds what it should
    NoCopy,       // there can be no safety copy of it
};

// What a write may assume, and what the user has allowed it.
struct WriteOrder {
    bool bytes = false;
    std::optional<std::uint64_t> expected;  // the checksum of what the file should hold; none for anything
    bool withoutCopy = false;
};

struct WriteOutcome {
    WriteResult result = WriteResult::Failed;
    CopyFault fault = CopyFault::None;  // why there is no copy
    std::uint64_t checksum = 0;         // of what has been written, or of what the changed file holds
};

// Writes the lines to the file of that path.
//
// What the file held is first copied to its safety copy, which is on the disk before the file is touched; the file is
// then overwritten in place, so that its attributes, links and permissions stay, and its end is set last. When any step
// fails, the old contents are put back. Should putting back fail too, the safety copy stays and the user is told its
// name. A file that was not there before appears whole or not at all.
WriteOutcome WriteText(const TextDocument& document, const std::string& path, const WriteOrder& order);

}  // namespace vexa
