// The rules of the regular expressions, written down as plainly as they can be: a parse into a tree, and backtracking
// by recursion. Slow, deep and simple, it is what the engine is held against.
#pragma once

#include <array>
#include <cstring>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vexa::test {

class ReferenceMatcher {
  public:
    // Offsets in the subject, or -1; index 0 is the whole match.
    using Positions = std::array<std::ptrdiff_t, 10>;
    static constexpr Positions kNone{-1, -1, -1, -1, -1, -1, -1, -1, -1, -1};

    enum class Outcome { NoMatch, Match, GaveUp };

    ReferenceMatcher(std::string pattern, bool ignoreCase) : pattern_(std::move(pattern)), ignoreCase_(ignoreCase) {
        tree_ = parsePattern(false);
    }

    // The message of a pattern that is refused; empty for a good one.
    const std::string& error() const { return error_; }
    const Positions& starts() const { return starts_; }
    const Positions& ends() const { return ends_; }

    // Gives up after so many calls, because plain backtracking may take for ever.
    Outcome match(const std::string& subject, std::size_t from, long mostCalls) {
        subject_ = subject;
        callsLeft_ = mostCalls;
        for (std::size_t start = from; start <= subject_.size(); ++start) {
            starts_ = ends_ = kNone;
            std::size_t end = 0;
            const bool found = matchAny(tree_, start, [&](std::size_t place) {
                end = place;
                return true;
            });
            if (callsLeft_ < 0) return Outcome::GaveUp;
            if (!found) continue;
            starts_[0] = static_cast<std::ptrdiff_t>(start);
            ends_[0] = static_cast<std::ptrdiff_t>(end);
            return Outcome::Match;
        }
        return Outcome::NoMatch;
    }

  private:
    struct Piece;
    using Branch = std::vector<Piece>;
    using Alternatives = std::vector<Branch>;
    using Continuation = std::function<bool(std::size_t)>;

    struct Piece {
        char kind = 0;  // c: the character of text; . [ ^ $ as in patterns; ! a negated class; < > word ends; ( a group
        std::string text;
        std::size_t group = 0;
        Alternatives alternatives;
        char quantifier = 0;

        bool isSimple() const { return kind != '\0' && std::strchr("c.[!", kind) != nullptr; }
    };

    // ---- parsing ----

    char peek(std::size_t ahead = 0) const { return at_ + ahead < pattern_.size() ? pattern_[at_ + ahead] : '\0'; }
    bool failed() const { return !error_.empty(); }
    void fail(const char* message) {
        if (!failed()) error_ = message;
    }
    static bool isQuantifier(char c) { return c == '*' || c == '+' || c == '?'; }

    static bool hasWidth(const Alternatives& alternatives) {
        for (const Branch& branch : alternatives) {
            bool width = false;
            for (const Piece& piece : branch)
                width = width || hasWidth(piece);
            if (!width) return false;
        }
        return true;
    }
    static bool hasWidth(const Piece& piece) {
        if (piece.quantifier == '*' || piece.quantifier == '?') return false;
        return piece.isSimple() || (piece.kind == '(' && hasWidth(piece.alternatives));
    }

    Alternatives parsePattern(bool inGroup) {
        Alternatives alternatives;
        do {
            alternatives.push_back(parseBranch());
        } while (!failed() && (peek() == '|' || peek() == '\n') && ++at_ > 0);
        if (peek() != (inGroup ? ')' : '\0')) fail("unmatched ()");
        if (inGroup) ++at_;
        return alternatives;
    }

    Branch parseBranch() {
        Branch branch;
        while (!failed() && peek() != '\0' && std::strchr(")|\n", peek()) == nullptr)
            branch.push_back(parsePiece());
        return branch;
    }

    Piece parsePiece() {
        Piece piece = parseAtom();
        if (failed() || !isQuantifier(peek())) return piece;
        if (peek() != '?' && !hasWidth(piece)) fail("*+ operand could be empty");
        piece.quantifier = pattern_[at_++];
        if (isQuantifier(peek())) fail("nested *?+");
        return piece;
    }

    Piece parseAtom() {
        Piece piece;
        const char c = pattern_[at_++];
        piece.kind = 'c';
        piece.text = c;
        if (c == '^' || c == '$' || c == '.') piece.kind = c;
        if (isQuantifier(c)) fail("?+* follows nothing");
        if (c == '(') parseGroup(piece);
        if (c == '[') parseClass(piece);
        if (c == '\\') parseEscape(piece);
        return piece;
    }

    void parseGroup(Piece& piece) {
        if (groups_ == 9) return fail("too many ()");
        piece.kind = '(';
        piece.group = ++groups_;
        piece.alternatives = parsePattern(true);
    }

