// An open file that closes itself, over the platform's file functions.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/callback.h"
#include "base/platform.h"

namespace vexa {

class File {
  public:
    File() = default;
    File(const std::string& path, platform::OpenMode mode);
    ~File() { close(); }
    File(File&& other) noexcept : handle_(std::exchange(other.handle_, platform::kNoFile)), writing_(other.writing_) {}
    File& operator=(File&& other) noexcept;

    bool isOpen() const { return handle_ != platform::kNoFile; }
    std::optional<std::size_t> read(char* data, std::size_t size);
    // The rest of the file up to limit bytes, so no more memory than the file holds is taken; none on an error.
    std::optional<std::string> readUpTo(std::size_t limit);
    // The whole rest of the file, or none on an error or when it holds more than limit bytes.
    std::optional<std::string> readAll(std::size_t limit);
    bool write(std::string_view data);
    bool seek(std::uint64_t offset);
    bool endHere();
    bool flush();
    std::optional<std::uint64_t> size();
    // True when everything written has been taken; the file is closed in every case. True for a closed file.
    bool close();

  private:
    platform::FileHandle handle_ = platform::kNoFile;
    bool writing_ = false;
};

// What a file holds that is kept in memory and written anew as a whole: at most limit bytes, none of them when there is
// no such file. Nothing for one that is there and cannot be read; writing it then would lose what it holds.
std::optional<std::string> ReadKeptFile(const std::string& path, std::size_t limit);

// Makes the file hold data, in one step: a reader sees the old contents or the new ones, never a part. False leaves the
// old file, or its absence, as it was. Read-only files are not replaced.
bool WriteWholeFile(const std::string& path, std::string_view data);
// The same for what a function writes into the new file; its false leaves the old file too.
bool RewriteFile(const std::string& path, const Callback<bool(File&)>& write);

// The steps that a full or failing disk can refuse: reading of any file, the others of a file opened for writing.
enum class FileStep { Open, Read, Write, End, Flush, Close };

// Lets a test refuse steps as a failing disk would: asked before each step, true refuses it (a refused close still
// closes). None by default.
using FileFault = bool (*)(FileStep step);
void SetFileFault(FileFault fault);

}  // namespace vexa
