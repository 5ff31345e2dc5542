// What the windows of all lists ask of the frame, and the list that the user steps through.
#pragma once

#include "external/stepped_list.h"
#include "ui/frame/open_documents.h"
#include "ui/frame/option_commands.h"
#include "ui/lists/list_window.h"

namespace vexa {

class FrameLists : public ListHost {
  public:
    FrameLists(OpenDocuments& documents, FrameNotices& notices, OptionCommands& options)
        : documents_(documents), notices_(notices), options_(options) {}

    ListSteps& steps() { return steps_; }

    void userActs() override;
    void zoom(std::int32_t steps) override { options_.zoom(steps); }

  private:
    OpenDocuments& documents_;
    FrameNotices& notices_;
    OptionCommands& options_;
    ListSteps steps_;
};

}  // namespace vexa
