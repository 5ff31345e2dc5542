#include "quickhelp/topics/topic_view.h"

#include <algorithm>
#include <cstdlib>

#include "base/ascii.h"

namespace vexa::topics {
namespace {

constexpr std::size_t kMostPages = 10'000;

int Share(int part, int whole, int length) {
    return whole <= 0 ? 0 : static_cast<int>(static_cast<std::int64_t>(part) * length / whole);
}

// A hotspot is given in pixels of its picture, which may be shown larger or smaller.
Box Scaled(const Box& part, Extent pixels, const Box& shown) {
    const int width = shown.right - shown.left;
    const int height = shown.bottom - shown.top;
    return {shown.left + Share(part.left, pixels.width, width), shown.top + Share(part.top, pixels.height, height),
            shown.left + Share(part.right, pixels.width, width), shown.top + Share(part.bottom, pixels.height, height)};
}

int DistanceTo(int from, int to, int value) {
    if (value < from) return from - value;
    return value >= to ? value - to + 1 : 0;
}

// Lines above and below count before those beside, which only cells of tables have.
const LaidLine* NearestLine(const LaidRegion& region, int x, int y) {
    const auto distance = [x, y](const LaidLine& line) {
        return std::pair(DistanceTo(line.box.top, line.box.bottom, y), DistanceTo(line.box.left, line.box.right, x));
    };
    const auto nearest = std::ranges::min_element(region.lines, {}, distance);
    return nearest == region.lines.end() ? nullptr : &*nearest;
}

std::string_view TextOf(const LayoutSource& source, const LaidRun& run, std::uint32_t length) {
    return std::string_view(source.topic.paragraphs[run.paragraph].text).substr(run.begin, length);
}

int XInRun(const LayoutSource& source, const LaidRun& run, std::uint32_t characters) {
    if (characters == 0) return run.box.left;
    if (characters >= run.length || run.picture >= 0) return run.box.right;
    return run.box.left + source.measure.width(source.file.font(run.font), TextOf(source, run, characters));
}

std::uint32_t CharactersUpTo(const LayoutSource& source, const LaidRun& run, int x) {
    std::uint32_t low = 0;
    std::uint32_t high = run.length;
    while (low < high) {
        const std::uint32_t middle = (low + high) / 2;
        const int centre = (XInRun(source, run, middle) + XInRun(source, run, middle + 1)) / 2;
        if (centre <= x) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

char Folded(char c, bool matchCase) {
    return matchCase ? c : LowerAscii(c);
}

std::size_t FindIn(std::string_view text, std::string_view wanted, std::size_t from, bool matchCase) {
    if (from > text.size()) return std::string_view::npos;
    const auto same = [matchCase](char a, char b) { return Folded(a, matchCase) == Folded(b, matchCase); };
    const auto found =
        std::search(text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), wanted.begin(), wanted.end(), same);
    return found == text.end() ? std::string_view::npos : static_cast<std::size_t>(found - text.begin());
}

void AppendPlain(std::string_view text, std::string& out) {
    for (const char c : text) {
        if (c == '\n') out += '\r';
        if (c != kPictureCharacter) out += c;
    }
}

// The lowest height above the end at which nothing is divided, and the end if there is none below the top.
int PageEnd(const LaidRegion& region, int top, int end) {
    int bottom = end;
    for (int last = 0; last != bottom;) {
        last = bottom;
        for (const LaidRun& run : region.runs) {
            if (run.box.top < bottom && run.box.bottom > bottom) bottom = run.box.top;
        }
    }
    return bottom > top ? bottom : end;
}

// Cells of one row stand in one line of the text.
std::string_view EndOf(const Topic& topic, std::uint32_t paragraph) {
    const bool isCell = paragraph + 1 < topic.paragraphs.size() &&
                        topic.paragraphs[paragraph + 1].column > topic.paragraphs[paragraph].column;
    return isCell ? "\t" : "\r\n";
}

}  // namespace

std::vector<LinkArea> LinkAreas(const LaidRegion& region, const Topic& topic) {
    std::vector<LinkArea> areas;
    for (const LaidRun& run : region.runs) {
        if (run.link >= 0) areas.push_back({run.box, run.link});
        if (run.picture < 0) continue;
        const PictureUse& picture = topic.pictures[static_cast<std::size_t>(run.picture)];
        for (const PictureLink& part : picture.parts)
            areas.push_back({Scaled(part.box, picture.pixels, run.box), part.link});
    }
    return areas;
}

// What stands later lies above, such as the parts of a picture that is a link itself.
std::optional<int> LinkAt(const std::vector<LinkArea>& areas, int x, int y) {
    const auto found =
        std::find_if(areas.rbegin(), areas.rend(), [x, y](const LinkArea& area) { return area.box.contains(x, y); });
    return found == areas.rend() ? std::nullopt : std::optional(found->link);
}

int NextLink(const std::vector<LinkArea>& areas, int link, bool forward) {
    if (areas.empty()) return -1;
    const auto isLink = [link](const LinkArea& area) { return area.link == link; };
    if (forward) {
        const auto last = std::find_if(areas.rbegin(), areas.rend(), isLink).base();
        return last == areas.begin() || last == areas.end() ? areas.front().link : last->link;
    }
    const auto first = std::ranges::find_if(areas, isLink);
    return first == areas.begin() || first == areas.end() ? areas.back().link : std::prev(first)->link;
}

TextPosition PositionAt(const LaidRegion& region, const LayoutSource& source, int x, int y) {
    const LaidLine* line = NearestLine(region, x, y);
    if (!line) return {};
    TextPosition position = {line->paragraph, line->begin};
    for (std::size_t i = line->firstRun; i < line->firstRun + line->runCount; ++i) {
        const LaidRun& run = region.runs[i];
        if (run.box.left <= x) position.character = run.begin + CharactersUpTo(source, run, x);
    }
    return position;
}

std::vector<Box> SelectionBoxes(const LaidRegion& region, const LayoutSource& source, TextPosition from,
                                TextPosition to) {
    std::vector<Box> boxes;
    for (const LaidLine& line : region.lines) {
        for (std::size_t i = line.firstRun; i < line.firstRun + line.runCount; ++i) {
            const LaidRun& run = region.runs[i];
            const TextPosition begin = std::max(from, {run.paragraph, run.begin});
            const TextPosition end = std::min(to, {run.paragraph, run.begin + run.length});
            if (begin >= end) continue;
            boxes.push_back({XInRun(source, run, begin.character - run.begin), line.box.top,
                             XInRun(source, run, end.character - run.begin), line.box.bottom});
        }
    }
    return boxes;
}

std::string TextBetween(const Topic& topic, TextPosition from, TextPosition to) {
    std::string out;
    for (std::uint32_t i = from.paragraph; i < topic.paragraphs.size() && i <= to.paragraph; ++i) {
        const std::string_view text = topic.paragraphs[i].text;
        const std::size_t begin = i == from.paragraph ? std::min<std::size_t>(from.character, text.size()) : 0;
        const std::size_t end = i == to.paragraph ? to.character : text.size();
        AppendPlain(text.substr(begin, end > begin ? end - begin : 0), out);
        if (i < to.paragraph) out += EndOf(topic, i);
    }
    return out;
}

std::optional<TextPosition> FindText(const Topic& topic, std::string_view text, TextPosition from, bool matchCase) {
    if (text.empty()) return std::nullopt;
    for (std::uint32_t i = from.paragraph; i < topic.paragraphs.size(); ++i) {
        const std::size_t start = i == from.paragraph ? from.character : 0;
        const std::size_t found = FindIn(topic.paragraphs[i].text, text, start, matchCase);
        if (found != std::string_view::npos) return TextPosition{i, static_cast<std::uint32_t>(found)};
    }
    return std::nullopt;
}

std::optional<int> TopOf(const LaidRegion& region, TextPosition position) {
    std::optional<int> top;
    for (const LaidLine& line : region.lines) {
        if (line.paragraph == position.paragraph && line.begin <= position.character) top = line.box.top;
    }
    return top;
}

std::vector<int> PageTops(const LaidRegion& region, int height) {
    std::vector<int> tops = {0};
    while (tops.back() < region.height && tops.size() <= kMostPages) {
        const int top = tops.back();
        const int bottom = region.height - top <= height ? region.height : PageEnd(region, top, top + height);
        tops.push_back(bottom);
    }
    return tops;
}

std::uint32_t ParagraphAt(const Topic& topic, std::uint32_t offset) {
    const auto behind = std::ranges::upper_bound(topic.paragraphs, offset, {}, &Paragraph::offset);
    return behind == topic.paragraphs.begin() ? 0 : static_cast<std::uint32_t>(behind - topic.paragraphs.begin()) - 1;
}

}  // namespace vexa::topics
