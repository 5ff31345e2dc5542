#include "ui/help/topic_pane.h"

#include <algorithm>

#include "framework/clipboard.h"
#include "framework/dpi.h"
#include "framework/screen.h"

namespace vexa {
namespace {

constexpr WindowClass kPaneClass{.name = "VexaTopic"};
constexpr int kMargin = 8;  // pixels at the normal resolution, as are the others
constexpr int kLineStep = 20;
constexpr int kPopUpWidth = 420;
constexpr int kHandCursor = 32649;  // of systems from Windows 2000 on

int Height(const RECT& area) {
    return static_cast<int>(area.bottom - area.top);
}

int RightOf(const topics::LaidRegion& region) {
    int right = 0;
    for (const topics::LaidRun& run : region.runs)
        right = std::max(right, run.box.right);
    return right;
}

}  // namespace

struct TopicPaneKeys {
    struct Row {
        UINT key;
        bool control;
        bool shift;
        void (TopicPane::*run)();
    };
    static constexpr Row kRows[] = {
        {VK_UP, false, false, &TopicPane::lineUp},
        {VK_DOWN, false, false, &TopicPane::lineDown},
        {VK_PRIOR, false, false, &TopicPane::pageUp},
        {VK_NEXT, false, false, &TopicPane::pageDown},
        {VK_SPACE, false, false, &TopicPane::pageDown},
        {VK_HOME, false, false, &TopicPane::toTop},
        {VK_END, false, false, &TopicPane::toBottom},
        {VK_HOME, true, false, &TopicPane::toTop},
        {VK_END, true, false, &TopicPane::toBottom},
        {VK_TAB, false, false, &TopicPane::toNextLink},
        {VK_TAB, false, true, &TopicPane::toPreviousLink},
        {VK_RETURN, false, false, &TopicPane::followFocusedLink},
        {'C', true, false, &TopicPane::copy},
        {VK_INSERT, true, false, &TopicPane::copy},
        {'A', true, false, &TopicPane::selectAll},
    };
};

// ---- opening and layout ------------------------------------------------------------------------------------------

bool TopicPane::open(HWND parent) {
    return create(kPaneClass, {.style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL, .area = {}, .parent = parent});
}

bool TopicPane::openPopUp(HWND owner, const topics::ShownTopic& topic, POINT screenPosition) {
    isPopUp_ = true;
    if (!window() && !create(kPaneClass, {.style = WS_POPUP | WS_BORDER, .area = {}, .parent = owner})) return false;
    take(topic);
    const RECT screen = WorkAreaNear({screenPosition.x, screenPosition.y, screenPosition.x + 1, screenPosition.y + 1});
    const int dpi = DpiOf(window());
    layOut(std::min(Scaled(kPopUpWidth, dpi), static_cast<int>(screen.right - screen.left) / 2));
    const int edges = 2 * margin() + 2;
    const int width = std::max(RightOf(layout_.fixed), RightOf(layout_.scrolling)) + edges;
    const int height = std::min(fixedHeight() + layout_.scrolling.height + edges, Height(screen) * 2 / 3);
    const LONG left = std::clamp<LONG>(screenPosition.x, screen.left, std::max(screen.left, screen.right - width));
    const bool fitsBelow = screenPosition.y + height <= screen.bottom;
    const LONG top = fitsBelow ? screenPosition.y : std::max<LONG>(screen.top, screen.bottom - height);
    SetWindowPos(window(), HWND_TOP, left, top, width, height, SWP_SHOWWINDOW);
    SetFocus(window());
    return true;
}

void TopicPane::take(const topics::ShownTopic& topic) {
    shown_ = topic;
    device_.begin(shown_.file, DpiOf(window()));
    scroll_ = {};
    anchor_ = caret_ = {};
    focusedLink_ = -1;
    pressedLink_.reset();
    isSelecting_ = false;
    refreshColours();
}

void TopicPane::show(const topics::ShownTopic& topic) {
    take(topic);
    layOut(static_cast<int>(clientArea().right) - 2 * margin());
    const std::uint32_t paragraph = topics::ParagraphAt(*shown_.topic, shown_.offset);
    const int top = paragraph == 0 ? 0 : topics::TopOf(layout_.scrolling, {paragraph, 0}).value_or(0);
    scrollTo(0, shown_.scroll >= 0 ? shown_.scroll : top);
}

void TopicPane::layOut(int width) {
    layout_ = topics::LayOutTopic(source(), width);
    fixedAreas_ = topics::LinkAreas(layout_.fixed, *shown_.topic);
    scrollingAreas_ = topics::LinkAreas(layout_.scrolling, *shown_.topic);
}

bool TopicPane::onSize(UINT) {
    if (!hasTopic()) return true;
    if (!isPopUp_) {
        if (device_.dpi() != DpiOf(window())) device_.begin(shown_.file, DpiOf(window()));
        layOut(static_cast<int>(clientArea().right) - 2 * margin());
    }
    scrollTo(scroll_.x, scroll_.y);
    return true;
}

void TopicPane::refreshColours() {
    const auto coloursOf = [this](bool isFixed) {
        return ScreenColours(isPopUp_, hasTopic() && !isPopUp_ ? shown_.background(isFixed) : std::nullopt);
    };
    fixedColours_ = coloursOf(true);
    colours_ = coloursOf(false);
    InvalidateRect(window(), nullptr, FALSE);
}

int TopicPane::margin() const {
    return Scaled(kMargin, DpiOf(window()));
}

int TopicPane::fixedHeight() const {
    return layout_.fixed.height == 0 ? 0 : layout_.fixed.height + margin();
}

RECT TopicPane::scrollingArea() const {
    RECT area = clientArea();
    area.top = std::min<LONG>(fixedHeight(), area.bottom);
    return area;
}

int TopicPane::pageHeight() const {
    return std::max(1, Height(scrollingArea()) - 2 * margin());
}

// ---- scrolling ---------------------------------------------------------------------------------------------------

ScrollState TopicPane::scrollState(int bar) const {
    const int step = Scaled(kLineStep, DpiOf(window()));
    if (bar == SB_VERT) return {layout_.scrolling.height - 1, pageHeight(), static_cast<std::int32_t>(scroll_.y), step};
    const int page = std::max(1, static_cast<int>(clientArea().right) - 2 * margin());
    const int width = std::max(layout_.scrolling.width, layout_.fixed.width);
    return {width - 1, page, static_cast<std::int32_t>(scroll_.x), step};
}

// A position beyond the end becomes the last one.
void TopicPane::scrollTo(int x, int y) {
    const auto endOf = [this](int bar) { return ScrollTarget(SB_BOTTOM, scrollState(bar), 0); };
    scroll_ = {std::clamp(x, 0, endOf(SB_HORZ)), std::clamp(y, 0, endOf(SB_VERT))};
    if (!isPopUp_) showScrollBars();
    host_.paneScrolled(*this, scroll_.y);
    InvalidateRect(window(), nullptr, FALSE);
}

void TopicPane::showScrollBars() {
    for (const int bar : {SB_VERT, SB_HORZ})
        scrollBars_.show(window(), bar, scrollState(bar));
}

void TopicPane::scrollBar(int bar, int position) {
    bar == SB_VERT ? scrollTo(scroll_.x, position) : scrollTo(position, scroll_.y);
}

bool TopicPane::onScroll(int bar, UINT request) {
    scrollBar(bar, WindowScrollBars::target(window(), bar, request, scrollState(bar)));
    return true;
}

bool TopicPane::onWheel(const WheelMessage& turn) {
    if (turn.control) return false;
    const int bar = WindowScrollBars::barOf(turn);
    scrollBar(bar, scrollBars_.target(turn, scrollState(bar)));
    return true;
}

void TopicPane::bringIntoView(int top, int bottom) {
    if (top < scroll_.y || bottom - top > pageHeight()) {
        scrollTo(scroll_.x, top);
    } else if (bottom > scroll_.y + pageHeight()) {
        scrollTo(scroll_.x, bottom - pageHeight());
    }
}

void TopicPane::lineUp() {
    scrollBy(-Scaled(kLineStep, device_.dpi()));
}

void TopicPane::lineDown() {
    scrollBy(Scaled(kLineStep, device_.dpi()));
}

// ---- painting ----------------------------------------------------------------------------------------------------

TopicPane::Part TopicPane::fixedPart() {
    return {&layout_.fixed, &fixedAreas_, {margin() - scroll_.x, margin() / 2}, &fixedColours_};
}

TopicPane::Part TopicPane::scrollingPart() {
    const int top = static_cast<int>(scrollingArea().top) + margin() - static_cast<int>(scroll_.y);
    return {&layout_.scrolling, &scrollingAreas_, {margin() - scroll_.x, top}, &colours_};
}

bool TopicPane::onPaint(HDC dc, const RECT&) {
    const RECT area = clientArea();
    if (area.right <= 0 || area.bottom <= 0) return true;
    const HDC picture = picture_.prepare(dc, area.right, area.bottom);
    if (!picture) return true;
    if (hasTopic()) {
        draw(picture);
    } else {
        FillColour(picture, area, colours_.background);
    }
    picture_.show(dc, 0, 0, area.right, area.bottom);
    return true;
}

void TopicPane::draw(HDC dc) {
    const RECT area = clientArea();
    const RECT below = scrollingArea();
    if (below.top > 0) {
        drawPart(dc, fixedPart(), {0, 0, area.right, below.top});
        FillColour(dc, {0, below.top - 1, area.right, below.top}, GetSysColor(COLOR_3DSHADOW));
    }
    drawPart(dc, scrollingPart(), below);
}

void TopicPane::drawPart(HDC dc, const Part& part, const RECT& visible) {
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, visible.left, visible.top, visible.right, visible.bottom);
    const topics::LayoutSource laid = source();
    FillColour(dc, visible, part.colours->background);
    TopicPainter(dc, laid, device_, *part.colours).draw(*part.region, part.origin, visible);
    const auto moved = [&part](const topics::Box& box) {
        return RECT{part.origin.x + box.left, part.origin.y + box.top, part.origin.x + box.right,
                    part.origin.y + box.bottom};
    };
    const auto [from, to] = std::minmax(anchor_, caret_);
    if (from < to) {
        for (const topics::Box& box : topics::SelectionBoxes(*part.region, laid, from, to)) {
            const RECT marked = moved(box);
            InvertRect(dc, &marked);
        }
    }
    SetTextColor(dc, part.colours->text);
    SetBkColor(dc, part.colours->background);
    for (const topics::LinkArea& area : *part.areas) {
        const RECT focused = moved(area.box);
        if (area.link == focusedLink_) DrawFocusRect(dc, &focused);
    }
    RestoreDC(dc, saved);
}

