// Opening, saving and closing one document: what is written when, and what the user is asked and told.
#pragma once

#include <optional>
#include <string>

#include "base/notices.h"
#include "document/text/text_document.h"
#include "language/profile_list.h"
#include "shell/file_saving.h"

namespace vexa {

// What the file commands ask of the windows.
class FileQuestions {
  public:
    virtual ~FileQuestions() = default;
    // The path that the user gives a document to be saved under; none when the question is cancelled.
    virtual std::optional<std::string> askSaveName(const TextDocument& document) = 0;
    // The document's name has changed.
    virtual void nameChanged(const TextDocument& document) = 0;
};

class FileCommands {
  public:
    FileCommands(Notices& notices, FileQuestions& questions, ProfileList& profiles);

    // Makes a document an untitled one (no path), an empty one of that name (nothing there yet), or the file's text.
    // False when the file cannot be loaded, which the user has then been told; the document must be discarded.
    bool open(TextDocument& document, const std::optional<std::string>& path);
    // True when the document's text is on the disk.
    bool save(TextDocument& document);
    bool saveAs(TextDocument& document);
    // Gives a document the profile of its name, as that profile now is.
    void takeProfile(TextDocument& document) { document.setProfile(profiles_.profileFor(document.fullPath())); }
    // Asks about unsaved changes; true when the document may be closed. Changes that the user gives up stay until then:
    // another document may still be kept open, and this one with it.
    bool queryClose(TextDocument& document);

  private:
    bool writeUnder(TextDocument& document, const std::string& path);
    void refuseTruncated(const TextDocument& document);

    Notices& notices_;
    FileSaving saving_;
    FileQuestions& questions_;
    ProfileList& profiles_;
};

}  // namespace vexa
