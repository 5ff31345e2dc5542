#include "ui/tool_buttons.h"

#include <algorithm>

#include "shell/command_table.h"
#include "ui/resource.h"

namespace vexa {
namespace {

constexpr WORD kGap = 0;

// In the order of the pictures in the strips.
constexpr WORD kCommands[] = {200, 201, 203,  kGap, 300, 301,  302, 303, 304,  kGap,
                              306, 310, kGap, 500,  454, kGap, 426, 425, kGap, 701};

constexpr ToolPictures kStrips[] = {{16, IDB_TOOLBAR_16}, {24, IDB_TOOLBAR_24}, {32, IDB_TOOLBAR_32}};

}  // namespace

std::vector<ToolButton> ToolButtons() {
    std::vector<ToolButton> buttons;
    int picture = 0;
    for (const WORD id : kCommands)
        buttons.push_back({id, id == kGap ? 0 : picture++});
    return buttons;
}

std::span<const ToolPictures> ToolPictureStrips() {
    return kStrips;
}

std::string ToolTipOf(WORD id) {
    const CommandRow* row = FindCommand(CommandId{id});
    if (!row) return {};
    std::string tip(row->menuText.substr(0, row->menuText.find('\t')));
    std::erase(tip, '&');
    while (!tip.empty() && (tip.back() == '.' || tip.back() == ' '))
        tip.pop_back();
    const std::string_view key = row->keys.substr(0, row->keys.find(','));
    return key.empty() ? tip : tip + " (" + std::string(key) + ")";
}

}  // namespace vexa
