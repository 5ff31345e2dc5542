// Reads a keyword index (.ZIX). Any bytes give lines.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/file.h"

namespace vexa {

// Reads as far as lines are asked for, and nothing twice.
class HelpIndexReader {
  public:
    explicit HelpIndexReader(const std::string& path) : file_(path, platform::OpenMode::Read) {}

    bool isOpen() const { return file_.isOpen(); }
    // The next line without its end, which stays until the next call; a line of 64 KB and more may come in parts. None
    // at the end of the file, or when it cannot be read further.
    std::optional<std::string_view> nextLine();
    // Whether one of the lines that are left begins with a keyword, letter case ignored.
    bool hasLineThatBeginsWith(std::string_view keyword);
    // Whether the end has been met because the rest of the file could not be read.
    bool failed() const { return failed_; }

  private:
    bool readMore();

    File file_;
    std::string block_;
    std::size_t start_ = 0;  // of what is in the block and has not been given
    bool atEnd_ = false;
    bool failed_ = false;
};

}  // namespace vexa