// ---- mouse -------------------------------------------------------------------------------------------------------

TopicPane::Part TopicPane::partAt(POINT position) {
    return position.y < scrollingArea().top ? fixedPart() : scrollingPart();
}

std::optional<int> TopicPane::linkAt(POINT position) {
    const Part part = partAt(position);
    return topics::LinkAt(*part.areas, static_cast<int>(position.x - part.origin.x),
                          static_cast<int>(position.y - part.origin.y));
}

topics::TextPosition TopicPane::positionAt(POINT position) {
    const Part part = partAt(position);
    return topics::PositionAt(*part.region, source(), static_cast<int>(position.x - part.origin.x),
                              static_cast<int>(position.y - part.origin.y));
}

bool TopicPane::onSetCursor(UINT hitTest) {
    POINT position{};
    if (hitTest != HTCLIENT || !hasTopic() || !GetCursorPos(&position)) return false;
    ScreenToClient(window(), &position);
    const HCURSOR hand = linkAt(position) ? LoadCursorA(nullptr, MAKEINTRESOURCEA(kHandCursor)) : nullptr;
    SetCursor(hand ? hand : LoadCursorA(nullptr, IDC_ARROW));
    return true;
}

bool TopicPane::onMousePress(const MouseButtonMessage& press) {
    if (!hasTopic()) return true;
    SetFocus(window());
    host_.panePressed(*this);
    pressedLink_ = linkAt(press.position);
    const topics::TextPosition position = positionAt(press.position);
    select(press.shift ? anchor_ : position, position);
    isSelecting_ = true;
    SetCapture(window());
    return true;
}

