// The model of the Search Results window: the lines that a search in files has found, and stepping through them.
#pragma once

#include <string>
#include <vector>

#include "external/stepped_list.h"
#include "search/files/file_search.h"

namespace vexa {

// A row is "file:line: text", the file without the folder that was searched.
class HitList : public SteppedList, public HitTaker {
  public:
    // Showing a match leaves it in the options as the last one.
    HitList(SearchedFiles& files, SearchOptions& options, Notices& notices)
        : SteppedList(files, notices), files_(files), options_(options) {}

    // Begins anew for a search, and shows the window.
    void begin(const FileSearchRequest& request);
    // Does not tell the window, which is told when some have come.
    bool take(const FileHit& hit) override;
    void end(const FileSearchCounts& counts, TextId outcome);
    void showNewRows();

    // What was searched for, and in how many lines it was found.
    const FileSearchRequest& request() const { return request_; }
    std::size_t hitCount() const { return hits_.size(); }
    std::size_t firstHit() const { return firstHit_; }
    // The line and its match that a row is about; none for a row that is about none.
    struct Hit {
        LineIndex line;
        LineMatch match;
        std::uint16_t shownAt;  // where the match begins in the row
    };
    const Hit* hitOf(std::size_t row) const;
    // The full name of the file that such a row is about.
    std::string pathOf(std::size_t row) const;
    // Shows the line of such a row; the view of its document, none when the file cannot be opened.
    EditView* open(std::size_t row);

    // Whether the user wants no more rows since the list was begun.
    bool stopAsked() const { return stopAsked_; }

    RowKind rowKind(std::size_t) const override { return RowKind::Plain; }
    RowPart highlight(std::size_t row) const override;
    void activateRow() override;
    void clearRows() override;
    void stopFilling() override { stopAsked_ = true; }

  protected:
    bool stopsAt(std::size_t row) override { return hitOf(row) != nullptr; }
    void showStop() override;
    TextId noMoreStops() const override { return TextId::NoMoreHits; }

  private:
    void showHit(std::size_t row);

    SearchedFiles& files_;
    SearchOptions& options_;
    FileSearchRequest request_;
    std::string prefix_;  // of the full names, with "\" at its end
    std::vector<Hit> hits_;
    std::size_t firstHit_ = 0;  // its row
    bool stopAsked_ = false;
};

}  // namespace vexa
