#include "quickhelp/topics/paragraph_format.h"

#include <algorithm>

namespace vexa::topics {
namespace {

// The widest measure that is believed, either way.
constexpr int kWidest = 2000;
constexpr int kMostTabs = 256;
constexpr int kHasKind = 0x4000;

int Believable(int measure) {
    return std::clamp(measure, -kWidest, kWidest);
}

Border ReadBorder(ByteReader& in) {
    const unsigned bits = in.u8();
    const bool isBox = (bits & 1) != 0;
    in.skip(2);
    return {isBox || (bits & 2) != 0,    isBox || (bits & 4) != 0, isBox || (bits & 8) != 0,
            isBox || (bits & 0x10) != 0, (bits & 0x20) != 0,       (bits & 0x40) != 0};
}

TabStop ReadTab(ByteReader& in) {
    const int bits = in.packedUshort();
    const int kind = (bits & kHasKind) != 0 ? in.packedUshort() : 0;
    return {bits & (kHasKind - 1), static_cast<TabKind>(kind >= 0 && kind <= 2 ? kind : 0)};
}

void ReadTabs(ByteReader& in, std::vector<TabStop>& tabs) {
    const int count = in.packedShort();
    for (int i = 0; i < count && !in.failed(); ++i) {
        const TabStop tab = ReadTab(in);
        if (i >= kMostTabs || in.failed()) continue;
        tabs.insert(std::ranges::upper_bound(tabs, tab.position, {}, &TabStop::position), tab);
    }
}

// Measures that are there only when their bit is set, in the order of the file.
struct Measure {
    unsigned bit;
    int ParagraphFormat::*field;
};

constexpr Measure kMeasures[] = {
    {0x0002, &ParagraphFormat::above}, {0x0004, &ParagraphFormat::below}, {0x0008, &ParagraphFormat::lineSpacing},
    {0x0010, &ParagraphFormat::left},  {0x0020, &ParagraphFormat::right}, {0x0040, &ParagraphFormat::firstLine},
};

}  // namespace

ParagraphFormat ReadParagraphFormat(ByteReader& in) {
    ParagraphFormat format;
    in.packedLong();
    in.skip(2);
    const unsigned bits = in.u16();
    if (bits & 0x0001) in.packedLong();
    for (const Measure& measure : kMeasures) {
        if (bits & measure.bit) format.*measure.field = Believable(in.packedShort());
    }
    if (bits & 0x0100) format.border = ReadBorder(in);
    if (bits & 0x0200) ReadTabs(in, format.tabs);
    if (bits & 0x0400) format.alignment = Alignment::Right;
    if (bits & 0x0800) format.alignment = Alignment::Centre;
    format.wraps = (bits & 0x1000) == 0;
    return format;
}

}  // namespace vexa::topics
