// The files that other programs want opened: other instances by the hand-off file, any program by DDE or by dropping
// them. They wait until the editor is free: nothing is opened, and no box shown, in the middle of another program's
// call or behind a dialog that waits for its answer.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "base/notices.h"
#include "shell/file_opening.h"
#include "shell/hand_off.h"

namespace vexa {

// What opening such files asks of the main window.
class OutsideFrame : public DocumentFrame {
  public:
    // False while a dialog waits for its answer: what it asks about must not change meanwhile.
    virtual bool isFree() const = 0;
    // Has the files that wait opened as soon as what runs now has come to its end, by openWaiting().
    virtual void openWaitingSoon() = 0;
    // The document of a file, the latest of several; none when no window shows it.
    virtual const TextDocument* documentOf(const std::string& path) const = 0;
};

class OutsideOpens {
  public:
    OutsideOpens(FileOpening& opening, OutsideFrame& frame, Notices& notices)
        : opening_(opening), frame_(frame), notices_(notices) {}

    // For the broadcast message of another instance, with the time at which it was posted.
    void receiveHandOff(std::uint32_t postedAt);
    // True when the execute string is the editor's own and its file will be opened.
    bool executeDde(std::string_view text);
    void add(FileAtLine file);
    // Opens what waits, one after the other, if the editor is free. What could not be found is told once, however often
    // it was missing.
    void openWaiting();
    // Ends the start that waits for this document.
    void documentCloses(const TextDocument& document) { inbox_.waited().closed(document); }

  private:
    bool hasNext() const { return frame_.isFree() && !waiting_.empty(); }
    void tellMissing();
    void openNext();

    FileOpening& opening_;
    OutsideFrame& frame_;
    Notices& notices_;
    HandOffInbox inbox_;
    std::deque<FileAtLine> waiting_;
    bool isFileMissing_ = false;
    bool isTelling_ = false;  // the box that says so is open
};

// The file of a DDE execute string of the form [open("file")]; what follows the closing quote is not looked at. None
// for other strings.
std::optional<std::string> FileOfDdeExecute(std::string_view text);

}  // namespace vexa
