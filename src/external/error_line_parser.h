// Finds out what a line that a compiler has printed reports: an error or a warning, in which file, at which line.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "regexp/plain_search.h"
#include "regexp/regexp.h"

namespace vexa {

enum class ErrorLevel : std::uint8_t { None, Error, Warning };

// The first occurrence of a text, letter case ignored, by a scan that never goes back: what begins inside a failed
// partial match is missed on purpose ("ABAC" in "ABABAC"). None for an empty needle.
std::optional<std::size_t> ScanIgnoringCase(std::string_view text, std::string_view needle);

// Holds the result of the last line. Lines end at a zero byte.
class ErrorLineParser {
  public:
    static constexpr std::int32_t kNoLine = -1;

    ErrorLineParser();

    // The document name is that of the compiled document, without directory; empty when there is none.
    // A zero byte must follow the line's last character, here and below.
    void Parse(std::string_view documentName, std::string_view line);
    // The parts of that, usable alone.
    bool FindFileName(std::string_view line);
    bool FindLineNumber(std::string_view line);

    ErrorLevel level() const { return level_; }
    // Counted from 1; kNoLine when the line names none, and the largest number for a larger one.
    std::int32_t lineNumber() const { return lineNumber_; }
    // Whether the line names another file than the document.
    bool isExternal() const { return external_; }
    // Empty when none was found.
    const std::string& fileName() const { return fileName_; }

  private:
    static constexpr std::size_t kFileNameLimit = 255;

    ErrorLevel levelOf(std::string_view line);
    void findPosition(std::string_view documentName, std::string_view line);
    bool matches(RegExp& pattern, std::string_view line);

    const PlainSearch errorWord_;
    const PlainSearch warningWord_;
    const std::unique_ptr<RegExp> error_;
    const std::unique_ptr<RegExp> warning_;
    const std::unique_ptr<RegExp> lineWord_;
    const std::unique_ptr<RegExp> lineInBrackets_;
    const std::unique_ptr<RegExp> digits_;
    const std::unique_ptr<RegExp> fullFileName_;
    const std::unique_ptr<RegExp> plainFileName_;

    ErrorLevel level_ = ErrorLevel::None;
    std::int32_t lineNumber_ = kNoLine;
    bool external_ = false;
    std::string fileName_;
    std::string matched_;
};

}  // namespace vexa
