#include "ui/print/print_job.h"

#include <algorithm>

#include "framework/gdi.h"

namespace vexa {
namespace {

constexpr PrintStyle kHeaderStyle{.colour = {}, .isBold = true, .isItalic = false};
constexpr PrintStyle kNumberStyle{.colour = {96, 96, 96}};
constexpr int kBoldWeight = 700;

std::array<PrintStyle, kElementCount> StylesOf(const PrintLook& look) {
    std::array<PrintStyle, kElementCount> styles;
    for (std::size_t i = 0; i < styles.size(); ++i)
        styles[i] = PrintStyleOf(static_cast<ColourElement>(i), look.colours, look.options.colours);
    return styles;
}

PaneFont FontFor(HDC dc, FontDetails details, bool isBold, bool isItalic) {
    if (isBold) details.Weight = std::max(details.Weight, kBoldWeight);
    details.Italic = details.Italic || isItalic;
    return MakePaperFont(details, dc);
}

std::string RightAligned(std::int32_t number, std::int32_t width) {
    std::string digits = std::to_string(number);
    digits.insert(0, static_cast<std::size_t>(std::max(width - static_cast<std::int32_t>(digits.size()), 0)), ' ');
    return digits;
}

void SetUpForText(HDC dc) {
    SetBkMode(dc, TRANSPARENT);
    SetTextAlign(dc, TA_LEFT | TA_TOP | TA_NOUPDATECP);
}

}  // namespace

Paper PaperOf(HDC printer) {
    const auto value = [printer](int index) { return static_cast<std::int32_t>(GetDeviceCaps(printer, index)); };
    return {.dotsPerInchX = value(LOGPIXELSX),
            .dotsPerInchY = value(LOGPIXELSY),
            .width = value(PHYSICALWIDTH),
            .height = value(PHYSICALHEIGHT),
            .reachedLeft = value(PHYSICALOFFSETX),
            .reachedTop = value(PHYSICALOFFSETY),
            .reachedWidth = value(HORZRES),
            .reachedHeight = value(VERTRES)};
}

// ---- pages -------------------------------------------------------------------------------------------------------

PagePainter::PagePainter(HDC dc, const Paper& paper, const PrintLook& look)
    : dc_(dc),
      dotsPerInch_(paper.dotsPerInchY),
      area_(TextAreaOf(paper, look.options.margins)),
      fonts_{FontFor(dc, look.font, false, false), FontFor(dc, look.font, true, false),
             FontFor(dc, look.font, false, true)},
      cellWidth_(fonts_[kPlain].cellWidth),
      cellHeight_(fonts_[kPlain].cellHeight),
      widths_(static_cast<std::size_t>(std::max(grid().columns, 0)), cellWidth_),
      styles_(StylesOf(look)) {}

PageGrid PagePainter::grid() const {
    return {(area_.bottom - area_.top) / cellHeight_, (area_.right - area_.left) / cellWidth_};
}

DotArea PagePainter::textArea(bool hasHeader) const {
    DotArea area = area_;
    if (hasHeader) area.top += kHeaderRows * cellHeight_;
    return area;
}

void PagePainter::paint(const PrintedPage& page, const PrintLayout& layout) const {
    const DrawingState saved(dc_);
    SetUpForText(dc_);
    const bool hasHeader = !page.header.empty();
    if (hasHeader) paintHeader(page.header);
    std::int32_t onPage = hasHeader ? kHeaderRows : 0;
    for (const PrintedRow& row : page.rows)
        paintRow(row, onPage++, layout);
}

// A line under the text divides it from the document.
void PagePainter::paintHeader(const std::string& text) const {
    const DrawingState saved(dc_);
    SetUpForText(dc_);
    paintText(text, 0, 0, kHeaderStyle);
    const int thickness = std::max(cellHeight_ / 16, 1);
    const int middle = top(1) + cellHeight_ / 3;
    const RECT line = {area_.left, middle, left(grid().columns), middle + thickness};
    FillColour(dc_, line, RGB(0, 0, 0));
}

void PagePainter::paintRow(const PrintedRow& row, std::int32_t onPage, const PrintLayout& layout) const {
    if (row.lineNumber) paintText(RightAligned(*row.lineNumber, layout.numberDigits()), onPage, 0, kNumberStyle);
    const std::string_view cells = row.text.cells;
    for (const CellRun& run : row.text.runs) {
        const auto start = std::min(static_cast<std::size_t>(run.start), cells.size());
        paintText(cells.substr(start, static_cast<std::size_t>(run.length)), onPage, layout.textColumn() + run.start,
                  styles_[static_cast<std::size_t>(run.text)]);
    }
}

void PagePainter::paintText(std::string_view text, std::int32_t row, std::int32_t column,
                            const PrintStyle& style) const {
    if (text.empty()) return;
    const Selected selected(dc_, fonts_[FaceOf(style)].font.get());
    const RECT within = {area_.left, top(row), area_.right, top(row + 1)};
    SetTextColor(dc_, RGB(style.colour.red, style.colour.green, style.colour.blue));
    const auto length = std::min(text.size(), widths_.size());
    ExtTextOutA(dc_, left(column), top(row), ETO_CLIPPED, &within, text.data(), static_cast<UINT>(length),
                widths_.data());
}

PagePainter::Face PagePainter::FaceOf(const PrintStyle& style) {
    if (style.isBold) return kBold;
    return style.isItalic ? kItalic : kPlain;
}

// ---- jobs --------------------------------------------------------------------------------------------------------

bool PrinterTarget::beginJob() {
    const std::string name = pages_.name();
    DOCINFOA job{};
    job.cbSize = sizeof(job);
    job.lpszDocName = name.c_str();
    return StartDocA(printer_, &job) > 0;
}

bool PrinterTarget::printPage(std::int32_t number) {
    if (StartPage(printer_) <= 0) return false;
    pages_.paint(number);
    return EndPage(printer_) > 0;
}

std::string Now() {
    char date[64] = "";
    char time[64] = "";
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date, sizeof(date));
    GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, time, sizeof(time));
    return std::string(date) + ' ' + time;
}

}  // namespace vexa
