#include "search/files/file_search_job.h"

#include "base/platform.h"

namespace vexa {

void FileSearchJob::start(const FileSearchRequest& request) {
    list_.begin(request);
    search_.emplace(request, files_, list_);
    shownHits_ = 0;
    notices_.status(LoadText(TextId::SearchingFiles), false, false);
}

bool FileSearchJob::work() {
    if (!search_) return false;
    const std::uint32_t begin = platform::Ticks();
    do {
        if (list_.stopAsked()) {
            finish(TextId::FileSearchStopped);
        } else if (!search_->step()) {
            finish(search_->isCutShort() ? TextId::FileSearchFull : TextId::FileSearchDone);
        }
        if (!search_) return false;
    } while (platform::Ticks() - begin < kSlice && (shownHits_ > 0 || search_->counts().hits == 0));
    showNewRows(platform::Ticks());
    return true;
}

void FileSearchJob::showNewRows(std::uint32_t now) {
    const std::int32_t hits = search_->counts().hits;
    if (hits == shownHits_ || (shownHits_ > 0 && now - shownAt_ < kInterval)) return;
    shownHits_ = hits;
    shownAt_ = now;
    list_.showNewRows();
}

void FileSearchJob::stop() {
    if (search_) finish(TextId::FileSearchStopped);
}

void FileSearchJob::finish(TextId outcome) {
    list_.end(search_->counts(), outcome);
    search_.reset();
}

}  // namespace vexa
