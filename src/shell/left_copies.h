// The safety copies that interrupted saves have left: the user is told when their file is opened, and decides.
#pragma once

#include <string>

#include "base/callback.h"
#include "base/notices.h"

namespace vexa {

// For each copy left of the file, the latest first: says whether it is equal to the file, offers to open one that
// differs by calling open, and otherwise to delete it. A copy that the user keeps without opening it gets another name,
// so that it is not announced again.
void OfferLeftCopies(const std::string& path, Notices& notices, const Callback<void(const std::string&)>& open);

}  // namespace vexa
