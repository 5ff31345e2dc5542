// The pages of a document, or of what is marked in it.
#pragma once

#include <optional>
#include <string>

#include "ui/print/print_job.h"

namespace vexa {

class DocumentPages : public PrintedPages {
  public:
    // The document must not change as long as this lives.
    explicit DocumentPages(const TextDocument& document) : document_(document) {}

    std::string name() const override { return document_.baseName(); }
    void layOut(const PagePainter& painter, const PrintLook& look, PrintArea area) override;
    std::int32_t count() const override { return layout_->pageCount(); }
    void paint(std::int32_t number) override { painter_->paint(layout_->page(number), *layout_); }

  private:
    const TextDocument& document_;
    const PagePainter* painter_ = nullptr;
    std::optional<PrintLayout> layout_;
};

}  // namespace vexa
