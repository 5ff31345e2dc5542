#include "search/files/hit_list.h"

#include <algorithm>

#include "base/file_name.h"
#include "search/shown_match.h"

namespace vexa {

namespace {

// Of a long line the part around the match is shown.
constexpr std::int32_t kShownText = 300;
constexpr std::int32_t kShownBefore = 60;
constexpr std::string_view kLeftOut = "...";

struct ShownText {
    std::string_view text;
    std::int32_t cut = 0;  // characters left out before it
};

ShownText ShownPart(std::string_view text, const LineMatch& match) {
    const bool isFar = match.column.value + match.length > kShownText;
    const std::int32_t cut = isFar ? std::max(match.column.value - kShownBefore, 0) : 0;
    return {text.substr(static_cast<std::size_t>(cut), kShownText), cut};
}

}  // namespace

void HitList::begin(const FileSearchRequest& request) {
    clearRows();
    request_ = request;
    prefix_ = PrefixOf(request.folder);
    stopAsked_ = false;
    AddBanner();
    AddLine(FillText(TextId::SearchingFor, {request.options.findText(), prefix_, request.patterns}));
    firstHit_ = rowCount();
    show();
}

void HitList::clearRows() {
    hits_.clear();
    firstHit_ = 0;
    SteppedList::clearRows();
}

bool HitList::take(const FileHit& hit) {
    const ShownText shown = ShownPart(hit.text, hit.match);
    std::string row(hit.path, std::min(prefix_.size(), hit.path.size()));
    row.append(":").append(std::to_string(hit.line.value + 1)).append(": ");
    if (shown.cut > 0) row += kLeftOut;
    const std::size_t shownAt = row.size() + static_cast<std::size_t>(hit.match.column.value - shown.cut);
    row += shown.text;
    if (!addRow(row)) return false;
    hits_.push_back({hit.line, hit.match, static_cast<std::uint16_t>(shownAt)});
    return true;
}

void HitList::end(const FileSearchCounts& counts, TextId outcome) {
    const auto number = [](std::int32_t n) { return std::to_string(n); };
    const std::string sum =
        FillText(TextId::FileSearchSum, {number(counts.hits), number(counts.filesWithHits), number(counts.files)});
    addClosing({"", LoadText(outcome), sum});
    if (counts.unreadable > 0) addClosing({FillText(TextId::FilesUnreadable, {number(counts.unreadable)})});
    showNewRows();
    tell(std::string(LoadText(outcome)) + " " + sum);
}

void HitList::showNewRows() {
    if (view()) view()->rowsChanged();
}

const HitList::Hit* HitList::hitOf(std::size_t row) const {
    return row - firstHit_ < hits_.size() ? &hits_[row - firstHit_] : nullptr;
}

RowPart HitList::highlight(std::size_t row) const {
    const Hit* hit = hitOf(row);
    return hit ? RowPart{hit->shownAt, static_cast<std::size_t>(hit->match.length)} : RowPart();
}

std::string HitList::pathOf(std::size_t row) const {
    const std::string_view text = rowText(row);
    return prefix_ + std::string(text.substr(0, text.find(':')));
}

void HitList::activateRow() {
    if (!selectedRow()) return;
    if (!hitOf(*selectedRow())) return tell(LoadText(TextId::NoFileNameInLine));
    showHit(*selectedRow());
}

void HitList::showStop() {
    showHit(*selectedRow());
}

EditView* HitList::open(std::size_t row) {
    const std::string path = pathOf(row);
    EditView* view = openAt(path, hitOf(row)->line.value + 1) ? files_.activeView() : nullptr;
    if (!view) tell(FillText(TextId::CannotOpenFile, {path}));
    return view;
}

// What has changed since the search is not marked.
void HitList::showHit(std::size_t row) {
    EditView* view = open(row);
    if (!view) return;
    const Hit& hit = *hitOf(row);
    const TextDocument& document = view->document();
    LineSearch search(request_.options, DelimitersOf(document));
    if (search.find(document.text(hit.line), CharColumn(0)) != hit.match) return tell(LoadText(TextId::LineHasChanged));
    const CharColumn end = hit.match.column + hit.match.length;
    ShowMatch(*view, options_, hit.line, hit.match, {hit.line, end});
    files_.refreshActive();
}

}  // namespace vexa
