#include "ui/print/document_pages.h"

namespace vexa {

void DocumentPages::layOut(const PagePainter& painter, const PrintLook& look, PrintArea area) {
    painter_ = &painter;
    layout_.emplace(document_, PrintLayout::Request{.area = area,
                                                    .page = painter.grid(),
                                                    .options = look.options,
                                                    .heading = {document_.fullPath(), Now()},
                                                    .highlighting = look.colours.isHighlightingOn()});
}

}  // namespace vexa
