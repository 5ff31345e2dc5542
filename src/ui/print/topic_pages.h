// The pages of a topic of help: laid out for the paper between the margins of the editor's own printing, with its
// header. A line or picture that does not fit at the end of a page begins the next one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "quickhelp/topics/help_browser.h"
#include "ui/help/topic_painter.h"
#include "ui/print/print_job.h"

namespace vexa {

class TopicPages : public PrintedPages {
  public:
    explicit TopicPages(const topics::ShownTopic& topic);

    std::string name() const override { return heading_.name; }
    void layOut(const PagePainter& painter, const PrintLook& look, PrintArea area) override;
    std::int32_t count() const override { return static_cast<std::int32_t>(tops_.size()) - 1; }
    void paint(std::int32_t number) override;

  private:
    topics::LayoutSource source() { return {*topic_.file, *topic_.topic, *device_}; }

    const topics::ShownTopic topic_;
    PrintHeading heading_;
    const PagePainter* painter_ = nullptr;
    std::optional<TopicDevice> device_;
    TopicColours colours_;
    topics::LaidRegion region_;
    std::vector<int> tops_ = {0};  // of the pages in the region, and its end
    bool hasHeader_ = false;
};

}  // namespace vexa
