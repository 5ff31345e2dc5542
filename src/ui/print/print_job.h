// Draws printed pages with the system's means, on printers and on anything else that can be drawn on.
#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <vector>

#include "document/print/print_layout.h"
#include "document/print/print_run.h"
#include "document/print/print_style.h"
#include "ui/document/pane_font.h"
#include "ui/print/print_paper.h"

namespace vexa {

// The sheet of a printer.
Paper PaperOf(HDC printer);

// How text looks that is printed.
struct PrintLook {
    FontDetails font;  // in the size that it has on the screen
    ColourTable colours;
    PrintOptions options;
};

class PagePainter {
  public:
    PagePainter(HDC dc, const Paper& paper, const PrintLook& look);

    PageGrid grid() const;
    // Draws on the page that the device is at, and nothing outside the margins. Leaves the device as it was.
    void paint(const PrintedPage& page, const PrintLayout& layout) const;

  private:
    // One for each way in which a PrintStyle differs from plain text.
    enum Face : std::size_t { kPlain, kBold, kItalic, kFaceCount };

    static Face FaceOf(const PrintStyle& style);
    void paintHeader(const std::string& text) const;
    void paintRow(const PrintedRow& row, std::int32_t onPage, const PrintLayout& layout) const;
    void paintText(std::string_view text, std::int32_t row, std::int32_t column, const PrintStyle& style) const;
    int top(std::int32_t row) const { return area_.top + row * cellHeight_; }
    int left(std::int32_t column) const { return area_.left + column * cellWidth_; }

    HDC dc_;
    DotArea area_;
    std::array<PaneFont, kFaceCount> fonts_;
    int cellWidth_;
    int cellHeight_;
    std::vector<INT> widths_;  // one cell each: keeps every character in its cell whatever the font says
    std::array<PrintStyle, kElementCount> styles_;
};

// A printer's device context as the target of a job.
class PrinterTarget : public PrintTarget {
  public:
    PrinterTarget(HDC printer, std::string jobName, const PagePainter& painter, const PrintLayout& layout)
        : printer_(printer), jobName_(std::move(jobName)), painter_(painter), layout_(layout) {}

    bool beginJob() override;
    bool printPage(const PrintedPage& page) override;
    bool endJob() override { return EndDoc(printer_) > 0; }
    void abortJob() override { AbortDoc(printer_); }

  private:
    HDC printer_;
    const std::string jobName_;
    const PagePainter& painter_;
    const PrintLayout& layout_;
};

}  // namespace vexa
