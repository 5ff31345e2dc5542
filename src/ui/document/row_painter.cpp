#include "ui/document/row_painter.h"

#include <algorithm>

namespace vexa {

void RowPainter::paint(HDC window, int top, int width, const ViewRow& row) {
    const HDC dc = picture_.prepare(window, width, cellHeight());
    if (!dc) return;
    const Selected selected(dc, font_.font.get());
    widths_.assign(row.cells.size(), cellWidth());
    for (const CellRun& run : row.runs) {
        const bool isLast = &run == &row.runs.back();
        drawRun(dc, run, isLast ? width : (run.start + run.length) * cellWidth(), row.cells);
    }
    picture_.show(window, 0, top, width, cellHeight());
}

void RowPainter::drawRun(HDC dc, const CellRun& run, int right, const std::string& cells) {
    const auto start = std::min(static_cast<std::size_t>(run.start), cells.size());
    const auto length = std::min(static_cast<std::size_t>(run.length), cells.size() - start);
    const int left = run.start * cellWidth();
    const RECT area = {left, 0, right, cellHeight()};
    SetTextColor(dc, colours_.colourOf(run.text));
    SetBkColor(dc, colours_.colourOf(run.background));
    ExtTextOutA(dc, left, 0, ETO_OPAQUE | ETO_CLIPPED, &area, cells.data() + start, static_cast<UINT>(length),
                widths_.data());
}

}  // namespace vexa