    void parseEscape(Piece& piece) {
        if (peek() == '\0') return fail("trailing \\\\");
        const char c = pattern_[at_++];
        piece.text = c;
        if (c == '<' || c == '>') piece.kind = c;
    }

    void parseClass(Piece& piece) {
        piece.kind = '[';
        piece.text.clear();
        if (peek() == '^') {
            piece.kind = '!';
            ++at_;
        }
        if (peek() == ']' || peek() == '-') piece.text += pattern_[at_++];
        while (peek() != '\0' && peek() != ']') {
            if (peek() == '-' && peek(1) != ']' && peek(1) != '\0') {
                const auto first = static_cast<unsigned char>(pattern_[at_ - 1]);
                const auto last = static_cast<unsigned char>(pattern_[at_ + 1]);
                if (first > last) return fail("invalid [] range");
                for (int x = first + 1; x <= last; ++x)
                    piece.text += static_cast<char>(x);
                at_ += 2;
            } else {
                piece.text += pattern_[at_++];
            }
        }
        if (peek() != ']') return fail("unmatched []");
        ++at_;
    }

    // ---- matching ----

    char fold(char c) const { return ignoreCase_ && c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
    bool inText(const Piece& piece, char c) const {
        for (const char member : piece.text)
            if (fold(member) == fold(c)) return true;
        return false;
    }
    bool isWord(std::size_t place) const {
        const char c = place < subject_.size() ? subject_[place] : '\0';
        return c == '_' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    }
    bool matchesCharacter(const Piece& piece, std::size_t place) const {
        if (place >= subject_.size()) return false;
        if (piece.kind == '.') return true;
        return inText(piece, subject_[place]) == (piece.kind != '!');
    }

    bool matchAny(const Alternatives& alternatives, std::size_t place, const Continuation& rest) {
        for (const Branch& branch : alternatives)
            if (matchFrom(branch, 0, place, rest)) return true;
        return false;
    }

    bool matchFrom(const Branch& branch, std::size_t index, std::size_t place, const Continuation& rest) {
        if (--callsLeft_ < 0) return false;
        if (index == branch.size()) return rest(place);
        return matchPiece(branch[index], place,
                          [&, index](std::size_t after) { return matchFrom(branch, index + 1, after, rest); });
    }

    bool matchPiece(const Piece& piece, std::size_t place, const Continuation& rest) {
        if (piece.quantifier == '\0') return matchAtom(piece, place, rest);
        if (piece.quantifier == '?') return matchAtom(piece, place, rest) || rest(place);
        if (piece.isSimple()) return matchCounted(piece, place, rest);
        const Continuation again = [&](std::size_t after) { return matchAtom(piece, after, again) || rest(after); };
        return piece.quantifier == '*' ? again(place) : matchAtom(piece, place, again);
    }

    // Counting takes a single character as it is written, even where letter case is ignored.
    bool matchCounted(const Piece& piece, std::size_t place, const Continuation& rest) {
        std::size_t count = 0;
        while (place + count < subject_.size() &&
               (piece.kind == 'c' ? subject_[place + count] == piece.text[0] : matchesCharacter(piece, place + count)))
            ++count;
        const std::size_t least = piece.quantifier == '+' ? 1 : 0;
        for (++count; count-- > least;)
            if (rest(place + count)) return true;
        return false;
    }

    bool matchAtom(const Piece& piece, std::size_t place, const Continuation& rest) {
        if (--callsLeft_ < 0) return false;
        switch (piece.kind) {
            case '(':
                return matchGroup(piece, place, rest);
            case '^':
                return place == 0 && rest(place);
            case '$':
                return place == subject_.size() && rest(place);
            case '<':
                return isWord(place) && (place == 0 || !isWord(place - 1)) && rest(place);
            case '>':
                return !isWord(place) && rest(place);
            default:
                return matchesCharacter(piece, place) && rest(place + 1);
        }
    }

    // What an inner call recorded first stays.
    bool matchGroup(const Piece& piece, std::size_t place, const Continuation& rest) {
        const auto record = [&](Positions& positions, std::size_t where) {
            if (positions[piece.group] < 0) positions[piece.group] = static_cast<std::ptrdiff_t>(where);
            return true;
        };
        return matchAny(piece.alternatives, place,
                        [&](std::size_t after) { return rest(after) && record(ends_, after); }) &&
               record(starts_, place);
    }

    std::string pattern_;
    bool ignoreCase_;
    std::size_t at_ = 0;
    std::size_t groups_ = 0;
    std::string error_;
    Alternatives tree_;
    std::string subject_;
    long callsLeft_ = 0;
    Positions starts_ = kNone;
    Positions ends_ = kNone;
};

}  // namespace vexa::test
