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

    HDC dc() const { return dc_; }
    int dotsPerInch() const { return dotsPerInch_; }
    PageGrid grid() const;
    // Between the margins, and below the header where there is one.
    DotArea textArea(bool hasHeader) const;
    // Each draws on the page that the device is at, and nothing outside the margins. They leave the device as it was.
    void paint(const PrintedPage& page, const PrintLayout& layout) const;
    void paintHeader(const std::string& text) const;

  private:
    // One for each way in which a PrintStyle differs from plain text.
    enum Face : std::size_t { kPlain, kBold, kItalic, kFaceCount };

    static Face FaceOf(const PrintStyle& style);
    void paintRow(const PrintedRow& row, std::int32_t onPage, const PrintLayout& layout) const;
    void paintText(std::string_view text, std::int32_t row, std::int32_t column, const PrintStyle& style) const;
    int top(std::int32_t row) const { return area_.top + row * cellHeight_; }
    int left(std::int32_t column) const { return area_.left + column * cellWidth_; }

    HDC dc_;
    int dotsPerInch_;
    DotArea area_;
    std::array<PaneFont, kFaceCount> fonts_;
    int cellWidth_;
    int cellHeight_;
    std::vector<INT> widths_;  // one cell each: keeps every character in its cell whatever the font says
    std::array<PrintStyle, kElementCount> styles_;
};

// What a job prints. It lives as long as the job, and so does the painter that it is laid out for.
class PrintedPages {
  public:
    virtual ~PrintedPages() = default;
    virtual std::string name() const = 0;
    // Comes first.
    virtual void layOut(const PagePainter& painter, const PrintLook& look, PrintArea area) = 0;
    virtual std::int32_t count() const = 0;
    // Draws a page, counted from 1, on the one that the device is at.
    virtual void paint(std::int32_t number) = 0;
};

// A printer's device context as the target of a job.
class PrinterTarget : public PrintTarget {
  public:
    PrinterTarget(HDC printer, PrintedPages& pages) : printer_(printer), pages_(pages) {}

    bool beginJob() override;
    bool printPage(std::int32_t number) override;
    bool endJob() override { return EndDoc(printer_) > 0; }
    void abortJob() override { AbortDoc(printer_); }

  private:
    HDC printer_;
    PrintedPages& pages_;
};

// Keeps what is set on a device and puts it back. A printer forgets it with every page.
class DrawingState {
  public:
    explicit DrawingState(HDC dc) : dc_(dc), saved_(SaveDC(dc)) {}
    ~DrawingState() { RestoreDC(dc_, saved_); }
    DrawingState(const DrawingState&) = delete;
    DrawingState& operator=(const DrawingState&) = delete;

  private:
    HDC dc_;
    int saved_;
};

// Date and time for a header, as the user has set them in the system.
std::string Now();

}  // namespace vexa
