#include "ui/print/topic_pages.h"

#include "framework/gdi.h"
#include "quickhelp/topics/topic_view.h"

namespace vexa {
namespace {

// On white paper.
TopicColours PaperColours(bool withColours) {
    TopicColours colours{.text = RGB(0, 0, 0), .background = RGB(255, 255, 255)};
    if (withColours) return colours;
    colours.link = colours.text;
    colours.areAuthors = false;
    return colours;
}

}  // namespace

TopicPages::TopicPages(const topics::ShownTopic& topic) : topic_(topic), heading_{topic.caption(), Now()} {}

void TopicPages::layOut(const PagePainter& painter, const PrintLook& look, PrintArea) {
    painter_ = &painter;
    device_.emplace(painter.dc());
    device_->begin(topic_.file, painter.dotsPerInch());
    colours_ = PaperColours(look.options.colours);
    hasHeader_ = look.options.header;
    const DotArea area = painter.textArea(hasHeader_);
    region_ = topics::LayOutWhole(source(), area.right - area.left);
    tops_ = topics::PageTops(region_, area.bottom - area.top);
}

void TopicPages::paint(std::int32_t number) {
    if (hasHeader_) painter_->paintHeader(HeaderText(heading_, number, count(), painter_->grid().columns));
    const DotArea area = painter_->textArea(hasHeader_);
    const int top = tops_[static_cast<std::size_t>(number) - 1];
    const int bottom = tops_[static_cast<std::size_t>(number)];
    const RECT visible = {area.left, area.top, area.right, area.top + bottom - top};
    const DrawingState saved(painter_->dc());
    IntersectClipRect(painter_->dc(), visible.left, visible.top, visible.right, visible.bottom);
    const topics::LayoutSource laid = source();
    TopicPainter(painter_->dc(), laid, *device_, colours_).draw(region_, {area.left, area.top - top}, visible);
}

}  // namespace vexa
