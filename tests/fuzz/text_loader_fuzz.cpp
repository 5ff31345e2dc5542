// Whatever bytes a file holds: it loads, nothing but line ends is lost, and what is written loads again as the same
// text.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "base/file.h"
#include "base/platform/host/sandbox.h"
#include "document/text_document.h"

namespace {

class SilentNotices : public vexa::Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    vexa::BoxAnswer box(std::string_view, std::string_view, vexa::BoxButtons) override { return vexa::BoxAnswer::Ok; }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

void Require(bool held) {
    if (!held) std::abort();
}

std::string WithoutLineEnds(const std::string& bytes, bool binary) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\n') {
            text += bytes[i];
        } else if (!binary && i > 0 && bytes[i - 1] == '\r') {
            text.pop_back();
        }
    }
    return text;
}

std::string Joined(const vexa::TextDocument& document) {
    std::string text;
    const std::int32_t last = document.lineCount(vexa::LastUsed::Text);
    for (vexa::LineIndex i; i.value <= last; ++i)
        text += document.text(i);
    return text;
}

void MakeDisk() {
    static const bool made = [] {
        const auto root = std::filesystem::temp_directory_path() / ("vexa-fuzz-" + std::to_string(getpid()));
        std::filesystem::create_directories(root / "c");
        vexa::platform::host::SetSandboxRoot(root.string());
        return true;
    }();
    static_cast<void>(made);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    MakeDisk();
    const std::string bytes(data + 1, data + size);
    vexa::File("C:\\A.TXT", vexa::platform::OpenMode::CreateAlways).write(bytes);
    SilentNotices notices;
    vexa::EditorOptions options;
    options.FileWrite = data[0] % 2 != 0;
    vexa::TextDocument document(options, notices);
    document.setName("C:\\A.TXT");
    Require(document.load());
    Require(Joined(document) == WithoutLineEnds(bytes, options.FileWrite));

    const std::string text = Joined(document);
    Require(document.write());
    vexa::TextDocument again(options, notices);
    again.setName("C:\\A.TXT");
    Require(again.load());
    if (!again.areLinesWrapped()) Require(Joined(again) == text + (options.FileWrite ? "\x1A" : ""));
    return 0;
}
