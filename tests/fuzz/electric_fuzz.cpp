// Any bytes give a list of electric words within its limits, which comes back from its file as it was; and any
// expansion in any document is taken back whole by undo.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "document/electric_expansion.h"

namespace {

using namespace vexa;

void Require(bool held) {
    if (!held) std::abort();
}

class SilentNotices : public Notices {
  public:
    void status(std::string_view, bool, bool) override {}
    BoxAnswer box(std::string_view, std::string_view, BoxButtons) override { return BoxAnswer::Ok; }
    void setBusy(bool) override {}
    bool pumpMessages() override { return false; }
};

void CheckList(const ElectricList& list) {
    Require(list.entries().size() <= kElectricEntryLimit);
    for (const ElectricEntry& entry : list.entries()) {
        Require(!entry.keyword.empty() && entry.keyword.size() <= kElectricKeywordLimit);
        Require(!entry.expansion.empty() && entry.expansion.size() <= kElectricExpansionLimit);
    }
    Require(DecodeElectricList(EncodeElectricList(list)) == list);
}

std::vector<std::string> LinesOf(const TextDocument& document) {
    std::vector<std::string> lines;
    for (LineIndex line(0); line.value <= document.lineCount(LastUsed::Text); ++line)
        lines.emplace_back(document.text(line));
    return lines;
}

// The keyword stands between the two parts of a line, of which the first part may have more lines before it.
void CheckExpansion(const ElectricList& list, std::string_view text, const EditorOptions& options) {
    SilentNotices notices;
    const ExtensionProfile profile;
    TextDocument document(options, notices);
    document.newEmpty();
    document.setProfile(profile);
    LineEditor editor(document);
    for (const char c : text.substr(0, text.size() / 2)) {
        if (c == '\n') {
            editor.breakLine();
        } else {
            editor.type(c, 1);
        }
    }
    editor.typeText(list.entries().back().keyword);
    const CharColumn column = document.column();
    editor.typeText(text.substr(text.size() / 2, 20));
    editor.moveToColumn(column);
    const LineIndex line = document.currentLine();
    const std::vector<std::string> before = LinesOf(document);
    document.undo().clear();

    const bool expanded = ExpandElectricWord(document, editor, list);
    Require(expanded || document.undo().isEmpty());
    while (document.undo().undo()) {
    }
    Require(LinesOf(document) == before);
    Require(document.currentLine() == line && document.column() == column);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    ElectricList list = DecodeElectricList(bytes);
    CheckList(list);
    const std::string_view text = bytes;
    list.set(text.substr(0, 3), text.substr(text.size() / 2));
    CheckList(list);
    EditorOptions options;
    options.UseTabs = size % 2 != 0;
    options.TabSize = static_cast<int>(size % 11);
    if (!list.entries().empty()) CheckExpansion(list, text, options);
    return 0;
}
