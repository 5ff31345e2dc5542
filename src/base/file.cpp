#include "base/file.h"

#include <algorithm>

namespace vexa {

namespace {

FileFault g_fault = nullptr;

bool Refused(bool writing, FileStep step) {
    return writing && g_fault && g_fault(step);
}

}  // namespace

void SetFileFault(FileFault fault) {
    g_fault = fault;
}

File::File(const std::string& path, platform::OpenMode mode) : writing_(mode != platform::OpenMode::Read) {
    if (!Refused(writing_, FileStep::Open)) handle_ = platform::OpenFile(path, mode);
}

File& File::operator=(File&& other) noexcept {
    if (this != &other) {
        close();
        handle_ = std::exchange(other.handle_, platform::kNoFile);
        writing_ = other.writing_;
    }
    return *this;
}

std::optional<std::size_t> File::read(char* data, std::size_t size) {
    if (Refused(true, FileStep::Read)) return std::nullopt;
    return platform::ReadFile(handle_, data, size);
}

std::optional<std::string> File::readUpTo(std::size_t limit) {
    constexpr std::size_t kChunk = 64 * 1024;
    std::string data;
    // The size is only a first guess, as the file may change meanwhile; one byte more finds the end in the same read.
    std::size_t room = static_cast<std::size_t>(std::min<std::uint64_t>(size().value_or(0) + 1, limit));
    bool atEnd = false;
    while (!atEnd && data.size() < limit) {
        const std::size_t start = data.size();
        data.resize(start + room);
        const std::optional<std::size_t> count = read(data.data() + start, room);
        if (!count) return std::nullopt;
        data.resize(start + *count);
        atEnd = *count < room;
        room = std::min(limit - data.size(), kChunk);
    }
    return data;
}

std::optional<std::string> File::readAll(std::size_t limit) {
    std::optional<std::string> data = readUpTo(limit);
    char next = 0;
    if (data && data->size() == limit && read(&next, 1) != std::size_t{0}) return std::nullopt;
    return data;
}

bool File::write(std::string_view data) {
    return !Refused(writing_, FileStep::Write) && platform::WriteFile(handle_, data);
}

bool File::seek(std::uint64_t offset) {
    return platform::SeekFile(handle_, offset);
}

bool File::endHere() {
    return !Refused(writing_, FileStep::End) && platform::EndFileHere(handle_);
}

bool File::flush() {
    return !Refused(writing_, FileStep::Flush) && platform::FlushFile(handle_);
}

std::optional<std::uint64_t> File::size() {
    return platform::FileSize(handle_);
}

bool File::close() {
    if (!isOpen()) return true;
    const bool refused = Refused(writing_, FileStep::Close);
    return platform::CloseFile(std::exchange(handle_, platform::kNoFile)) && !refused;
}

std::optional<std::string> ReadKeptFile(const std::string& path, std::size_t limit) {
    File file(path, platform::OpenMode::Read);
    if (file.isOpen()) return file.readUpTo(limit);
    return platform::PathExists(path) ? std::nullopt : std::optional<std::string>("");
}

namespace {

// A new file beside the one to be replaced, so that both are on one disk. Files left behind by a crash are passed over.
// The longest names are cut to make room for a mark.
std::string NewFileBeside(const std::string& path, File& file) {
    constexpr int kAttempts = 100;
    constexpr std::size_t kLongestStem = 255;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        std::string name = path.substr(0, kLongestStem) + ".~" + std::to_string(attempt);
        file = File(name, platform::OpenMode::CreateNew);
        if (file.isOpen()) return name;
        if (!platform::PathExists(name)) break;
    }
    return {};
}

}  // namespace

bool WriteWholeFile(const std::string& path, std::string_view data) {
    return RewriteFile(path, [data](File& file) { return file.write(data); });
}

bool RewriteFile(const std::string& path, const Callback<bool(File&)>& write) {
    File file;
    const std::string temporary = NewFileBeside(path, file);
    if (temporary.empty()) return false;
    bool done = write(file) && file.flush();
    done = file.close() && done;
    done = done && platform::RenameFile(temporary, path);
    if (!done) platform::RemoveFile(temporary);
    return done;
}

}  // namespace vexa
