#include "document/bookmark_model.h"

#include "base/ascii.h"
#include "base/strings.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Bookmark";
constexpr const char* kKey = "Number";
constexpr std::size_t kFieldSize = 50;
constexpr std::uint16_t kTextBadNumber = 4148;
constexpr std::uint16_t kTextNotSet = 4149;

}  // namespace

BookmarkModel::BookmarkModel(const ConfigStore& store) : number(store.ReadString(kSection, kKey, "", kFieldSize)) {}

bool BookmarkModel::jump(EditView& view, ConfigStore& store, Notices& notices) const {
    const std::int32_t n = LeadingInteger(number);
    const BookmarkResult result = view.jumpToBookmark(n);
    if (result != BookmarkResult::Done) {
        notices.status(LoadText(result == BookmarkResult::BadNumber ? kTextBadNumber : kTextNotSet), true, true);
        return false;
    }
    store.WriteString(kSection, kKey, number);
    view.centreCursorLine();
    notices.status(FillText("At bookmark '%d'", {std::to_string(n)}), true, false);
    return true;
}

}  // namespace vexa
