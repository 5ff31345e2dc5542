// Matches a pattern against one line and keeps what was found: the engine as the editor uses it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "regexp/regexp.h"

namespace vexa {

class RegexMatcher {
  public:
    static constexpr int kCaseSensitive = 1;
    static constexpr std::int32_t kTextLimit = 300;

    // Sets the case mode of all matchers: 1 is case-sensitive, any other value ignores case.
    explicit RegexMatcher(int caseMode = kCaseSensitive) { setCaseMode(caseMode); }
    void setCaseMode(int caseMode) { SetRegExpIgnoreCase(caseMode != kCaseSensitive); }
    bool caseSensitive() const { return !RegExpIgnoresCase(); }

    // 1 when the pattern matches somewhere in the subject, else 0. The last match stays as it was on 0.
    int match(const char* subject, const char* pattern);
    // The same for a line whose length is known, which saves looking for its end. A NUL must follow the last character.
    int match(std::string_view line, const char* pattern);

    // The last match: its characters, at most 300 of them, and where it began. A length of more than 300 reads 300.
    const char* text() const { return text_.data(); }
    std::int32_t length() const { return length_; }
    std::int32_t offset() const { return offset_; }

  private:
    bool compile(const char* pattern);
    void store(const char* line);

    std::array<char, kTextLimit + 1> text_{};
    std::int32_t length_ = 0;
    std::int32_t offset_ = 0;
    // The last pattern and its program, if it has one. A search through a document gives the same pattern for every
    // line.
    std::string pattern_;
    std::unique_ptr<RegExp> program_;
};

// What the last match of any matcher has to say of an error: "Regex Error: ", and a text if there was one.
const char* RegexErrorText();

}  // namespace vexa
