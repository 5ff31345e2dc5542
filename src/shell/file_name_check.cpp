#include "shell/file_name_check.h"

#include "base/file_name.h"
#include "base/strings.h"

namespace vexa {

bool IsUsableName(const std::string& path, Notices& notices) {
    const NameFault fault = FaultOfName(path);
    if (fault == NameFault::None) return true;
    const TextId text = fault == NameFault::TooLong ? TextId::NameTooLong : TextId::NameNotAFile;
    notices.box(FillText(text, {path}), TextId::ErrorCaption, BoxButtons::Ok);
    return false;
}

}  // namespace vexa
