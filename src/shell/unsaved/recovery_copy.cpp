#include "shell/unsaved/recovery_copy.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "shell/unsaved/recovery_file.h"

namespace vexa {

namespace {

std::int32_t LineCount(const TextDocument& document) {
    return document.lastLine(LastUsed::Text).value + 1;
}

}  // namespace

RecoveryCopy::RecoveryCopy(TextDocument& document, std::size_t part)
    : document_(document), revision_(document.revision()), lines_(LineCount(document)), part_(part) {
    document.lines().takeUnchanged();
    replace(0, 0, lines_);
}

// The first and the last that are not copied: one of them may be where the user types, and is changed again by then.
bool RecoveryCopy::step() {
    noteChanges();
    const auto first = std::ranges::find(parts_, false, &RecoveryPart::isCopied);
    if (first == parts_.end()) return true;
    copy(first);
    const auto last = std::find_if(parts_.rbegin(), parts_.rend(), [](const auto& part) { return !part.isCopied; });
    if (last == parts_.rend()) return true;
    copy(std::prev(last.base()));
    return std::ranges::all_of(parts_, &RecoveryPart::isCopied);
}

// An end that a line has by being the last one or not is part of the change.
void RecoveryCopy::noteChanges() {
    const UnchangedLines unchanged = document_.lines().takeUnchanged();
    if (revision_ == document_.revision()) return;
    revision_ = document_.revision();
    const std::int32_t old = std::exchange(lines_, LineCount(document_));
    const std::int32_t empty = std::max(document_.lines().lastUsed(LastUsed::Plain) + 1 - lines_, 0);
    const std::int32_t fewer = std::min(old, lines_);
    std::int32_t after = std::clamp(unchanged.after - empty, 0, fewer);
    const std::int32_t before = std::clamp(unchanged.before, 0, fewer - (after == 0 ? 1 : 0));
    after = std::min(after, fewer - before);
    replace(before, old - after, lines_ - old);
}

// The lines from `before` to `end`, and the others of their parts, are to be copied again, and as many more.
void RecoveryCopy::replace(std::int32_t before, std::int32_t end, std::int32_t more) {
    std::int32_t line = 0;
    auto part = parts_.begin();
    for (; part != parts_.end() && line + part->lines <= before; ++part)
        line += part->lines;
    RecoveryPart changed;
    changed.lines = more;
    for (; part != parts_.end() && line < end; part = parts_.erase(part)) {
        line += part->lines;
        changed.lines += part->lines;
    }
    parts_.insert(part, std::move(changed));
}

// What is more than one step can copy stays for the next.
void RecoveryCopy::copy(RecoveryParts::iterator old) {
    LineIndex line;
    for (auto part = parts_.begin(); part != old; ++part)
        line += part->lines;
    const LineIndex last(lines_ - 1);
    RecoveryPart copied;
    copied.isCopied = true;
    copied.text.reserve(part_ + part_ / 8);  // the last line goes beyond it
    for (; copied.lines < old->lines && copied.text.size() < part_; ++copied.lines, ++line) {
        copied.text += document_.text(line);
        copied.text += RecoveredLineEnd(document_, line, last);
    }
    old->lines -= copied.lines;
    parts_.insert(old, std::move(copied));
    if (old->lines == 0) parts_.erase(old);
}

RecoveryParts RecoveryCopy::take() {
    parts_.emplace_front().text = RecoveryBeginning(document_);
    return std::move(parts_);
}

}  // namespace vexa