bool TopicPane::onMouseMove(POINT position) {
    if (isSelecting_) select(anchor_, positionAt(position));
    return isSelecting_;
}

bool TopicPane::onMouseRelease(POINT position) {
    if (!isSelecting_) return false;
    ReleaseCapture();
    const std::optional<int> pressed = std::exchange(pressedLink_, std::nullopt);
    const bool isClick = pressed && linkAt(position) == pressed && anchor_ == caret_;
    if (isClick) followLink(*pressed);
    return true;
}

bool TopicPane::onCaptureLost() {
    isSelecting_ = false;
    return true;
}

// ---- selection ---------------------------------------------------------------------------------------------------

void TopicPane::select(topics::TextPosition from, topics::TextPosition to) {
    anchor_ = from;
    caret_ = to;
    InvalidateRect(window(), nullptr, FALSE);
}

void TopicPane::selectAll() {
    const auto& paragraphs = shown_.topic->paragraphs;
    if (paragraphs.empty()) return;
    select({0, 0}, {static_cast<std::uint32_t>(paragraphs.size() - 1),
                    static_cast<std::uint32_t>(paragraphs.back().text.size())});
}

void TopicPane::copy() {
    const auto [from, to] = std::minmax(anchor_, caret_);
    const std::string text = topics::TextBetween(*shown_.topic, from, to);
    const ClipboardEntry entries[] = {{CF_TEXT, text}};
    if (!text.empty() && !PutOnClipboard(window(), entries)) MessageBeep(MB_ICONEXCLAMATION);
}

