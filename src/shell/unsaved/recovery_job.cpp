#include "shell/unsaved/recovery_job.h"

#include <utility>

#include "shell/unsaved/recovery_file.h"
#include "shell/unsaved/recovery_names.h"

namespace vexa {

namespace {

constexpr std::size_t kPart = 64 * 1024;
// The text of somebody who types without a pause is copied in one go at last.
constexpr int kMostBeginnings = 8;

}  // namespace

// Once it has its name, nothing of the unfinished file is there.
RecoveryJob::~RecoveryJob() {
    flush_.reset();
    file_.close();
    if (!path_.empty()) platform::RemoveFile(RecoveryNames::unfinished(path_));
}

void RecoveryJob::begin() {
    ++beginnings_;
    revision_ = document_.revision();
    line_ = LineIndex(0);
    parts_.assign(1, RecoveryBeginning(document_));
    checksum_ = {};
    checksum_.add(std::string_view(parts_[0]).substr(kUncounted));
}

// A text that is changed between two parts is copied from its beginning again.
RecoveryJob::State RecoveryJob::copyLines() {
    if (revision_ != document_.revision()) begin();
    std::string part;
    const std::size_t limit = beginnings_ < kMostBeginnings ? kPart : part.max_size();
    const LineIndex last = document_.lastLine(LastUsed::Text);
    for (; line_ <= last && part.size() < limit; ++line_) {
        part += document_.text(line_);
        part += RecoveredLineEnd(document_, line_, last);
    }
    checksum_.add(part);
    parts_.push_back(std::move(part));
    if (line_ <= last) return State::Working;
    SealRecovery(parts_[0], checksum_.value());
    next_ = &RecoveryJob::writePart;
    return State::Working;
}

RecoveryJob::State RecoveryJob::writePart() {
    if (path_.empty()) return State::Failed;
    if (!file_.isOpen()) file_ = File(RecoveryNames::unfinished(path_), platform::OpenMode::CreateAlways);
    if (!file_.isOpen() || !file_.write(parts_[written_])) return State::Failed;
    if (++written_ < parts_.size()) return State::Working;
    flush_ = file_.flushAside();
    next_ = &RecoveryJob::awaitDevice;
    return flush_ ? State::Waiting : State::Failed;
}

RecoveryJob::State RecoveryJob::awaitDevice() {
    const auto flushed = flush_->result();
    if (!flushed) return State::Waiting;
    flush_.reset();
    const bool isDone = file_.close() && *flushed && platform::RenameFile(RecoveryNames::unfinished(path_), path_);
    return isDone ? State::Written : State::Failed;
}

}  // namespace vexa
