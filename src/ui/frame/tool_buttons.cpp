#include "ui/frame/tool_buttons.h"

#include <algorithm>

#include "shell/command_table.h"
#include "ui/resources/resource.h"

namespace vexa {
namespace {

constexpr CommandId kGap{};

// In the order of the pictures in the strips.
constexpr CommandId kCommands[] = {CommandId::FileNew,
                                   CommandId::FileOpen,
                                   CommandId::FileSave,
                                   kGap,
                                   CommandId::Undo,
                                   CommandId::Redo,
                                   CommandId::Cut,
                                   CommandId::Copy,
                                   CommandId::Paste,
                                   kGap,
                                   CommandId::Find,
                                   CommandId::Replace,
                                   kGap,
                                   CommandId::Compile,
                                   CommandId::NextError,
                                   kGap,
                                   CommandId::RecordMacro,
                                   CommandId::PlayMacro,
                                   kGap,
                                   CommandId::HelpIndex};

constexpr ToolPictures kStrips[] = {{16, IDB_TOOLBAR_16}, {24, IDB_TOOLBAR_24}, {32, IDB_TOOLBAR_32}};

}  // namespace

std::vector<ToolButton> ToolButtons() {
    std::vector<ToolButton> buttons;
    int picture = 0;
    for (const CommandId id : kCommands)
        buttons.push_back({static_cast<WORD>(id), id == kGap ? 0 : picture++});
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
