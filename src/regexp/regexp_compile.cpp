// The compiler: a recursive-descent parse that runs twice, first to count the bytes of the program, then to emit them.
#include <cstring>
#include <new>
#include <optional>

#include "regexp/regexp.h"
#include "regexp/regexp_emitter.h"
#include "regexp/regexp_plan.h"
#include "regexp/regexp_program.h"

namespace vexa {

namespace regexp {

namespace {

// A part of the pattern that has been parsed: its first node, and its flags.
struct Piece {
    int node;
    unsigned flags;
};

bool IsQuantifier(char c) {
    return c == '*' || c == '+' || c == '?';
}

bool SeparatesBranches(char c) {
    return c == '|' || c == '\n';
}

bool EndsBranch(char c) {
    return c == '\0' || c == ')' || SeparatesBranches(c);
}

bool EndsLiteral(char c) {
    return EndsBranch(c) || std::strchr(".[($^", c) != nullptr;
}

// Every operation gives none after an error, which has then been reported.
class Parser {
  public:
    Parser(const char* pattern, Emitter& out) : cursor_(pattern), out_(out) {}

    std::optional<Piece> parse() {
        out_.byte(kMagic);
        const std::optional<Piece> whole = alternatives(kNoGroup);
        if (whole && *cursor_ != '\0') return fail(*cursor_ == ')' ? kUnmatchedGroup : kJunkOnEnd);
        return whole;
    }

  private:
    static constexpr int kNoGroup = 0;

    static std::nullopt_t fail(const char* message) {
        ReportRegExpError(message);
        return std::nullopt;
    }

    std::optional<Piece> alternatives(int group);
    std::optional<Piece> branch();
    std::optional<Piece> piece();
    void repeatComplex(char quantifier, int atom);
    std::optional<Piece> atom();
    std::optional<Piece> group();
    std::optional<Piece> escape();
    std::optional<Piece> characterClass();
    bool classRange();
    Piece literal();
    Piece node(Opcode opcode, unsigned flags) { return {out_.node(opcode), flags}; }

