// The compiled form of a regular expression: a magic byte, then nodes. A node is an opcode byte, the distance to the
// next node as two bytes, high byte first (0: there is none), and an operand.
#pragma once

#include <cstdint>

namespace vexa::regexp {

enum Opcode : std::uint8_t {
    END = 0,      // success
    BOL = 1,      // the empty string at the start of the subject
    EOL = 2,      // the empty string at the end of the subject
    ANY = 3,      // any one character
    ANYOF = 4,    // any one character of the operand, which ends with a NUL
    ANYBUT = 5,   // any one character that is not in the operand
    BRANCH = 6,   // the nodes that follow, else the BRANCH that is next
    BACK = 7,     // the empty string; the distance to the next node leads backwards
    EXACTLY = 8,  // the operand, which ends with a NUL
    NOTHING = 9,  // the empty string
    STAR = 10,    // any number of the one node that follows
    PLUS = 11,    // one or more of the one node that follows
    WORDA = 12,   // the empty string at the start of a word
    WORDZ = 13,   // the empty string before a character that is no word character
    OPEN = 20,    // OPEN + n: group n starts here, n from 1 to 9
    CLOSE = 30    // CLOSE + n: group n ends here
};

// What the compiler knows of a piece of a pattern.
enum Flag : std::uint8_t {
    kWorst = 0,
    kHasWidth = 1,       // cannot match the empty string
    kSimple = 2,         // one node that matches exactly one character: STAR and PLUS can take it
    kStartsWithStar = 4  // begins with a starred piece: there is no first character, so a literal inside is looked for
};

inline constexpr std::uint8_t kMagic = 156;
inline constexpr int kFirstNode = 1;  // offsets count from the magic byte
inline constexpr int kNodeHeader = 3;
inline constexpr int kGroupLimit = 9;
inline constexpr int kProgramLimit = 32767;  // a program is shorter than this: distances are 16-bit numbers

// What can go wrong, as the error hook is told.
inline constexpr const char* kNullArgument = "NULL argument";
inline constexpr const char* kTooBig = "regexp too big";
inline constexpr const char* kOutOfSpace = "out of space";
inline constexpr const char* kTooManyGroups = "too many ()";
inline constexpr const char* kUnmatchedGroup = "unmatched ()";
inline constexpr const char* kJunkOnEnd = "junk on end";
inline constexpr const char* kEmptyOperand = "*+ operand could be empty";
inline constexpr const char* kNestedQuantifier = "nested *?+";
inline constexpr const char* kInvalidRange = "invalid [] range";
inline constexpr const char* kUnmatchedClass = "unmatched []";
inline constexpr const char* kInternalUrp = "internal urp";
inline constexpr const char* kFollowsNothing = "?+* follows nothing";
inline constexpr const char* kTrailingBackslash = "trailing \\\\";
inline constexpr const char* kNullParameter = "NULL parameter";
inline constexpr const char* kCorruptedProgram = "corrupted program";
inline constexpr const char* kMemoryCorruption = "memory corruption";
inline constexpr const char* kCorruptedPointers = "corrupted pointers";
inline constexpr const char* kInternalFoulup = "internal foulup";

}  // namespace vexa::regexp
