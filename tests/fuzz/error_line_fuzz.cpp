// Any bytes in an error file give lines within their limits, each of which is parsed to a defined result; and stepping
// through them ends.
#include <cstdint>
#include <string>

#include "base/file.h"
#include "external/captured_lines.h"
#include "external/message_list.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {
namespace {

class Document : public SourceDocument {
  public:
    std::string path() const override { return "C:\\Main.c"; }
    bool isModified() const override { return false; }
    bool save() override { return true; }
    void moveCaret(LineIndex line) override { Require(line.value >= -1); }
    void activate() override {}
    bool isActive() const override { return false; }
};

class Opener : public FileOpener {
  public:
    bool openFileAtLine(const std::string& path, std::int32_t line) override {
        Require(!path.empty() && line >= 0);
        return false;
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeDisk();
    const std::string bytes(data, data + size);
    File("C:\\A.err", platform::OpenMode::CreateAlways).write(bytes);
    ReadCapturedLines("C:\\A.err", [](std::string_view line) {
        Require(line.size() <= kCapturedLineLimit && line.find_first_of("\r\n") == std::string_view::npos);
        return true;
    });
    SilentNotices notices;
    Opener opener;
    Document document;
    MessageList messages(opener, notices);
    messages.Reset(&document);
    messages.Load("C:\\A.err", "C:\\A.err", "C:");
    const std::size_t rows = messages.rowCount();
    for (std::size_t step = 0; step < rows && step < 100; ++step) {
        messages.NextError();
        messages.activateRow();
    }
    messages.PreviousError();
    Require(messages.selectedRow().value_or(0) < rows);
    return 0;
}

}  // namespace vexa::fuzz
