// The commands of searching in files, and the list of what was found.
#pragma once

#include <string>

#include "search/files/file_search_job.h"
#include "search/files/file_search_model.h"
#include "search/files/hit_replacement.h"
#include "shell/command_dispatcher.h"
#include "ui/frame/frame_lists.h"
#include "ui/frame/frame_timer.h"
#include "ui/frame/open_documents.h"
#include "ui/lists/list_window_holder.h"

namespace vexa {

class FileSearchCommands : private SearchedFiles, private FileSearcher {
  public:
    FileSearchCommands(OpenDocuments& documents, Application& application, FrameNotices& notices, FrameLists& lists);

    void registerCommands(CommandDispatcher& dispatcher);
    FileSearcher& searcher() { return *this; }
    // What the dialog begins with.
    FileSearchFields& fields() { return fields_; }
    // Searches a little while no message is there; false when nothing is left to be done.
    bool work() { return job_.work(); }
    // For a timer of the frame, given by its number; false when it is none of this. It serves while a dialog or a menu
    // has the messages.
    bool useTimer(UINT_PTR timer);

  private:
    void stop();
    void showResults();
    void replace();
    HitRows chosenRows() const;

    void searchFiles(const FileSearchRequest& request) override;
    bool openFileAtLine(const std::string& path, std::int32_t line) override;
    const TextDocument* documentOf(const std::string& path, std::uint64_t size) const override;
    std::string_view delimitersOf(const std::string& path) override;
    EditView* activeView() override;
    void refreshActive() override;

    OpenDocuments& documents_;
    Application& application_;
    FrameNotices& notices_;
    ListSteps& steps_;
    FrameTimer timer_;
    FileSearchFields fields_;
    HitList hits_;
    ListWindowHolder window_;
    FileSearchJob job_;
};

}  // namespace vexa
