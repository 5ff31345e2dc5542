// The profiles in use, and the rule that gives a file its own.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/habits.h"
#include "language/extension_profile.h"

namespace vexa {

// The text after the last "." of a file name (a dot in the directories before it does not count); empty when there is
// none.
std::string_view ExtensionOf(std::string_view fileName);

// Profiles stay where they are, so documents may keep references to them: until the list goes, or until the second call
// of forgetLoaded() after they were given out.
class ProfileList {
  public:
    // The directory of the profile files, without a "\" at its end. The habits must outlive the list; they say whether
    // the text beside a profile file counts, which says more about quotes.
    explicit ProfileList(std::string configDirectory, const Habits& habits = kGivenHabits)
        : directory_(std::move(configDirectory)), habits_(habits) {}

    // The profile for a file: a loaded one, else the one in the profile file of the extension or of its first three
    // characters (read once a run, and used as far as it could be read), else the built-in one.
    const ExtensionProfile& profileFor(std::string_view fileName);

    // The profile file of an extension.
    std::string profilePath(std::string_view extension) const;
    // The extensions that have a profile file, as the files' names have them, letter case ignored in their order.
    std::vector<std::string> extensions() const;

    // Files have been written or deleted: each is read anew when its profile is next asked for.
    void forgetLoaded() { forgotten_ = std::exchange(loaded_, {}); }

  private:
    static const Habits kGivenHabits;

    // The extension that a file was read for need not be the one that it holds.
    struct LoadedProfile {
        std::string readFor;
        ExtensionProfile profile;
    };

    std::string pathOf(std::string_view extension, std::string_view suffix) const;
    const ExtensionProfile* findLoaded(std::string_view extension) const;
    const ExtensionProfile* loadFrom(std::string_view extension);

    std::string directory_;
    const Habits& habits_;
    ExtensionProfile builtIn_;
    std::vector<std::unique_ptr<LoadedProfile>> loaded_;
    std::vector<std::unique_ptr<LoadedProfile>> forgotten_;  // documents may still have them
};

}  // namespace vexa
