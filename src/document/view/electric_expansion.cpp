#include "document/view/electric_expansion.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "base/ascii.h"
#include "document/text/columns.h"
#include "language/line_tokenizer.h"

namespace vexa {

namespace {

// ---- finding the keyword -------------------------------------------------------------------------------------------

struct TokenPosition {
    std::size_t begin;
    TokenKind kind;
    bool goesOn;  // a comment that was opened in a line above
};

// What is around the cursor, as far as it decides where a keyword can stand.
class Surroundings {
  public:
    explicit Surroundings(const TextDocument& document)
        : document_(document), text_(document.text(document.currentLine())) {}

    // No word goes on from the character before the column to the one at it. Comments, strings and preprocessor words
    // part words too, whatever they begin with.
    bool partsWords(std::size_t column) const {
        if (column == 0 || column == text_.size()) return true;
        if (!isWordPart(text_[column - 1]) || !isWordPart(text_[column])) return true;
        const auto token = tokenAt(column);
        return token && token->begin == column;
    }

    // Whether a comment, a string or a preprocessor word has begun before the column and reaches beyond it.
    bool isInsideOnePiece(std::size_t column) const {
        const auto token = tokenAt(column);
        if (!token) return false;
        const bool isOnePiece = token->kind == TokenKind::Comment || token->kind == TokenKind::String ||
                                token->kind == TokenKind::Preprocessor;
        return isOnePiece && (token->begin < column || token->goesOn);
    }

  private:
    bool isWordPart(char c) const {
        const ExtensionProfile* profile = document_.profile();
        return !IsBlank(c) && !(profile && profile->delimiters().find(c) != std::string::npos);
    }

    std::optional<TokenPosition> tokenAt(std::size_t column) const {
        const TokenRules* rules = document_.tokenRules();
        if (!rules) return std::nullopt;
        const LineState start = document_.startState(document_.currentLine());
        LineTokenizer tokens(*rules, text_.substr(0, document_.rules().limits.colouredLength), start);
        std::size_t begin = 0;
        for (Token token = tokens.NextToken(); token.kind != TokenKind::EndOfLine; token = tokens.NextToken()) {
            const std::size_t end = begin + token.text.size();
            if (column < end) return TokenPosition{begin, token.kind, begin == 0 && GoesOn(start)};
            begin = end;
        }
        return std::nullopt;
    }

    const TextDocument& document_;
    const std::string_view text_;
};

const ElectricEntry* EntryAtCursor(const TextDocument& document, const ElectricList& list) {
    const std::string_view text = document.text(document.currentLine());
    const auto column = static_cast<std::size_t>(document.column().value);
    const Surroundings surroundings(document);
    if (column > text.size() || !surroundings.partsWords(column)) return nullptr;
    const ElectricEntry* longest = nullptr;
    for (const ElectricEntry& entry : list.entries()) {
        if (!text.substr(0, column).ends_with(entry.keyword)) continue;
        const std::size_t start = column - entry.keyword.size();
        if (!surroundings.partsWords(start) || surroundings.isInsideOnePiece(start)) continue;
        if (!longest || entry.keyword.size() > longest->keyword.size()) longest = &entry;
    }
    return longest;
}

// ---- the expansion -------------------------------------------------------------------------------------------------

enum class PieceKind { Text, NewLine, Tab, Caret };

struct Piece {
    PieceKind kind;
    std::string text;
};

std::optional<PieceKind> KindOfEscape(char c) {
    switch (c) {
        case 'n':
            return PieceKind::NewLine;
        case 't':
            return PieceKind::Tab;
        case 'c':
            return PieceKind::Caret;
        default:
            return std::nullopt;
    }
}

// A backslash before any other character stands for itself.
std::vector<Piece> PiecesOf(std::string_view expansion) {
    std::vector<Piece> pieces;
    const auto addText = [&pieces](char c) {
        if (pieces.empty() || pieces.back().kind != PieceKind::Text) pieces.push_back({PieceKind::Text, {}});
        pieces.back().text += c;
    };
    for (std::size_t i = 0; i < expansion.size(); ++i) {
        const char next = expansion[i] == '\\' && i + 1 < expansion.size() ? expansion[i + 1] : '\0';
        if (const auto kind = KindOfEscape(next)) {
            pieces.push_back({*kind, {}});
            ++i;
        } else {
            addText(expansion[i]);
            if (next == '\\') ++i;
        }
    }
    return pieces;
}

// Whether no line of the expansion, with the text after the cursor, goes beyond the last column.
bool Fits(const std::vector<Piece>& pieces, std::size_t start, std::size_t indent, std::size_t rest, std::size_t tab,
          std::int32_t lastColumn) {
    std::size_t end = start;
    std::size_t widest = start;
    for (const Piece& piece : pieces) {
        end =
            piece.kind == PieceKind::NewLine ? indent : end + (piece.kind == PieceKind::Tab ? tab : piece.text.size());
        widest = std::max(widest, end);
    }
    return std::max(widest, end + rest) < static_cast<std::size_t>(lastColumn);
}

class Expander {
  public:
    Expander(TextDocument& document, LineEditor& editor, std::string indent)
        : document_(document), editor_(editor), indent_(std::move(indent)) {}

