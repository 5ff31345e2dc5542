// The rules of the "Edit File Extension" dialog: the fields of one profile, its list of keywords, and what "Update"
// accepts and writes.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/notices.h"
#include "language/keyword_file.h"
#include "language/profile_list.h"

namespace vexa {

// Texts are as typed. The fields cut what is longer than the profile's limits.
class ExtensionEditModel {
  public:
    // A new profile, which begins with the fields of the built-in one and without an extension.
    explicit ExtensionEditModel(const ProfileList& profiles);
    // The profile in the file of an extension. Of a damaged file the fields are those that could be read. One that
    // cannot be read at all is not written over.
    ExtensionEditModel(const ProfileList& profiles, std::string_view fileExtension);

    std::string extension;
    std::string description;
    std::string preprocessor;  // one character or none, as is the string character
    std::string stringCharacter;
    std::string lineComment;
    std::string commentStart;
    std::string commentEnd;
    std::string delimiters;

    // The extension without what stands around it by mistake.
    std::string_view wantedExtension() const;
    // The extension names the file and stays with it.
    bool isExtensionEnabled() const { return isNew_; }
    // In ascending byte order, each once.
    const std::vector<std::string>& keywords() const { return keywords_; }

    // Adds the words of a text as it was typed. The row of the first of them in the list, also when it was there
    // already; none, and the user is told, when there is no word or no room.
    std::optional<std::size_t> addKeywords(std::string_view typed, Notices& notices);
    void removeKeyword(std::size_t row);
    // Adds the words of text files, and tells the user how many came in and how many did not; names a file that cannot
    // be read.
    void importFiles(const std::vector<std::string>& paths, Notices& notices);

    // Writes the profile. False, and the user is told why, when the extension is refused, an existing profile is to
    // stay, or the file cannot be written; nothing has changed then.
    bool update(Notices& notices) const;

  private:
    struct ImportCount {
        std::size_t added = 0;
        std::size_t known = 0;
        std::size_t tooLong = 0;
        std::size_t noRoom = 0;
    };

    static std::string Summary(const ImportCount& count);
    void takeFields(const ExtensionProfile& profile);
    ExtensionProfile profile() const;
    void add(const KeywordWords& words, ImportCount& count);
    bool mayReplace(Notices& notices) const;

    const ProfileList& profiles_;
    const bool isNew_;
    bool isUnreadable_ = false;
    std::vector<std::string> keywords_;
};

}  // namespace vexa
