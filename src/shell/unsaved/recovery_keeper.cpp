#include "shell/unsaved/recovery_keeper.h"

#include <algorithm>
#include <new>

#include "base/strings.h"
#include "shell/unsaved/recovery_file.h"

namespace vexa {

// Without memory for a copy there is none of this state; a later one may find room.
RecoveryKeeper::Work RecoveryKeeper::work() try {
    look();
    if (!job_) {
        const auto due = std::ranges::find_if(kept_, [this](const Kept& kept) { return isDue(kept); });
        if (due == kept_.end()) return Work::None;
        begin(*due);
    }
    return goOn();
} catch (const std::bad_alloc&) {
    finish(false);
    return Work::None;
}

void RecoveryKeeper::look() {
    const std::vector<TextDocument*> open = frame_.openDocuments();
    for (const TextDocument* document : open)
        note(*document);
}

void RecoveryKeeper::note(const TextDocument& document) {
    const auto& facts = document.disk().facts;
    const bool isTooLarge = facts && facts->stamp.size > kLargestKept;
    if (isTooLarge || !document.isModified()) return forget(document);
    Kept& kept = keptOf(document);
    if (kept.seen == document.revision()) return;
    const std::uint32_t now = clock_();
    if (!kept.isBehind()) kept.firstChange = now;
    kept.seen = document.revision();
    kept.lastChange = now;
}

RecoveryKeeper::Kept& RecoveryKeeper::keptOf(const TextDocument& document) {
    const auto found = std::ranges::find(kept_, &document, &Kept::document);
    if (found != kept_.end()) return *found;
    kept_.emplace_back().document = &document;
    return kept_.back();
}

void RecoveryKeeper::forget(const TextDocument& document) {
    const auto found = std::ranges::find(kept_, &document, &Kept::document);
    if (found == kept_.end()) return;
    if (job_ && &job_->document() == &document) job_.reset();
    if (!found->file.empty()) platform::RemoveFile(found->file);
    kept_.erase(found);
}

bool RecoveryKeeper::isDue(const Kept& kept) const {
    const std::uint32_t now = clock_();
    return kept.isBehind() && (now - kept.lastChange >= kPause || now - kept.firstChange >= kLongestWait);
}

void RecoveryKeeper::begin(Kept& kept) {
    if (kept.file.empty()) kept.file = names_.next();
    job_ = std::make_unique<RecoveryJob>(*kept.document, kept.file);
}

RecoveryKeeper::Work RecoveryKeeper::goOn() {
    const RecoveryJob::State state = job_->step();
    if (state == RecoveryJob::State::Working) return Work::More;
    if (state == RecoveryJob::State::Waiting) return Work::Wait;
    finish(state == RecoveryJob::State::Written);
    return Work::More;
}

// What could not be written is tried again after as long as if it had just been changed.
void RecoveryKeeper::finish(bool isWritten) {
    if (!job_) return;
    const std::unique_ptr<RecoveryJob> job = std::move(job_);
    Kept& kept = keptOf(job->document());
    kept.firstChange = kept.lastChange = clock_();
    if (isWritten) kept.written = job->revision();
    if (isWritten || hasToldFailure_) return;
    hasToldFailure_ = true;
    notices_.status(FillText(TextId::CannotKeepUnsaved, {names_.directory()}), true, true);
}

void RecoveryKeeper::writeAll() {
    look();
    for (std::size_t i = 0; i < kept_.size(); ++i) {
        if (!job_ && kept_[i].isBehind()) begin(kept_[i]);
        while (job_) {
            if (goOn() == Work::Wait) platform::Pause(1);
        }
    }
}

void RecoveryKeeper::adopt(const TextDocument& document, const std::string& file) {
    Kept& kept = keptOf(document);
    kept.file = file;
    kept.written = kept.seen = document.revision();
}

}  // namespace vexa
