#include "ui/print/print_paper.h"

#include <algorithm>

namespace vexa {

namespace {

constexpr std::int64_t kHundredthsAnInch = 2540;  // of a millimetre

std::int32_t Dots(std::int32_t hundredths, std::int32_t dotsPerInch) {
    return static_cast<std::int32_t>((std::int64_t{hundredths} * dotsPerInch + kHundredthsAnInch / 2) /
                                     kHundredthsAnInch);
}

}  // namespace

DotArea TextAreaOf(const Paper& paper, const PrintMargins& margins) {
    const auto x = [&paper](std::int32_t onSheet) {
        return std::clamp(onSheet - paper.reachedLeft, 0, paper.reachedWidth);
    };
    const auto y = [&paper](std::int32_t onSheet) {
        return std::clamp(onSheet - paper.reachedTop, 0, paper.reachedHeight);
    };
    DotArea area{x(Dots(margins.left, paper.dotsPerInchX)), y(Dots(margins.top, paper.dotsPerInchY)),
                 x(paper.width - Dots(margins.right, paper.dotsPerInchX)),
                 y(paper.height - Dots(margins.bottom, paper.dotsPerInchY))};
    area.right = std::max(area.right, area.left);
    area.bottom = std::max(area.bottom, area.top);
    return area;
}

}  // namespace vexa