    void expand(const std::vector<Piece>& pieces) {
        for (const Piece& piece : pieces)
            add(piece);
        goToIndent();
        if (!caret_) return;
        editor_.moveToLine(caret_->line);
        editor_.moveToDisplayColumn(caret_->column);
    }

  private:
    struct Caret {
        LineIndex line;
        DisplayColumn column;
    };

    void add(const Piece& piece) {
        switch (piece.kind) {
            case PieceKind::Text:
                typeIndent();
                editor_.typeText(piece.text);
                break;
            case PieceKind::NewLine:
                newLine();
                break;
            case PieceKind::Tab:
                typeIndent();
                editor_.insertIndent();
                break;
            case PieceKind::Caret:
                goToIndent();
                if (!caret_) caret_ = Caret{document_.currentLine(), document_.displayColumn()};
                break;
        }
    }

    void newLine() {
        if (owesIndent_) editor_.moveToLineStart();
        editor_.breakLine();
        owesIndent_ = true;
        if (editor_.textEnd().value > 0) typeIndent();
    }

    // An empty line gets its indentation with its first text only.
    void typeIndent() {
        if (!owesIndent_) return;
        editor_.moveToLineStart();
        editor_.typeText(indent_);
        owesIndent_ = false;
    }

    void goToIndent() {
        const CharColumn end(static_cast<std::int32_t>(indent_.size()));
        if (owesIndent_) editor_.moveToDisplayColumn(ToDisplay(indent_, end, document_.tabSize()));
    }

    TextDocument& document_;
    LineEditor& editor_;
    const std::string indent_;
    std::optional<Caret> caret_;
    bool owesIndent_ = false;
};

}  // namespace

bool ExpandElectricWord(TextDocument& document, LineEditor& editor, const ElectricList& list) {
    const ElectricEntry* entry = EntryAtCursor(document, list);
    if (!entry) return false;
    const std::string_view text = document.text(document.currentLine());
    const auto column = static_cast<std::size_t>(document.column().value);
    const std::size_t start = column - entry->keyword.size();
    const std::vector<Piece> pieces = PiecesOf(entry->expansion);
    const std::string indent(IndentOf(text.substr(0, start)));
    const auto tab = static_cast<std::size_t>(document.tabSize());
    if (!Fits(pieces, start, indent.size(), text.size() - column, tab, document.rules().limits.lastColumn))
        return false;
    editor.moveToColumn(CharColumn(static_cast<std::int32_t>(start)));
    editor.deleteInLine(static_cast<std::int32_t>(entry->keyword.size()));
    Expander(document, editor, indent).expand(pieces);
    return true;
}

}  // namespace vexa
