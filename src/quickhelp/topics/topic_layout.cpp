#include "quickhelp/topics/topic_layout.h"

#include <algorithm>

#include "quickhelp/topics/paragraph_layout.h"

namespace vexa::topics {
namespace {

constexpr int kWholeWidth = 32767;
constexpr int kNarrowest = 16;
// No region grows on when it is this high.
constexpr int kTallest = 1 << 28;

// Left and right edges of the columns of a row.
std::vector<Sides> ColumnsOf(const LayoutSource& source, const TableRow& row, int width) {
    const int whole = std::max(width, source.pixels(row.minimumWidth));
    const auto pixels = [&](int measure) {
        const int positive = std::max(0, measure);
        return row.isProportional ? static_cast<int>(static_cast<std::int64_t>(positive) * whole / kWholeWidth)
                                  : source.pixels(positive);
    };
    std::vector<Sides> columns;
    int x = 0;
    for (const TableColumn& column : row.columns) {
        const int left = x + pixels(column.gap);
        x = left + pixels(column.width);
        columns.push_back({left, std::max(x, left + kNarrowest)});
    }
    return columns;
}

// The cells of a row begin at one height; the paragraphs of a cell are stacked.
// The row is as high as its highest cell.
int LayOutRow(const LayoutSource& source, const TopicPart& part, int width, int top, LaidRegion& region) {
    const std::vector<Sides> columns = ColumnsOf(source, *part.row, width);
    std::vector<int> bottoms(columns.size(), top);
    for (std::size_t i = 0; i < part.paragraphCount; ++i) {
        const std::size_t number = part.firstParagraph + i;
        const auto column = static_cast<std::size_t>(source.topic.paragraphs[number].column);
        bottoms[column] =
            LayOutParagraph(source, static_cast<std::uint32_t>(number), columns[column], bottoms[column], region);
    }
    return bottoms.empty() ? top : *std::ranges::max_element(bottoms);
}

int LayOutPart(const LayoutSource& source, const TopicPart& part, int width, int top, LaidRegion& region) {
    if (part.row) return LayOutRow(source, part, width, top, region);
    for (std::size_t i = 0; i < part.paragraphCount && top < kTallest; ++i)
        top = LayOutParagraph(source, static_cast<std::uint32_t>(part.firstParagraph + i), {0, width}, top, region);
    return top;
}

LaidRegion LayOutParts(const LayoutSource& source, std::size_t first, std::size_t end, int width) {
    LaidRegion region;
    region.width = width;
    for (std::size_t i = first; i < end && region.height < kTallest; ++i)
        region.height = LayOutPart(source, source.topic.parts[i], width, region.height, region);
    return region;
}

}  // namespace

TopicLayout LayOutTopic(const LayoutSource& source, int width) {
    const Topic& topic = source.topic;
    const int usable = std::max(width, kNarrowest);
    const std::size_t fixed = std::min(topic.fixedParts, topic.parts.size());
    return {LayOutParts(source, 0, fixed, usable), LayOutParts(source, fixed, topic.parts.size(), usable)};
}

LaidRegion LayOutWhole(const LayoutSource& source, int width) {
    return LayOutParts(source, 0, source.topic.parts.size(), std::max(width, kNarrowest));
}

}  // namespace vexa::topics
