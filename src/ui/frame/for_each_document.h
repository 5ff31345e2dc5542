// What the parts of the frame share to do something with every document's window.
#pragma once

#include "ui/frame/vexa_frame.h"

namespace vexa {

template <class Use>
void VexaFrame::forEachDocument(Use use) const {
    for (const auto& child : children()) {
        if (auto* window = dynamic_cast<DocumentWindow*>(child.get())) use(*window);
    }
}

}  // namespace vexa
