// Finds the definitions of functions in C, C++ and the languages that look like them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vexa {

// Where a function's name stands, with what is before it of its statement in the same line: the characters from begin
// up to end.
struct FunctionPosition {
    std::int32_t line;
    std::size_t begin;
    std::size_t end;
};

// Takes a text line by line. A definition is a name, its parameters in parentheses and then, before any semicolon, a
// body in braces. What is inside a body is passed over; a closing brace in the first column ends a body in any case, so
// that braces that do not match (in branches of the preprocessor) cost no more than one function.
//
// Not found: definitions with old-style declarations of parameters, functions that return a pointer to a function, and
// those whose name or braces come out of a macro.
class CFunctionScanner {
  public:
    void addLine(std::string_view text);
    const std::vector<FunctionPosition>& found() const { return found_; }

  private:
    enum class Stage { Head, Parentheses, AfterParameters, Initialisers };

    // What has been read since the last semicolon or brace.
    struct Statement {
        Stage stage = Stage::Head;
        Stage afterParentheses = Stage::Head;
        int parentheses = 0;                       // open ones
        int angles = 0;                            // open "<" of a template's parameters
        int words = 0;                             // outside parentheses
        std::optional<FunctionPosition> function;  // the last name with parameters
        bool isType = false;                       // it begins as a class or a namespace does
        bool isScope = false;                      // nothing but a class or a namespace
        bool isTemplate = false;
        bool isExpression = false;     // nothing that can define a function
        bool hasTrailingWord = false;  // a word after the parameters that is none of a function's
    };
    // The last word or other character.
    struct Token {
        char character = '\0';  // for a word too
        bool isName = false;
    };
    struct Character;  // a row of the table of characters that mean something

    bool isPreprocessor(std::string_view text);
    std::size_t passOver(std::string_view text, std::size_t at);
    std::size_t passComment(std::string_view text, std::size_t at);
    std::size_t takeWord(std::string_view text, std::size_t at);
    void noteWord(std::string_view word);
    void takeCharacter(std::string_view text, std::size_t at);

    void openParenthesis();
    void closeParenthesis();
    void openBrace();
    void closeBrace();
    void semicolon() { begin(); }
    void colon();
    void comma();
    void equals();
    void openAngle();
    void closeAngle();
    void expression();

    void closeSkippedBrace(std::size_t at);
    bool isDefinition() const;
    void begin();
    void beginAt(std::size_t at);

    static const Character kCharacters[];

    std::vector<FunctionPosition> found_;
    Statement statement_;
    Token last_;
    FunctionPosition position_{};  // of the last word outside parentheses
    std::size_t begin_ = 0;        // where the statement begins in this line, once it has
    bool hasBegun_ = false;
    std::int32_t line_ = -1;
    int skippedBraces_ = 0;  // open ones of what is passed over
    bool insideComment_ = false;
    bool insidePreprocessor_ = false;
};

}  // namespace vexa