bool TopicPane::findNext(const std::string& text) {
    if (!hasTopic()) return false;
    auto found = topics::FindText(*shown_.topic, text, std::max(anchor_, caret_), false);
    if (!found) found = topics::FindText(*shown_.topic, text, {}, false);
    if (!found) return false;
    select(*found, {found->paragraph, found->character + static_cast<std::uint32_t>(text.size())});
    if (const auto top = topics::TopOf(layout_.scrolling, *found))
        bringIntoView(*top, *top + Scaled(kLineStep, device_.dpi()));
    return true;
}

// ---- links and keys ----------------------------------------------------------------------------------------------

std::vector<topics::LinkArea> TopicPane::allAreas() const {
    std::vector<topics::LinkArea> areas = fixedAreas_;
    areas.insert(areas.end(), scrollingAreas_.begin(), scrollingAreas_.end());
    return areas;
}

void TopicPane::goToLink(bool forward) {
    focusedLink_ = topics::NextLink(allAreas(), focusedLink_, forward);
    const auto area = std::ranges::find(scrollingAreas_, focusedLink_, &topics::LinkArea::link);
    if (area != scrollingAreas_.end()) bringIntoView(area->box.top, area->box.bottom);
    InvalidateRect(window(), nullptr, FALSE);
}

void TopicPane::followFocusedLink() {
    if (focusedLink_ >= 0) followLink(focusedLink_);
}

// What the link leads to takes the place of its topic, which is kept meanwhile.
void TopicPane::followLink(int number) {
    focusedLink_ = number;
    InvalidateRect(window(), nullptr, FALSE);
    for (const Part& part : {fixedPart(), scrollingPart()}) {
        const auto area = std::ranges::find(*part.areas, number, &topics::LinkArea::link);
        if (area == part.areas->end()) continue;
        linkPosition_ = {part.origin.x + area->box.left, part.origin.y + area->box.bottom};
        ClientToScreen(window(), &linkPosition_);
    }
    const std::shared_ptr<const topics::Topic> topic = shown_.topic;
    host_.followLink(*this, topic->links[static_cast<std::size_t>(number)]);
}

bool TopicPane::onFocusGained() {
    return true;
}

bool TopicPane::onFocusLost() {
    host_.paneLeft(*this);
    return true;
}

bool TopicPane::onKey(const KeyMessage& key) {
    const auto isKey = [&key](const TopicPaneKeys::Row& row) {
        return row.key == key.key && row.control == key.control && row.shift == key.shift && !key.alt;
    };
    const auto row = std::ranges::find_if(TopicPaneKeys::kRows, isKey);
    if (row == std::end(TopicPaneKeys::kRows) || !hasTopic()) return host_.useKey(key);
    (this->*row->run)();
    return true;
}

}  // namespace vexa
