// Automatic backup: modified documents are copied into the backup directory once their changes are older than the
// interval. The documents' own files are never touched.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/editor_options.h"
#include "base/notices.h"
#include "document/text/text_document.h"

namespace vexa {

// What the check asks of the main window.
class BackupFrame {
  public:
    virtual ~BackupFrame() = default;
    virtual bool isBusy() const = 0;
    // The documents that are open at this moment, in the order of their windows.
    virtual std::vector<TextDocument*> openDocuments() const = 0;
};

class AutoBackup {
  public:
    using Clock = std::int64_t (*)();  // seconds

    // The directory is given without "\" at its end.
    AutoBackup(BackupFrame& frame, const EditorOptions& options, std::string directory, Notices& notices, Clock clock)
        : frame_(frame), options_(options), directory_(std::move(directory)), notices_(notices), clock_(clock) {}

    // From when on a document's interval counts: the last backup, or the first time that it is asked for a modified
    // document after that. Before that it is now.
    std::int64_t BackupTime(TextDocument& document) const;

    // Copies a modified document into the backup directory, under its base name, over an older copy. Documents of one
    // base name share that backup: the latest has it, and what it held of another document moves to a name with a mark
    // of that document's directory. True when the copy was written whole; the older one stays otherwise, whosever it
    // is. Either way the next is due after another interval.
    bool BackupDocument(TextDocument& document);

    // Backs up what is due; called by a timer several times a minute. Messages run in between, so documents may close.
    void CheckBackups();

  private:
    bool isDue(TextDocument& document) const;
    bool isOpen(const TextDocument* document) const;
    bool writeCopy(TextDocument& document) const;
    // False when another document's backup is in the way and could not be moved.
    bool keepOther(const TextDocument& document);

    BackupFrame& frame_;
    const EditorOptions& options_;
    const std::string directory_;
    std::map<std::string, std::string> owners_;  // by base name: whose backup is there, as far as this session knows
    Notices& notices_;
    const Clock clock_;
    bool checking_ = false;
};

}  // namespace vexa
