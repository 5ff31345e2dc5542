#include "search/files/folder_walk.h"

#include <algorithm>

#include "base/file_name.h"
#include "base/platform.h"

namespace vexa {

FolderWalk::Step FolderWalk::step() {
    while (next_ < names_.size()) {
        const std::string& name = names_[next_++];
        if (!patterns_.match(name)) continue;
        file_.assign(prefix_).append(name);
        return Step::File;
    }
    if (folders_.empty()) return Step::End;
    const std::string folder = std::move(folders_.back());
    folders_.pop_back();
    enter(folder);
    return Step::Folder;
}

void FolderWalk::enter(const std::string& folder) {
    names_.clear();
    next_ = 0;
    prefix_ = PrefixOf(folder);
    auto contents = platform::ReadDirectory(folder);
    if (!contents) {
        ++unreadable_;
    } else if (isNew({contents->volume, contents->index})) {
        names_ = std::move(contents->files);
        if (!subfolders_) return;
        for (std::size_t i = contents->directories.size(); i > 0; --i)
            folders_.push_back(prefix_ + contents->directories[i - 1]);
    }
}

bool FolderWalk::isNew(const Identity& identity) {
    if (identity.index == 0) return true;
    const auto found = std::ranges::lower_bound(entered_, identity);
    if (found != entered_.end() && *found == identity) return false;
    entered_.insert(found, identity);
    return true;
}

}  // namespace vexa
