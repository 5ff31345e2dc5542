#include "document/text/disk_state.h"

namespace vexa {

ContentsKind KindOfContents(std::string_view beginning) {
    constexpr std::size_t kLookedAt = 8 * 1024;
    if (beginning.starts_with("\xFF\xFE") || beginning.starts_with("\xFE\xFF")) return ContentsKind::Utf16;
    const bool hasZero = beginning.substr(0, kLookedAt).find('\0') != std::string_view::npos;
    return hasZero ? ContentsKind::Binary : ContentsKind::Text;
}

}  // namespace vexa
