#include "document/view/matching_bracket.h"

#include <string_view>

namespace vexa {

namespace {

constexpr std::string_view kOpening = "([{";
constexpr std::string_view kClosing = ")]}";

// The two characters of a bracket's shape, and whether it is the opening one.
struct Shape {
    char opening;
    char closing;
    bool opens;
};

std::optional<Shape> ShapeOf(char c) {
    const std::size_t opening = kOpening.find(c);
    const std::size_t index = opening != std::string_view::npos ? opening : kClosing.find(c);
    if (index == std::string_view::npos) return std::nullopt;
    return Shape{kOpening[index], kClosing[index], opening != std::string_view::npos};
}

std::optional<char> CharacterAt(const TextDocument& document, TextPosition position) {
    const std::string_view text = document.text(position.line);
    const auto column = static_cast<std::size_t>(position.column.value);
    if (position.column.value < 0 || column >= text.size()) return std::nullopt;
    return text[column];
}

bool IsBracket(const TextDocument& document, TextPosition position) {
    const std::optional<char> c = CharacterAt(document, position);
    return c && ShapeOf(*c);
}

// Follows the nesting to where it comes back to nothing.
class Search {
  public:
    Search(const TextDocument& document, Shape shape)
        : document_(document), shape_(shape), brackets_{shape.opening, shape.closing} {}

    std::optional<TextPosition> forwards(TextPosition from) {
        const LineIndex last = document_.lastLine(LastUsed::Text);
        auto start = static_cast<std::size_t>(from.column.value);
        for (LineIndex line = from.line; line <= last; ++line, start = 0) {
            const std::string_view text = document_.text(line);
            for (auto i = text.find_first_of(set(), start); i != text.npos; i = text.find_first_of(set(), i + 1))
                if (closesNesting(text[i])) return positionOf(line, i);
        }
        return std::nullopt;
    }

    std::optional<TextPosition> backwards(TextPosition from) {
        auto start = static_cast<std::size_t>(from.column.value);
        for (LineIndex line = from.line; line.value >= 0; --line, start = std::string_view::npos) {
            const std::string_view text = document_.text(line);
            for (auto i = text.find_last_of(set(), start); i != text.npos; i = text.find_last_of(set(), i - 1)) {
                if (closesNesting(text[i])) return positionOf(line, i);
                if (i == 0) break;
            }
        }
        return std::nullopt;
    }

  private:
    std::string_view set() const { return {brackets_, sizeof brackets_}; }
    bool closesNesting(char c) {
        const bool goesDeeper = (c == shape_.opening) == shape_.opens;
        depth_ += goesDeeper ? 1 : -1;
        return depth_ == 0;
    }
    static TextPosition positionOf(LineIndex line, std::size_t i) {
        return {line, CharColumn(static_cast<std::int32_t>(i))};
    }

    const TextDocument& document_;
    const Shape shape_;
    const char brackets_[2];
    std::int32_t depth_ = 0;
};

}  // namespace

std::optional<TextPosition> BracketAt(const TextDocument& document, TextPosition cursor) {
    const TextPosition before{cursor.line, cursor.column - 1};
    if (IsBracket(document, cursor)) return cursor;
    return IsBracket(document, before) ? std::optional(before) : std::nullopt;
}

std::optional<TextPosition> MatchingBracket(const TextDocument& document, TextPosition bracket) {
    const std::optional<char> c = CharacterAt(document, bracket);
    const std::optional<Shape> shape = c ? ShapeOf(*c) : std::nullopt;
    if (!shape) return std::nullopt;
    Search search(document, *shape);
    return shape->opens ? search.forwards(bracket) : search.backwards(bracket);
}

}  // namespace vexa
