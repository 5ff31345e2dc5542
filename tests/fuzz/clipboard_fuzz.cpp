// Whatever stands on the clipboard, of whatever kind: it can be pasted anywhere, and undone to the last byte.
#include <cstdint>
#include <string>

#include "document/view/clipboard_store.h"
#include "document/view/edit_view.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {
namespace {

class FixedClipboard : public ClipboardStore {
  public:
    bool put(std::string_view, MarkMode) override { return true; }
    bool hasText() const override { return true; }
    std::optional<std::string> getText() const override { return text; }
    MarkMode getKind() const override { return kind; }

    std::string text;
    MarkMode kind = MarkMode::Lines;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3) return 0;
    SilentNotices notices;
    EditorOptions options;
    options.InsertMode = data[0] & 1;
    options.UseTabs = data[0] & 2;
    TextDocument document(options, notices);
    document.newEmpty();
    for (int i = 0; i < 5; ++i)
        document.lines().put(document.makeLine("\tline of text"), i);
    FixedClipboard clipboard;
    clipboard.kind = static_cast<MarkMode>(data[0] >> 2 & 7);
    clipboard.text.assign(data + 3, data + size);
    EditView view(document, options, notices);
    view.setClipboard(clipboard);
    view.goTo(LineIndex(data[1] % 12), CharColumn(data[2]));
    if (data[0] & 32) view.selectAll();
    const std::vector<std::string> before = LinesOf(document);
    view.paste();
    const std::vector<std::string> after = LinesOf(document);
    view.undo();
    Require(LinesOf(document) == before);
    view.redo();
    Require(LinesOf(document) == after);
    while (!document.history().isEmpty())
        view.undo();
    Require(LinesOf(document) == before && !document.isModified());
    return 0;
}

}  // namespace vexa::fuzz
