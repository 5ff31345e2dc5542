#include "shell/unsaved/recovery_job.h"

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
    bytes_ = RecoveryBeginning(document_);
    checksum_ = {};
    counted_ = kUncounted;
}

// A text that is changed between two parts is copied from its beginning again.
RecoveryJob::State RecoveryJob::copyLines() {
    if (revision_ != document_.revision()) begin();
    const std::size_t limit = beginnings_ < kMostBeginnings ? bytes_.size() + kPart : bytes_.max_size();
    const std::int32_t last = document_.lastLine(LastUsed::Text);
    for (; line_.value <= last && bytes_.size() < limit; ++line_) {
        bytes_ += document_.text(line_);
        bytes_ += '\n';
    }
    checksum_.add(std::string_view(bytes_).substr(counted_));
    counted_ = bytes_.size();
    if (line_.value <= last) return State::Working;
    SealRecovery(bytes_, checksum_.value());
    counted_ = 0;
    next_ = &RecoveryJob::writePart;
    return State::Working;
}

RecoveryJob::State RecoveryJob::writePart() {
    if (path_.empty()) return State::Failed;
    if (!file_.isOpen()) file_ = File(RecoveryNames::unfinished(path_), platform::OpenMode::CreateAlways);
    const std::string_view part = std::string_view(bytes_).substr(counted_, kPart);
    if (!file_.isOpen() || !file_.write(part)) return State::Failed;
    counted_ += part.size();
    if (counted_ < bytes_.size()) return State::Working;
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
