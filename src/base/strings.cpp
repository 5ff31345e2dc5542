#include "base/strings.h"

#include <algorithm>
#include <array>

namespace vexa {

namespace {

struct Text {
    TextId id;
    std::string_view text;
};

consteval auto SortedTexts() {
    auto texts = std::to_array<Text>({
#define VEXA_TEXT(name, number, text) {TextId::name, text},
#define VEXA_UNNUMBERED_TEXT(name, text) VEXA_TEXT(name, 0, text)
#include "base/strings.def"
#undef VEXA_TEXT
#undef VEXA_UNNUMBERED_TEXT
    });
    std::ranges::sort(texts, {}, &Text::id);
    return texts;
}

constexpr auto kTexts = SortedTexts();
static_assert(std::ranges::adjacent_find(kTexts, {}, &Text::id) == kTexts.end(), "two texts have one number");

}  // namespace

std::string_view LoadText(TextId id) {
    const auto text = std::ranges::lower_bound(kTexts, id, {}, &Text::id);
    return text != kTexts.end() && text->id == id ? text->text : std::string_view();
}

std::string FillText(std::string_view format, std::initializer_list<std::string_view> arguments) {
    std::string filled;
    const std::string_view* argument = arguments.begin();
    for (std::size_t i = 0; i < format.size(); ++i) {
        const std::string_view next = format.substr(i, 2);
        if (next == "%s" || next == "%d") {
            if (argument != arguments.end()) filled += *argument++;
            ++i;
        } else if (next == "%p") {
            if (argument == arguments.begin() || argument[-1] != "1") filled += 's';
            ++i;
        } else if (next == "%%") {
            filled += next;
            ++i;
        } else {
            filled += format[i];
        }
    }
    return filled;
}

std::string FillText(TextId id, std::initializer_list<std::string_view> arguments) {
    return FillText(LoadText(id), arguments);
}

std::string BreakLongWords(std::string_view text, std::size_t longest) {
    std::string broken;
    std::size_t length = 0;
    for (const char c : text) {
        const bool ends = c == ' ' || c == '\n';
        if (length == longest && !ends) broken += '\n';
        length = ends ? 0 : length % longest + 1;
        broken += c;
    }
    return broken;
}

}  // namespace vexa
