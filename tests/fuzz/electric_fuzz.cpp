// Any bytes give a list of electric words within its limits, which comes back from its file as it was; and any
// expansion in any document is taken back whole by undo.
#include <cstdint>
#include <string>
#include <vector>

#include "document/view/electric_expansion.h"
#include "fuzz/fuzzing.h"

namespace vexa::fuzz {
namespace {

void CheckList(const ElectricList& list) {
    Require(list.entries().size() <= kElectricEntryLimit);
    for (const ElectricEntry& entry : list.entries()) {
        Require(!entry.keyword.empty() && entry.keyword.size() <= kElectricKeywordLimit);
        Require(!entry.expansion.empty() && entry.expansion.size() <= kElectricExpansionLimit);
    }
    Require(DecodeElectricList(EncodeElectricList(list)) == list);
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
    document.history().clear();

    const bool expanded = ExpandElectricWord(document, editor, list);
    Require(expanded || document.history().isEmpty());
    while (document.history().undo()) {
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

}  // namespace vexa::fuzz
