// What a profile says about cutting lines into tokens, made ready for scanning: a class for every byte, the comment
// markers, and the keywords in the order in which they are searched.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "language/extension_profile.h"
#include "language/line_state.h"

namespace vexa {

// What begins with a byte, where no comment marker does.
enum class TokenStart : std::uint8_t { Word, Symbols, Tab, String, Preprocessor, Number };

// A byte's class: its TokenStart in the low bits, and of which tokens it can be a part.
using ByteClass = std::uint8_t;
inline constexpr ByteClass kTokenStartMask = 0x07;
inline constexpr ByteClass kWordPart = 0x08;
inline constexpr ByteClass kSymbolPart = 0x10;
inline constexpr ByteClass kNumberPart = 0x20;
inline constexpr ByteClass kMarkerStart = 0x40;  // a comment marker or a quote of the rules may begin here
inline constexpr ByteClass kDelimiter = 0x80;

// The text that opens or closes a comment: one or two characters; an empty one is found nowhere.
class CommentMarker {
  public:
    CommentMarker() = default;
    explicit CommentMarker(std::string_view text);

    std::size_t length() const { return length_; }
    char first() const { return first_; }
    bool matches(const char* at, const char* end) const {
        if (length_ == 0 || *at != first_) return false;
        return length_ == 1 || (end - at > 1 && at[1] == second_);
    }
    // Where the marker is found first, or end.
    const char* find(const char* from, const char* end) const;

  private:
    char first_ = '\0';
    char second_ = '\0';
    std::uint8_t length_ = 0;
};

// Copies what it needs: later changes of the profile want new rules.
class TokenRules {
  public:
    explicit TokenRules(const ExtensionProfile& profile);

    ByteClass classOf(char c) const { return classes_[static_cast<unsigned char>(c)]; }
    const CommentMarker& lineComment() const { return lineComment_; }
    const CommentMarker& commentStart() const { return commentStart_; }
    const CommentMarker& commentEnd() const { return commentEnd_; }
    char stringQuote() const { return stringQuote_; }
    // Whether comments can go on in the next line. Without an end marker they end with their line, so that a profile
    // can use the start marker for a second kind of line comment.
    bool hasBlockComments() const { return commentStart_.length() > 0 && commentEnd_.length() > 0; }
    // Whether a marker is found at a position in a line, of which the begin and the end are given.
    bool lineCommentMatches(const char* at, const char* begin, const char* end) const {
        return lineComment_.matches(at, end) && (!extended_ || startsWord(at, begin));
    }
    bool anyMarkerMatches(const char* at, const char* begin, const char* end) const {
        return lineCommentMatches(at, begin, end) || commentStart_.matches(at, end) || commentEnd_.matches(at, end) ||
               (extended_ && breaksAt(at, begin, end));
    }

    // ---- beyond the profile file ----

    const QuoteRules& quotes() const { return quotes_; }
    bool goBeyondProfile() const { return extended_; }
    // The state in which tokens are cut.
    LineState codeState() const { return codeState_; }
    // Whether lines can end in another state than they start in.
    bool linesHaveStates() const { return extended_ || hasBlockComments(); }
    // Whether a line that starts outside of everything can end elsewhere; it has no byte 0.
    bool mayOpen(std::string_view line) const;
    // Whether an empty line leaves a state in which it starts inside a comment or quote.
    bool staysOpen(LineState state) const {
        const Quote* quote = quotes_.quoteIn(state);
        return quote == nullptr || quote->overLines;
    }
    // The quote that opens at a position; none in most.
    const Quote* quoteAt(const char* at, const char* begin, const char* end) const;
    // The word at whose line a text ends that begins at a position; none in most.
    std::string_view hereWordAt(const char* at, const char* begin, const char* end) const;

    // Whether a word is in the list of keywords, in exactly that letter case.
    bool isListed(std::string_view word) const;

  private:
    void setClasses(const ExtensionProfile& profile);
    void markStart(char c);
    bool startsWord(const char* at, const char* begin) const;
    bool breaksAt(const char* at, const char* begin, const char* end) const;
    void indexKeywords();

    std::array<ByteClass, 256> classes_{};
    CommentMarker lineComment_;
    CommentMarker commentStart_;
    CommentMarker commentEnd_;
    char stringQuote_;
    bool extended_;  // the rules go beyond the profile file
    LineState codeState_;
    std::vector<std::string> keywords_;  // in ascending byte order
    // For each first byte: where its keywords begin, and a bit for each length that one of them has. Most words are
    // found to be no keyword by these alone.
    std::array<std::uint16_t, 257> firstWith_{};
    std::array<std::uint32_t, 256> lengthsWith_{};
    QuoteRules quotes_;
};

// The text of a line as far as the tokens go: a byte 0 ends it.
std::string_view TextBeforeNul(std::string_view text);

}  // namespace vexa
