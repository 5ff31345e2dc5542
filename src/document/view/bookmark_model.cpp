#include "document/view/bookmark_model.h"

#include "base/ascii.h"
#include "base/strings.h"

namespace vexa {

namespace {

constexpr const char* kSection = "Bookmark";
constexpr const char* kKey = "Number";
constexpr std::size_t kFieldSize = 50;

}  // namespace

BookmarkModel::BookmarkModel(const ConfigStore& store) : number(store.ReadString(kSection, kKey, "", kFieldSize)) {}

bool BookmarkModel::jump(EditView& view, ConfigStore& store, Notices& notices) const {
    const std::int32_t n = LeadingInteger(number);
    const BookmarkResult result = view.jumpToBookmark(n);
    if (result != BookmarkResult::Done) {
        notices.status(LoadText(result == BookmarkResult::BadNumber ? TextId::BadBookmark : TextId::BookmarkNotSet),
                       true, true);
        return false;
    }
    store.WriteString(kSection, kKey, number);
    view.centreCursorLine();
    notices.status(FillText(TextId::AtBookmark, {std::to_string(n)}), true, false);
    return true;
}

}  // namespace vexa
