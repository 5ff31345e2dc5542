#include "shell/frame_keys.h"

#include <algorithm>

namespace vexa {

namespace {

constexpr std::uint16_t kKeyF3 = 0x72;
constexpr std::uint16_t kKeyF5 = 0x74;
constexpr std::uint16_t kKeyF6 = 0x75;

// Each key together with Ctrl alone.
struct Row {
    std::uint16_t key;
    FrameAction action;
    bool inTextOnly;
    FrameKeyHelp help;
};

constexpr Row kRows[] = {
    {kKeyF5, FrameAction::ToggleMatchCase, false, {"Ctrl+F5", "Switch the matching of letter case on or off"}},
    {kKeyF6, FrameAction::ToggleRegularExpression, false, {"Ctrl+F6", "Switch regular expressions on or off"}},
    {'E', FrameAction::OpenInclude, true, {"Ctrl+E", "Open the include file or the file named at the caret"}},
    {'G', FrameAction::ListFunctions, true, {"Ctrl+G", "List the functions of the document"}},
    {kKeyF3, FrameAction::FindAtCaret, true, {"Ctrl+F3", "Find the marked text or the word at the caret"}},
    {'0', FrameAction::ResetZoom, true, {"Ctrl+0", "Show the text at its own size again"}},
};

}  // namespace

std::optional<FrameAction> FrameActionOf(const KeyEvent& event, bool inText) {
    if (!event.control || event.shift || event.alt) return std::nullopt;
    const auto* const row = std::ranges::find(kRows, event.key, &Row::key);
    if (row == std::end(kRows) || (row->inTextOnly && !inText)) return std::nullopt;
    return row->action;
}

std::vector<FrameKeyHelp> FrameKeyList() {
    std::vector<FrameKeyHelp> list;
    for (const Row& row : kRows)
        list.push_back(row.help);
    return list;
}

}  // namespace vexa
