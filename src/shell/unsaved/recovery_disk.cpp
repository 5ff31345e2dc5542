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
namespace {

bool Write(RecoveryOrder& order) {
    Checksum checksum;
    std::string& head = order.parts.front().text;
    checksum.add(std::string_view(head).substr(kUncounted));
    for (auto part = std::next(order.parts.begin()); part != order.parts.end(); ++part)
        checksum.add(part->text);
    SealRecovery(head, checksum.value());
    return RewriteFile(order.path, [&order](File& file) {
        return std::ranges::all_of(order.parts, [&](const RecoveryPart& part) { return file.write(part.text); });
    });
}

}  // namespace

RecoveryDisk::~RecoveryDisk() {
    for (; isBusy(); takeEnded())
        platform::Pause(1);
}

void RecoveryDisk::write(RecoveryOrder order) {
    orders_.push_back(std::move(order));
    begin();
}

void RecoveryDisk::remove(const std::string& path) try {
    orders_.emplace_back().path = path;
    begin();
} catch (const std::bad_alloc&) {
    platform::RemoveFile(path);
}

// The thread that carries the order out does not look at its document.
void RecoveryDisk::disown(const TextDocument& document) {
    for (RecoveryOrder& order : orders_)
        if (order.document == &document) order.document = nullptr;
}

void RecoveryDisk::begin() {
    if (begun_ || orders_.empty()) return;
    begun_ = &orders_.front();
    work_.begin();
}

// Without a document an order is a removal, or has become one.
std::optional<RecoveryOrder> RecoveryDisk::takeEnded() {
    while (begun_ && !work_.isRunning()) {
        RecoveryOrder ended = std::move(*std::exchange(begun_, nullptr));
        orders_.pop_front();
        const bool isUnwanted = !ended.parts.empty() && !ended.document && !ended.path.empty();
        if (isUnwanted) remove(ended.path);
        begin();
        if (ended.document) return ended;
    }
    return std::nullopt;
}

// ---- in the background -------------------------------------------------------------------------------------------

void RecoveryDisk::CarryOut(void* disk) noexcept try {
    RecoveryOrder& order = *static_cast<RecoveryDisk*>(disk)->begun_;
    order.isDone = static_cast<RecoveryDisk*>(disk)->carryOut(order);
    // The document's thread would need time to give the memory back.
    for (RecoveryPart& part : order.parts)
        std::string().swap(part.text);
} catch (const std::bad_alloc&) {
}

bool RecoveryDisk::carryOut(RecoveryOrder& order) {
    if (order.parts.empty()) return platform::RemoveFile(order.path);
    if (order.path.empty()) order.path = names_.next();
    return !order.path.empty() && Write(order);
}

}  // namespace vexa
