// What a document knows of its file since it was loaded or last written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "base/platform.h"

namespace vexa {

enum class ContentsKind { Text, Binary, Utf16 };

// Looks at the beginning of a file: a byte 0 in its first 8 KB makes it binary, a byte order mark UTF-16.
ContentsKind KindOfContents(std::string_view beginning);

// Which line ends a load has met.
struct LineEnds {
    bool crLf = false;
    bool lf = false;
};

struct DiskState {
    std::optional<std::uint64_t> checksum;     // of the whole file; none when it is not known
    std::optional<platform::FileFacts> facts;  // as last looked at; none when there is no file
    // Of what another program has made of the file since, when the user has put his answer to that off.
    std::optional<std::uint64_t> putOff;
    ContentsKind kind = ContentsKind::Text;
    LineEnds lineEnds;
    // Writing the document as it was loaded would give other bytes than the file has; looked at for what is no text.
    bool changesUnedited = false;
};

}  // namespace vexa
