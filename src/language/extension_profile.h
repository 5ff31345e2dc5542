// The syntax profile of one file extension: what delimits words, how comments, strings and preprocessor lines begin,
// and which words are keywords.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "language/quote_rules.h"

namespace vexa {

// Limits in characters; setters cut what is longer, and at a byte 0, which ends a text in the file.
inline constexpr std::size_t kDescriptionLimit = 35;
inline constexpr std::size_t kDelimiterLimit = 60;
inline constexpr std::size_t kCommentLimit = 2;
inline constexpr std::size_t kExtensionLimit = 3;
inline constexpr std::size_t kKeywordLimit = 20;
inline constexpr std::size_t kKeywordCountLimit = 65535;

// Formats of the profile file: the old one has no number of its own and only narrow keywords.
inline constexpr int kOldProfileVersion = 0;
inline constexpr int kProfileVersion = 1;

class ExtensionProfile {
  public:
    // The built-in profile, for C and C++, which serves every extension without a file.
    ExtensionProfile();

    const std::string& description() const { return description_; }
    const std::string& delimiters() const { return delimiters_; }
    const std::string& commentStart() const { return commentStart_; }
    const std::string& commentEnd() const { return commentEnd_; }
    const std::string& lineComment() const { return lineComment_; }
    const std::string& extension() const { return extension_; }
    char preprocessor() const { return preprocessor_; }
    char stringQuote() const { return stringQuote_; }
    int version() const { return version_; }
    const std::vector<std::string>& keywords() const { return keywords_; }
    // Not in the profile file: the default, unless they have been set.
    const QuoteRules& quotes() const { return quotes_; }

    void setDescription(std::string_view text);
    void setDelimiters(std::string_view text);
    void setCommentStart(std::string_view text);
    void setCommentEnd(std::string_view text);
    void setLineComment(std::string_view text);
    void setExtension(std::string_view text);
    void setPreprocessor(char c) { preprocessor_ = c; }
    void setStringQuote(char c) { stringQuote_ = c; }
    void setVersion(int version) { version_ = version; }
    void setQuotes(const QuoteRules& quotes) { quotes_ = quotes; }
    // At most 65535 keywords of at most 20 characters each are kept, and no empty one.
    void replaceKeywords(std::vector<std::string> keywords);

    // Whether this profile serves an extension: the first three characters are compared, letter case ignored.
    bool matches(std::string_view extension) const;

    // Reads a profile file of the current or the old format. False when the file cannot be opened or does not hold what
    // its keyword count promises; what could be read is then in place.
    bool read(const std::string& path);
    // Sorts the keywords by byte order and writes the current format. False when the file cannot be written; the old
    // file is then untouched.
    bool write(const std::string& path);

  private:
    std::string description_;
    std::string delimiters_;
    std::string commentStart_;
    std::string commentEnd_;
    std::string lineComment_;
    std::string extension_;
    char preprocessor_;
    char stringQuote_;
    int version_;
    std::vector<std::string> keywords_;
    QuoteRules quotes_;
};

}  // namespace vexa
