// The rules of the "Page Setup" dialog: what its controls show, and what "Update" accepts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/print/print_options.h"

namespace vexa {

enum class LengthUnit { Millimetres, Inches };

std::string_view NameOf(LengthUnit unit);
// A length in hundredths of a millimetre as it is shown: at most two digits after the point, and none that say
// nothing.
std::string ShownLength(std::int32_t hundredths, LengthUnit unit);
// The length that was typed, with a point or a comma; none for what is no length or lies outside what a margin may be.
std::optional<std::int32_t> TypedLength(std::string_view typed, LengthUnit unit);

// The dialog's controls as values: margins are as typed, so nothing is refused before "Update".
struct PageSetupModel {
    PageSetupModel(const PrintOptions& options, LengthUnit unit);

    struct Margins {
        std::string left;
        std::string top;
        std::string right;
        std::string bottom;
    };

    LengthUnit unit;
    Margins margins;
    bool colours;
    bool lineNumbers;
    bool header;

    // The margin that "Update" refuses first; none when all are good.
    std::optional<std::string Margins::*> badMargin() const;
    // Why a margin is refused.
    std::string refusal() const;
    // Stores the controls, whose margins are good. A margin that was not touched stays to the hundredth.
    void update(PrintOptions& options) const;
};

}  // namespace vexa
