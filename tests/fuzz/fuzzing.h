// What fuzz targets share.
#pragma once

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/notices.h"
#include "base/platform/host/sandbox.h"
#include "document/text/text_document.h"

namespace vexa::fuzz {

// Ends the program, which the fuzzer takes for a fault, unless a rule has held.
inline void Require(bool held) {
    if (!held) std::abort();
}

class SilentNotices : public Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    BoxAnswer box(std::string_view, TextId, BoxButtons) override { return BoxAnswer::Ok; }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

// Takes what a target needs off the front of its input; an input that has come to its end gives zeros and "".
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(data, data + size) {}

    std::uint8_t byte() {
        const std::string one = text(1);
        return one.empty() ? std::uint8_t{0} : static_cast<std::uint8_t>(one[0]);
    }
    std::string text(std::size_t length) {
        const std::string taken = rest_.substr(0, length);
        rest_.erase(0, taken.size());
        return taken;
    }
    const std::string& rest() const { return rest_; }

  private:
    std::string rest_;
};

// Gives the process a drive C: of its own, in memory where the system has files there: what is written is flushed.
inline void MakeDisk() {
    static const bool made = [] {
        const std::filesystem::path memory = "/dev/shm";
        const auto folder = access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
        const auto root = folder / ("vexa-fuzz-" + std::to_string(getpid()));
        std::filesystem::create_directories(root / "c");
        platform::host::SetSandboxRoot(root.string());
        return true;
    }();
    static_cast<void>(made);
}

// A new document with the lines of a text, which end with LF.
inline void Fill(TextDocument& document, std::string_view text) {
    document.newEmpty();
    std::int32_t index = 0;
    for (std::size_t begin = 0; begin <= text.size(); ++index) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        document.lines().put(document.makeLine(text.substr(begin, end - begin)), index);
        begin = end + 1;
    }
}

inline std::vector<std::string> LinesOf(const TextDocument& document) {
    std::vector<std::string> lines;
    for (LineIndex i; i <= document.lastLine(LastUsed::Text); ++i)
        lines.emplace_back(document.text(i));
    return lines;
}

}  // namespace vexa::fuzz
