#include "search/files/folder_walk.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/file_name.h"

namespace vexa {

namespace {

bool ComesLater(const std::string& name, const std::string& other) {
    return LessIgnoringCase(other, name);
}

}  // namespace

FolderWalk::Step FolderWalk::step() {
    if (reader_) {
        readOn();
    } else if (!files_.empty()) {
        std::ranges::pop_heap(files_, ComesLater);
        file_.assign(prefix_).append(files_.back());
        files_.pop_back();
        return Step::File;
    } else if (folders_.empty()) {
        return Step::End;
    } else {
        enterNext();
    }
    return Step::Folder;
}

void FolderWalk::enterNext() {
    prefix_ = PrefixOf(folders_.back());
    reader_.emplace(folders_.back());
    folders_.pop_back();
    firstSubfolder_ = std::ssize(folders_);
    if (!isNew(reader_->identity())) reader_.reset();
}

// A heap, as sorting the names of a large folder takes too long for one step.
void FolderWalk::readOn() {
    using State = platform::DirectoryReader::State;
    platform::DirectoryContents part;
    const State state = reader_->read(part);
    for (std::string& name : part.files)
        if (patterns_.match(name)) files_.push_back(std::move(name));
    for (const std::string& name : part.directories)
        if (subfolders_) folders_.push_back(prefix_ + name);
    if (state == State::Reading) return;
    if (state == State::Failed) ++unreadable_;
    reader_.reset();
    std::ranges::make_heap(files_, ComesLater);
    std::sort(folders_.begin() + firstSubfolder_, folders_.end(), ComesLater);
}

bool FolderWalk::isNew(const platform::DirectoryIdentity& identity) {
    if (identity.index == 0) return true;
    const auto found = std::ranges::lower_bound(entered_, identity);
    if (found != entered_.end() && *found == identity) return false;
    entered_.insert(found, identity);
    return true;
}

}  // namespace vexa
