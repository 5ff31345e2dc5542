#include "shell/unsaved/recovery_disk.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <string_view>
#include <utility>

#include "base/checksum.h"
#include "base/file.h"
#include "shell/unsaved/recovery_file.h"

namespace vexa {

RecoveryDisk::~RecoveryDisk() {
    for (; isBusy(); takeEnded())
        platform::Pause(1);
}

void RecoveryDisk::write(RecoveryOrder order) {
    waiting_.push_back(std::move(order));
    begin();
}

void RecoveryDisk::remove(const std::string& path) try {
    waiting_.emplace_back().path = path;
    begin();
} catch (const std::bad_alloc&) {
    platform::RemoveFile(path);
}

// The thread that carries the order out does not look at its document.
void RecoveryDisk::disown(const TextDocument& document) {
    if (order_.document == &document) order_.document = nullptr;
    for (RecoveryOrder& order : waiting_)
        if (order.document == &document) order.document = nullptr;
}

void RecoveryDisk::begin() {
    if (running_ || waiting_.empty()) return;
    order_ = std::move(waiting_.front());
    waiting_.pop_front();
    running_.emplace(&CarryOut, this);
}

// Without a document an order is a removal, or has become one.
std::optional<RecoveryOrder> RecoveryDisk::takeEnded() {
    while (running_ && running_->hasEnded()) {
        running_.reset();
        RecoveryOrder ended = std::move(order_);
        order_ = {};
        const bool isUnwanted = !ended.parts.empty() && !ended.document && !ended.path.empty();
        if (isUnwanted) remove(ended.path);
        begin();
        if (ended.document) return ended;
    }
    return std::nullopt;
}

// ---- in the background -------------------------------------------------------------------------------------------

void RecoveryDisk::CarryOut(void* disk) noexcept try {
    RecoveryOrder& order = static_cast<RecoveryDisk*>(disk)->order_;
    order.isDone = static_cast<RecoveryDisk*>(disk)->carryOut();
    // The document's thread would need time to give the memory back.
    for (RecoveryPart& part : order.parts)
        part.text = {};
} catch (const std::bad_alloc&) {
}

bool RecoveryDisk::carryOut() {
    if (order_.parts.empty()) return platform::RemoveFile(order_.path);
    if (order_.path.empty()) order_.path = names_.next();
    return !order_.path.empty() && write();
}

bool RecoveryDisk::write() {
    Checksum checksum;
    std::string& head = order_.parts.front().text;
    checksum.add(std::string_view(head).substr(kUncounted));
    for (auto part = std::next(order_.parts.begin()); part != order_.parts.end(); ++part)
        checksum.add(part->text);
    SealRecovery(head, checksum.value());
    return RewriteFile(order_.path, [this](File& file) {
        return std::ranges::all_of(order_.parts, [&](const RecoveryPart& part) { return file.write(part.text); });
    });
}

}  // namespace vexa
