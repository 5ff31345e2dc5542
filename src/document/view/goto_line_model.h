// The rules of the "Goto Line" dialog.
#pragma once

#include <string>

#include "base/config_store.h"
#include "document/view/edit_view.h"

namespace vexa {

struct GotoLineModel {
    // The field shows the line that was last gone to.
    explicit GotoLineModel(const ConfigStore& store);

    std::string line;  // as typed, counted from 1

    // "Goto": always succeeds; text that is no number means the first line. The dialog closes.
    void go(EditView& view, ConfigStore& store) const;
};

}  // namespace vexa