    const char* cursor_;
    Emitter& out_;
    int groups_ = 0;
};

// The branches of a group or of the whole pattern, between the node that opens it and the one that ends it.
std::optional<Piece> Parser::alternatives(int group) {
    const std::optional<int> open = group != kNoGroup ? std::optional(out_.node(OPEN + group)) : std::nullopt;
    std::optional<Piece> last = branch();
    if (!last) return std::nullopt;
    const int chain = open.value_or(last->node);
    if (open) out_.linkTail(*open, last->node);
    unsigned flags = last->flags;
    while (SeparatesBranches(*cursor_)) {
        ++cursor_;
        const std::optional<Piece> next = branch();
        if (!next) return std::nullopt;
        out_.linkTail(last->node, next->node);
        flags = (flags & next->flags & kHasWidth) | ((flags | next->flags) & kStartsWithStar);
        last = next;
    }
    const int ender = out_.node(open ? CLOSE + group : END);
    out_.linkTail(last->node, ender);
    out_.linkBranches(chain, ender);
    return Piece{chain, flags};
}

std::optional<Piece> Parser::branch() {
    Piece whole = node(BRANCH, kWorst);
    std::optional<Piece> last;
    while (!EndsBranch(*cursor_)) {
        const std::optional<Piece> next = piece();
        if (!next) return std::nullopt;
        whole.flags |= next->flags & kHasWidth;
        if (last) {
            out_.linkTail(last->node, next->node);
        } else {
            whole.flags |= next->flags & kStartsWithStar;
        }
        last = next;
    }
    if (!last) out_.node(NOTHING);
    return whole;
}

std::optional<Piece> Parser::piece() {
    const std::optional<Piece> operand = atom();
    if (!operand || !IsQuantifier(*cursor_)) return operand;
    const char quantifier = *cursor_++;
    if (quantifier != '?' && (operand->flags & kHasWidth) == 0) return fail(kEmptyOperand);
    if (quantifier != '?' && (operand->flags & kSimple) != 0) {
        out_.insert(quantifier == '*' ? STAR : PLUS, operand->node);
    } else {
        repeatComplex(quantifier, operand->node);
    }
    if (IsQuantifier(*cursor_)) return fail(kNestedQuantifier);
    return Piece{operand->node, quantifier == '+' ? kHasWidth : kStartsWithStar};
}

// Rewrites x* as (x&|), x+ as x(&|) and x? as (x|), where & goes back to the start of the loop.
void Parser::repeatComplex(char quantifier, int atom) {
    if (quantifier == '+') {
        const int choice = out_.node(BRANCH);
        out_.linkTail(atom, choice);
        out_.linkTail(out_.node(BACK), atom);
        out_.linkTail(choice, out_.node(BRANCH));
        out_.linkTail(atom, out_.node(NOTHING));
        return;
    }
    out_.insert(BRANCH, atom);
    if (quantifier == '*') {
        out_.linkOperandTail(atom, out_.node(BACK));
        out_.linkOperandTail(atom, atom);
    }
    out_.linkTail(atom, out_.node(BRANCH));
    const int nothing = out_.node(NOTHING);
    out_.linkTail(atom, nothing);
    if (quantifier == '?') out_.linkOperandTail(atom, nothing);
}

std::optional<Piece> Parser::atom() {
    switch (*cursor_) {
        case '^':
            ++cursor_;
            return node(BOL, kWorst);
        case '$':
            ++cursor_;
            return node(EOL, kWorst);
        case '.':
            ++cursor_;
            return node(ANY, kHasWidth | kSimple);
        case '[':
            ++cursor_;
            return characterClass();
        case '(':
            ++cursor_;
            return group();
        case '\\':
            ++cursor_;
            return escape();
        case '*':
        case '+':
        case '?':
            return fail(kFollowsNothing);
        default:
            return EndsBranch(*cursor_) ? std::optional<Piece>(fail(kInternalUrp)) : literal();
    }
}

std::optional<Piece> Parser::group() {
    if (groups_ == kGroupLimit) return fail(kTooManyGroups);
    const std::optional<Piece> whole = alternatives(++groups_);
    if (whole && *cursor_++ != ')') return fail(kUnmatchedGroup);
    return whole;
}

std::optional<Piece> Parser::escape() {
    switch (*cursor_) {
        case '\0':
            return fail(kTrailingBackslash);
        case '<':
            ++cursor_;
            return node(WORDA, kWorst);
        case '>':
            ++cursor_;
            return node(WORDZ, kWorst);
        default:
            return literal();
    }
}

std::optional<Piece> Parser::characterClass() {
    const bool negated = *cursor_ == '^';
    if (negated) ++cursor_;
    const Piece whole = node(negated ? ANYBUT : ANYOF, kHasWidth | kSimple);
    if (*cursor_ == ']' || *cursor_ == '-') out_.byte(*cursor_++);
    while (*cursor_ != '\0' && *cursor_ != ']') {
        const bool range = *cursor_ == '-' && cursor_[1] != ']' && cursor_[1] != '\0';
        if (!range) {
            out_.byte(*cursor_++);
        } else if (!classRange()) {
            return fail(kInvalidRange);
        }
    }
    out_.byte('\0');
    if (*cursor_ != ']') return fail(kUnmatchedClass);
    ++cursor_;
    return whole;
}

// At the "-" of a range, whose first character has been added already. False when the range runs backwards.
bool Parser::classRange() {
    const int first = static_cast<unsigned char>(cursor_[-1]);
    const int last = static_cast<unsigned char>(cursor_[1]);
    if (first > last) return false;
    if (first < last) out_.range(first + 1, last);
    cursor_ += 2;
    return true;
}

// A run of ordinary characters, beginning with the one at the cursor whatever it is.
Piece Parser::literal() {
    const int whole = out_.node(EXACTLY);
    int length = 0;
    const char* pending = cursor_;
    const char* pendingStart = cursor_;
    for (;;) {
        cursor_ = pending + 1;
        if (IsQuantifier(*cursor_) && length > 0) {
            // The quantifier is for this character alone, which becomes an atom of its own.
            cursor_ = pendingStart;
            break;
        }
        out_.byte(*pending);
        ++length;
        if (IsQuantifier(*cursor_) || EndsLiteral(*cursor_)) break;
        pendingStart = pending = cursor_;
        if (*pending != '\\') continue;
        ++pending;
        if (*pending == '\0' || *pending == '<' || *pending == '>') break;
    }
    out_.byte('\0');
    return {whole, length == 1 ? kHasWidth | kSimple : unsigned{kHasWidth}};
}

}  // namespace

}  // namespace regexp

std::unique_ptr<RegExp> RegExp::Compile(const char* pattern) {
    using namespace regexp;
    if (pattern == nullptr) {
        ReportRegExpError(kNullArgument);
        return nullptr;
    }
    try {
        Emitter out;
        if (!Parser(pattern, out).parse()) return nullptr;
        if (out.size() >= kProgramLimit) {
            ReportRegExpError(kTooBig);
            return nullptr;
        }
        out.allocate();
        const std::optional<Piece> whole = Parser(pattern, out).parse();
        std::unique_ptr<RegExp> result(new RegExp(out.take(), Origin::Compiler));
        result->setOptimisations((whole->flags & kStartsWithStar) != 0);
        return result;
    } catch (const std::bad_alloc&) {
        ReportRegExpError(kOutOfSpace);
        return nullptr;
    }
}

}  // namespace vexa
