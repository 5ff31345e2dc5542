// The rules of the "Jump to Bookmark" dialog.
#pragma once

#include <string>

#include "base/config_store.h"
#include "base/notices.h"
#include "document/view/edit_view.h"

namespace vexa {

struct BookmarkModel {
    // The field shows the number that was last jumped to.
    explicit BookmarkModel(const ConfigStore& store);

    std::string number;  // as typed

    // "Jump": true when the dialog closes. Else nothing has changed, and the status line tells why.
    bool jump(EditView& view, ConfigStore& store, Notices& notices) const;
};

}  // namespace vexa
