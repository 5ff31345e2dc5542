// The keys of the edit view as its user is told of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexa {

struct ViewKeyHelp {
    std::string key;  // "Ctrl+Left"
    std::string_view description;
    bool isMovement = false;  // with Shift it also marks
};

std::vector<ViewKeyHelp> ViewKeyList();

}  // namespace vexa
