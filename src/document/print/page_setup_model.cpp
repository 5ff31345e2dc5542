#include "document/print/page_setup_model.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/strings.h"

namespace vexa {

namespace {

constexpr std::int32_t kHundredthsAnInch = 2540;

struct MarginField {
    std::string PageSetupModel::Margins::*typed;
    std::int32_t PrintMargins::*length;
};
constexpr MarginField kFields[] = {
    {&PageSetupModel::Margins::left, &PrintMargins::left},
    {&PageSetupModel::Margins::top, &PrintMargins::top},
    {&PageSetupModel::Margins::right, &PrintMargins::right},
    {&PageSetupModel::Margins::bottom, &PrintMargins::bottom},
};

// How many hundredths of a millimetre there are in the unit.
std::int32_t Size(LengthUnit unit) {
    return unit == LengthUnit::Inches ? kHundredthsAnInch : 100;
}

// Digits with at most one point, as hundredths; more than two digits after it are cut off.
std::optional<std::int64_t> HundredthsOf(std::string_view text) {
    const std::size_t point = std::min(text.find_first_of(".,"), text.size());
    const std::string_view whole = text.substr(0, point);
    std::string fraction(text.substr(std::min(point + 1, text.size())));
    const bool isNumber = std::ranges::all_of(whole, IsDigit) && std::ranges::all_of(fraction, IsDigit);
    if (!isNumber || (whole.empty() && fraction.empty())) return std::nullopt;
    fraction.resize(2, '0');
    return std::int64_t{LeadingInteger(whole)} * 100 + LeadingInteger(fraction);
}

}  // namespace

std::string_view NameOf(LengthUnit unit) {
    return unit == LengthUnit::Inches ? "inches" : "millimeters";
}

std::string ShownLength(std::int32_t hundredths, LengthUnit unit) {
    const std::int32_t shown = (hundredths * 100 + Size(unit) / 2) / Size(unit);
    std::string text = std::to_string(shown / 100);
    const std::string fraction = std::to_string(100 + shown % 100).substr(1);
    if (fraction != "00") text += '.' + fraction;
    if (fraction != "00" && fraction.back() == '0') text.pop_back();
    return text;
}

std::optional<std::int32_t> TypedLength(std::string_view typed, LengthUnit unit) {
    const std::optional<std::int64_t> number = HundredthsOf(TrimBlanks(typed));
    if (!number) return std::nullopt;
    const std::int64_t length = (*number * Size(unit) + 50) / 100;
    if (length > PrintOptions::kWidestMargin) return std::nullopt;
    return static_cast<std::int32_t>(length);
}

PageSetupModel::PageSetupModel(const PrintOptions& options, LengthUnit shownUnit)
    : unit(shownUnit), colours(options.colours), lineNumbers(options.lineNumbers), header(options.header) {
    for (const MarginField& field : kFields)
        margins.*field.typed = ShownLength(options.margins.*field.length, unit);
}

std::optional<std::string PageSetupModel::Margins::*> PageSetupModel::badMargin() const {
    for (const MarginField& field : kFields) {
        if (!TypedLength(margins.*field.typed, unit)) return field.typed;
    }
    return std::nullopt;
}

std::string PageSetupModel::refusal() const {
    return FillText(TextId::BadMargin, {ShownLength(PrintOptions::kWidestMargin, unit), NameOf(unit)});
}

void PageSetupModel::update(PrintOptions& options) const {
    options.colours = colours;
    options.lineNumbers = lineNumbers;
    options.header = header;
    for (const MarginField& field : kFields) {
        std::int32_t& length = options.margins.*field.length;
        const std::string& typed = margins.*field.typed;
        if (typed != ShownLength(length, unit)) length = TypedLength(typed, unit).value_or(length);
    }
}

}  // namespace vexa
