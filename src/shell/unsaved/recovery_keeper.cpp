#include "shell/unsaved/recovery_keeper.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/strings.h"
#include "shell/unsaved/recovery_file.h"

namespace vexa {

// Without memory for a copy there is none of this state; a later one may find room.
RecoveryKeeper::Work RecoveryKeeper::work() try {
    look();
    takeEnded();
    if (!isKeeping()) {
        const auto due = std::ranges::find_if(kept_, [this](const Kept& kept) { return isDue(kept); });
        if (due == kept_.end()) return disk_.isBusy() ? Work::Wait : Work::None;
        begin(*due);
    }
    return goOn();
} catch (const std::bad_alloc&) {
    if (copy_) fail(std::exchange(copy_, nullptr)->document());
    return Work::None;
}

void RecoveryKeeper::look() {
    const std::vector<TextDocument*> open = frame_.openDocuments();
    for (TextDocument* document : open)
        note(*document);
}

void RecoveryKeeper::note(TextDocument& document) {
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

RecoveryKeeper::Kept* RecoveryKeeper::find(const TextDocument& document) {
    const auto found = std::ranges::find(kept_, &document, &Kept::document);
    return found == kept_.end() ? nullptr : &*found;
}

RecoveryKeeper::Kept& RecoveryKeeper::keptOf(TextDocument& document) {
    if (Kept* const kept = find(document)) return *kept;
    kept_.emplace_back().document = &document;
    return kept_.back();
}

// Whatever the disk is doing with the document's file, its removal comes after that.
void RecoveryKeeper::forget(const TextDocument& document) {
    const Kept* const kept = find(document);
    if (!kept) return;
    if (copy_ && &copy_->document() == &document) copy_.reset();
    if (written_ == &document) written_ = nullptr;
    disk_.disown(document);
    if (!kept->file.empty()) disk_.remove(kept->file);
    kept_.erase(kept_.begin() + (kept - kept_.data()));
}

bool RecoveryKeeper::isDue(const Kept& kept) const {
    const std::uint32_t now = clock_();
    return kept.isBehind() && (now - kept.lastChange >= kPause || now - kept.firstChange >= kLongestWait);
}

RecoveryKeeper::Work RecoveryKeeper::goOn() {
    if (!copy_) return Work::Wait;
    if (copy_->step()) handOver();
    return Work::More;
}

void RecoveryKeeper::handOver() {
    const TextDocument& document = copy_->document();
    disk_.write({find(document)->file, copy_->take(), &document, copy_->revision()});
    copy_.reset();
    written_ = &document;
}

void RecoveryKeeper::takeEnded() {
    while (const auto ended = disk_.takeEnded())
        finish(*ended);
}

// A new file that could not be written keeps its name for the next time.
void RecoveryKeeper::finish(const RecoveryOrder& order) {
    written_ = nullptr;
    Kept& kept = *find(*order.document);
    kept.file = order.path;
    kept.firstChange = kept.lastChange = clock_();
    if (order.isDone) {
        kept.written = order.revision;
    } else {
        fail(*order.document);
    }
}

// It is tried again after as long as if it had just been changed.
void RecoveryKeeper::fail(const TextDocument& document) {
    Kept& kept = *find(document);
    kept.firstChange = kept.lastChange = clock_();
    if (hasToldFailure_) return;
    hasToldFailure_ = true;
    notices_.status(FillText(TextId::CannotKeepUnsaved, {names_.directory()}), true, true);
}

void RecoveryKeeper::waitUntilKept() {
    for (; isKeeping() || disk_.isBusy(); takeEnded()) {
        if (goOn() == Work::Wait) platform::Pause(1);
    }
}

void RecoveryKeeper::writeAll() {
    look();
    waitUntilKept();
    for (std::size_t i = 0; i < kept_.size(); ++i) {
        if (kept_[i].isBehind()) begin(kept_[i]);
        waitUntilKept();
    }
}

std::vector<std::string> RecoveryKeeper::takeLeft() {
    waitUntilKept();
    return names_.takeLeft();
}

void RecoveryKeeper::adopt(TextDocument& document, const std::string& file) {
    Kept& kept = keptOf(document);
    kept.file = file;
    kept.written = kept.seen = document.revision();
}

}  // namespace vexa
