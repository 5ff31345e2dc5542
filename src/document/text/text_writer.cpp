#include "document/text/text_writer.h"

#include <cstring>
#include <memory>

#include "base/checksum.h"
#include "base/file.h"
#include "base/strings.h"
#include "document/text/document_line_ends.h"
#include "document/text/text_document.h"

namespace vexa {

namespace {

using platform::OpenMode;

constexpr std::size_t kBuffer = std::size_t{1} << 18;
constexpr char kCtrlZ = 26;

// Collects bytes and hands them on in pieces of the buffer's size. After a failure nothing more is handed on.
class BufferedOutput {
  public:
    explicit BufferedOutput(const ByteSink& sink) : sink_(sink), buffer_(new char[kBuffer]) {}

    void put(std::string_view bytes) {
        if (bytes.size() > kBuffer - used_) bytes = fillAndFlush(bytes);
        std::memcpy(buffer_.get() + used_, bytes.data(), bytes.size());
        used_ += bytes.size();
    }
    void put(char byte) {
        if (used_ == kBuffer) flush();
        buffer_[used_++] = byte;
    }
    bool flush() {
        good_ = good_ && sink_({buffer_.get(), used_});
        used_ = 0;
        return good_;
    }

  private:
    // What is left of the bytes then fits.
    std::string_view fillAndFlush(std::string_view bytes) {
        while (bytes.size() > kBuffer - used_) {
            const std::size_t room = kBuffer - used_;
            std::memcpy(buffer_.get() + used_, bytes.data(), room);
            used_ = kBuffer;
            bytes.remove_prefix(room);
            flush();
        }
        return bytes;
    }

    const ByteSink& sink_;
    const std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    bool good_ = true;
};

void PutAsKept(const TextDocument& document, BufferedOutput& output) {
    const LineIndex last = document.lastLine(LastUsed::Text);
    for (LineIndex i; i <= last; ++i) {
        output.put(document.text(i));
        output.put(BytesOf(LineEndAt(document, i, last)));
    }
}

void PutUnified(const TextDocument& document, BufferedOutput& output, bool bytes) {
    const LineIndex last = document.lastLine(LastUsed::Text);
    const bool endsInCtrlZ = bytes && document.text(last).ends_with(kCtrlZ);
    for (LineIndex i; i <= last; ++i) {
        output.put(document.text(i));
        if (endsInCtrlZ && i == last) break;
        if (!bytes) output.put('\r');
        output.put('\n');
    }
    if (bytes && !endsInCtrlZ) output.put(kCtrlZ);
}

}  // namespace

bool WriteLines(const TextDocument& document, const ByteSink& sink, bool bytes) {
    BufferedOutput output(sink);
    if (document.rules().keepsLineEnds) {
        PutAsKept(document, output);
    } else {
        PutUnified(document, output, bytes);
    }
    return output.flush();
}

namespace {

// The lines into a file; the checksum of what went there, or none.
std::optional<std::uint64_t> WriteLinesTo(File& file, const TextDocument& document, bool bytes) {
    Checksum checksum;
    const auto sink = [&](std::string_view part) {
        checksum.add(part);
        return file.write(part);
    };
    if (!WriteLines(document, sink, bytes)) return std::nullopt;
    return checksum.value();
}

WriteOutcome WriteNewFile(const TextDocument& document, const std::string& path, bool bytes) {
    std::optional<std::uint64_t> checksum;
    const bool written = RewriteFile(path, [&](File& file) {
        checksum = WriteLinesTo(file, document, bytes);
        return checksum && !platform::PathExists(path);
    });
    if (!written) return {};
    return {WriteResult::Written, CopyFault::None, *checksum};
}

void Tell(const TextDocument& document, TextId text, const std::string& copyName) {
    document.notices().box(FillText(text, {document.baseName(), copyName}), TextId::ErrorCaption, BoxButtons::Ok);
}

WriteResult PutBack(const TextDocument& document, const std::string& path, const SafetyCopy& old) {
    File target(path, OpenMode::ReadWrite);
    const bool back = target.isOpen() && old.putBack(target);
    if (target.close() && back) {
        old.remove();
        return WriteResult::Failed;
    }
    Tell(document, old.name().empty() ? TextId::OldTextLost : TextId::SaveInterrupted, old.name());
    return WriteResult::Torn;
}

// Overwrites an open file whose old contents are safe.
WriteOutcome Overwrite(const TextDocument& document, const std::string& path, File& target, const SafetyCopy& old,
                       bool bytes) {
    const auto checksum = target.seek(0) ? WriteLinesTo(target, document, bytes) : std::nullopt;
    const bool written = checksum && target.endHere() && target.flush();
    if (target.close() && written) {
        if (!old.remove()) Tell(document, TextId::CopyNotRemoved, old.name());
        return {WriteResult::Written, CopyFault::None, *checksum};
    }
    return {PutBack(document, path, old), CopyFault::None, 0};
}

WriteOutcome WriteExistingFile(const TextDocument& document, const std::string& path, const WriteOrder& order) {
    File target(path, OpenMode::ReadWrite);
    if (!target.isOpen()) return {};
    const SafetyCopy old = order.withoutCopy ? SafetyCopy::inMemory(target) : SafetyCopy(path, target);
    if (old.fault() == CopyFault::Unreadable) return {};
    if (old.fault() != CopyFault::None) return {WriteResult::NoCopy, old.fault(), 0};
    if (order.expected && *order.expected != old.checksum()) {
        old.remove();
        return {WriteResult::FileChanged, CopyFault::None, old.checksum()};
    }
    return Overwrite(document, path, target, old, order.bytes);
}

}  // namespace

WriteOutcome WriteText(const TextDocument& document, const std::string& path, const WriteOrder& order) {
    return platform::PathExists(path) ? WriteExistingFile(document, path, order)
                                      : WriteNewFile(document, path, order.bytes);
}

}  // namespace vexa
