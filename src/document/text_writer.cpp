#include "document/text_writer.h"

#include <cstring>
#include <memory>
#include <optional>

#include "base/file.h"
#include "base/strings.h"
#include "document/text_document.h"

namespace vexa {

namespace {

using platform::OpenMode;

constexpr std::size_t kBuffer = std::size_t{1} << 18;
constexpr char kCtrlZ = 26;
constexpr char kLastCopyDigit = '9';

// Collects bytes and hands them to a file in pieces of the buffer's size. After a failure nothing more is written.
class BufferedOutput {
  public:
    explicit BufferedOutput(File& file) : file_(file), buffer_(new char[kBuffer]) {}

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
        good_ = good_ && file_.write({buffer_.get(), used_});
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

    File& file_;
    const std::unique_ptr<char[]> buffer_;
    std::size_t used_ = 0;
    bool good_ = true;
};

}  // namespace

bool WriteLines(const TextDocument& document, File& file, bool bytes) {
    BufferedOutput output(file);
    const std::int32_t last = document.lineCount(LastUsed::Text);
    for (LineIndex i; i.value <= last; ++i) {
        output.put(document.text(i));
        if (!bytes) output.put('\r');
        output.put('\n');
    }
    if (bytes) output.put(kCtrlZ);
    return output.flush();
}

namespace {

// Makes a file end where it has been written to, and brings it to the disk.
bool Finish(File& file) {
    return file.endHere() && file.flush();
}

bool CopyAll(File& from, File& to) {
    std::string block(kBuffer, '\0');
    for (;;) {
        const std::optional<std::size_t> count = from.read(block.data(), block.size());
        if (!count) return false;
        if (*count == 0) return Finish(to);
        if (!to.write({block.data(), *count})) return false;
    }
}

// Opens a safety copy under the first name that is free.
File NewSafetyCopy(const std::string& path, std::string& name) {
    name = SafetyCopyOf(path);
    while (platform::PathExists(name) && name.back() < kLastCopyDigit)
        ++name.back();
    return File(name, OpenMode::CreateNew);
}

bool WriteNewFile(const TextDocument& document, const std::string& path, bool bytes) {
    File file(path, OpenMode::CreateNew);
    if (!file.isOpen()) return false;
    const bool written = WriteLines(document, file, bytes) && file.flush();
    if (file.close() && written) return true;
    platform::RemoveFile(path);
    return false;
}

bool PutBack(const std::string& copyName, File& target) {
    File copy(copyName, OpenMode::Read);
    return copy.isOpen() && target.isOpen() && target.seek(0) && CopyAll(copy, target);
}

// Overwrites an open file whose old contents lie in the safety copy.
bool Overwrite(const TextDocument& document, const std::string& path, File& target, const std::string& copyName,
               bool bytes) {
    const bool written = WriteLines(document, target, bytes) && Finish(target);
    if (target.close() && written) {
        platform::RemoveFile(copyName);
        return true;
    }
    target = File(path, OpenMode::ReadWrite);
    const bool back = PutBack(copyName, target);
    if (target.close() && back) {
        platform::RemoveFile(copyName);
    } else {
        document.notices().box(FillText(TextId::SaveInterrupted, {document.baseName(), copyName}), kErrorCaption,
                               BoxButtons::Ok);
    }
    return false;
}

bool WriteExistingFile(const TextDocument& document, const std::string& path, bool bytes) {
    File target(path, OpenMode::ReadWrite);
    if (!target.isOpen()) return false;
    std::string copyName;
    File copy = NewSafetyCopy(path, copyName);
    if (!copy.isOpen()) return false;
    const bool copied = CopyAll(target, copy);
    if (!copy.close() || !copied || !target.seek(0)) {
        platform::RemoveFile(copyName);
        return false;
    }
    return Overwrite(document, path, target, copyName, bytes);
}

}  // namespace

bool WriteText(const TextDocument& document, const std::string& path, bool bytes) {
    return platform::PathExists(path) ? WriteExistingFile(document, path, bytes) : WriteNewFile(document, path, bytes);
}

std::string SafetyCopyOf(const std::string& path) {
    return path + ".vx0";
}

std::string LeftSafetyCopy(const std::string& path) {
    std::string name = SafetyCopyOf(path);
    std::string found;
    for (; name.back() <= kLastCopyDigit; ++name.back()) {
        if (platform::PathExists(name)) found = name;
    }
    return found;
}

}  // namespace vexa
