// Whatever bytes a file holds: it loads, nothing but line ends is lost, and what is written loads again as the same
// text.
#include <cstdint>
#include <string>

#include "base/file.h"
#include "document/text/text_document.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {
namespace {

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

std::string Joined(const TextDocument& document) {
    std::string text;
    const std::int32_t last = document.lastLine(LastUsed::Text);
    for (LineIndex i; i.value <= last; ++i)
        text += document.text(i);
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    MakeDisk();
    const std::string bytes(data + 1, data + size);
    File("C:\\A.TXT", platform::OpenMode::CreateAlways).write(bytes);
    SilentNotices notices;
    EditorOptions options;
    options.FileWrite = data[0] % 2 != 0;
    TextDocument document(options, notices);
    document.setName("C:\\A.TXT");
    Require(document.load());
    Require(Joined(document) == WithoutLineEnds(bytes, options.FileWrite));

    const std::string text = Joined(document);
    Require(document.write());
    TextDocument again(options, notices);
    again.setName("C:\\A.TXT");
    Require(again.load());
    if (!again.areLinesWrapped()) Require(Joined(again) == text + (options.FileWrite ? "\x1A" : ""));
    return 0;
}

}  // namespace vexa::fuzz
