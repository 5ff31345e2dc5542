#include "base/strings.h"

#include <algorithm>
#include <array>

namespace vexa {

namespace {

struct Text {
    std::uint16_t number;
    std::string_view text;
};

consteval auto SortedTexts() {
    std::array texts{
#define VEXA_TEXT(number, text) Text{number, text},
#include "base/strings.def"
#undef VEXA_TEXT
    };
    std::ranges::sort(texts, {}, &Text::number);
    return texts;
}

constexpr auto kTexts = SortedTexts();
static_assert(std::ranges::adjacent_find(kTexts, {}, &Text::number) == kTexts.end(), "two texts have one number");

}  // namespace

std::string_view LoadText(std::uint16_t number) {
    const auto text = std::ranges::lower_bound(kTexts, number, {}, &Text::number);
    return text != kTexts.end() && text->number == number ? text->text : std::string_view();
}

std::string FillText(std::string_view format, std::initializer_list<std::string_view> arguments) {
    std::string filled;
    const std::string_view* argument = arguments.begin();
    for (std::size_t i = 0; i < format.size(); ++i) {
        const std::string_view place = format.substr(i, 2);
        if (place == "%s" || place == "%d") {
            if (argument != arguments.end()) filled += *argument++;
            ++i;
        } else if (place == "%%") {
            filled += place;
            ++i;
        } else {
            filled += format[i];
        }
    }
    return filled;
}

std::string FillText(std::uint16_t number, std::initializer_list<std::string_view> arguments) {
    return FillText(LoadText(number), arguments);
}

}  // namespace vexa
