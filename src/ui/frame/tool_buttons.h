// The buttons of the editor's toolbar.
#pragma once

#include <span>
#include <vector>

#include "framework/tool_bar.h"

namespace vexa {

std::vector<ToolButton> ToolButtons();
std::span<const ToolPictures> ToolPictureStrips();
// What the command's menu item says, with its key.
std::string ToolTipOf(WORD id);

}  // namespace vexa
