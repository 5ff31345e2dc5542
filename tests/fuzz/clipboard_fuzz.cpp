// Whatever stands on the clipboard, of whatever kind: it can be pasted anywhere, and undone to the last byte.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "document/clipboard_store.h"
#include "document/edit_view.h"

namespace {

class SilentNotices : public vexa::Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    vexa::BoxAnswer box(std::string_view, std::string_view, vexa::BoxButtons) override { return vexa::BoxAnswer::Ok; }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

class FixedClipboard : public vexa::ClipboardStore {
  public:
    bool put(std::string_view, vexa::MarkMode) override { return true; }
    bool hasText() const override { return true; }
    std::optional<std::string> getText() const override { return text; }
    vexa::MarkMode getKind() const override { return kind; }

    std::string text;
    vexa::MarkMode kind = vexa::MarkMode::Lines;
};

void Require(bool held) {
    if (!held) std::abort();
}

std::string Joined(const vexa::TextDocument& document) {
    std::string text;
    const std::int32_t last = document.lineCount(vexa::LastUsed::Text);
    for (vexa::LineIndex i; i.value <= last; ++i)
        text.append(document.text(i)).append("\n");
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3) return 0;
    SilentNotices notices;
    vexa::EditorOptions options;
    options.InsertMode = data[0] & 1;
    options.UseTabs = data[0] & 2;
    vexa::TextDocument document(options, notices);
    document.newEmpty();
    for (int i = 0; i < 5; ++i)
        document.lines().put(document.makeLine("\tline of text"), i);
    FixedClipboard clipboard;
    clipboard.kind = static_cast<vexa::MarkMode>(data[0] >> 2 & 7);
    clipboard.text.assign(data + 3, data + size);
    vexa::EditView view(document, options, notices);
    view.setClipboard(clipboard);
    view.goTo(vexa::LineIndex(data[1] % 12), vexa::CharColumn(data[2]));
    if (data[0] & 32) view.selectAll();
    const std::string before = Joined(document);
    view.paste();
    const std::string after = Joined(document);
    view.undo();
    Require(Joined(document) == before);
    view.redo();
    Require(Joined(document) == after);
    while (!document.undo().isEmpty())
        view.undo();
    Require(Joined(document) == before && !document.isModified());
    return 0;
}
