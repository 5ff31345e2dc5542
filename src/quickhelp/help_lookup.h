// Finds the installed help files that know a keyword.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/notices.h"
#include "base/platform.h"

namespace vexa {

struct HelpMatch {
    std::string helpFile;  // its full path
    std::string title;

    bool operator==(const HelpMatch&) const = default;
};

enum class LookupResult { OneMatch, SeveralMatches, NoMatch, NoIndexes };

// One for the program: keyword, matches and choice stay until the next look-up, and so do the texts of the indexes, of
// which one that has been written since is read anew.
class HelpLookup {
  public:
    static constexpr std::size_t kMostMatches = 20;

    // The directory of the indexes, without "\" at its end.
    HelpLookup(std::string indexDirectory, Notices& notices)
        : directory_(std::move(indexDirectory)), notices_(notices) {}

    // Reads the indexes: a help file matches when one of its keywords begins with this one, letter case ignored. The
    // only match is chosen. The index of a help file that is no longer there is deleted without a word.
    LookupResult Lookup(const std::string& keyword);

    const std::string& keyword() const { return keyword_; }
    const std::vector<HelpMatch>& matches() const { return matches_; }
    // Chooses a match by its position.
    void choose(std::size_t match) { chosen_ = match; }
    // Null when none is chosen.
    const HelpMatch* chosen() const { return chosen_ ? &matches_[*chosen_] : nullptr; }

  private:
    struct Index {
        std::string path;
        platform::FileStamp stamp;
        std::string text;
    };
    // Null for an index that cannot be read; valid until the next call.
    const std::string* textOf(const std::string& path);
    std::size_t keptBytes() const;
    // Adds the help file of an index if it matches; false when it is gone.
    bool readIndex(const std::string& path);

    const std::string directory_;
    Notices& notices_;
    std::string keyword_;
    std::vector<HelpMatch> matches_;
    std::optional<std::size_t> chosen_;
    std::vector<Index> read_;
};

// What the status line says of a result; empty when there are matches.
std::string TextOf(LookupResult result, const std::string& keyword);

}  // namespace vexa
