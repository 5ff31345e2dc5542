// Whether two names are names of one file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/platform.h"

namespace vexa {

class TextDocument;

// One file, by its name in the system's full and long form, and by the numbers that the system gives it, which a link
// or another name of its disk has too.
class FileIdentity {
  public:
    explicit FileIdentity(const std::string& path);

    // Whether the document's text was loaded from this file or saved there, or has its name.
    bool isFileOf(const TextDocument& document) const;

  private:
    std::string path_;
    std::optional<platform::FileFacts> facts_;
};

// The same for many files that are looked at in any case, each given with its size (0 for one that cannot be read):
// only one that has the document's size is asked for its numbers.
bool IsFileOf(const TextDocument& document, const std::string& path, std::uint64_t size);

}  // namespace vexa
