#include "ui/help/help_window.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/scoped_flag.h"
#include "base/strings.h"
#include "framework/dpi.h"
#include "framework/menu.h"
#include "quickhelp/linked_help_file.h"
#include "shell/frame_placement.h"
#include "ui/help/help.h"
#include "ui/help/viewer_dialogs.h"
#include "ui/resources/resource.h"

namespace vexa {
namespace {

using topics::BrowserOutcome;

constexpr WindowClass kHelpClass{.name = kHelpWindowClass, .background = COLOR_3DFACE, .icon = IDI_VEXA};
constexpr const char* kSection = "Help Window";
constexpr ScreenRect kFirstPlace{80, 60, 760, 560};  // at the normal resolution; shows the manual's widest picture
constexpr UINT kAskMessage = WM_APP + 1;             // the outcome to ask about
constexpr WORD kFirstCommand = 1;
constexpr int kGap = 3;  // pixels at the normal resolution, as is the other
constexpr int kButtonEdges = 16;

RECT RectOf(const ScreenRect& place) {
    return {place.x, place.y, place.x + place.width, place.y + place.height};
}

ScreenRect ScreenRectOf(const RECT& area) {
    return {static_cast<std::int32_t>(area.left), static_cast<std::int32_t>(area.top),
            static_cast<std::int32_t>(area.right - area.left), static_cast<std::int32_t>(area.bottom - area.top)};
}

ScreenRect WorkAreaNear(const ScreenRect& place) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    const RECT area = RectOf(place);
    GetMonitorInfoA(MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST), &monitor);
    return ScreenRectOf(monitor.rcWork);
}

char MnemonicOf(std::string_view text) {
    const std::size_t mark = text.find('&');
    return mark + 1 < text.size() ? LowerAscii(text[mark + 1]) : '\0';
}

}  // namespace

struct HelpWindowTables {
    static constexpr TextId kMenus[] = {TextId::HelpTopicMenu, TextId::HelpEditMenu, TextId::HelpGoMenu};
    enum Menu { kTopic, kEdit, kGo };

    // In its menu, and where it has one as a button.
    struct Command {
        TextId text;
        Menu menu;
        bool isButton;
        void (HelpWindow::*run)();
        bool (topics::HelpBrowser::*isEnabled)() const;  // always without one
    };
    static constexpr Command kCommands[] = {
        {TextId::HelpPrint, kTopic, false, &HelpWindow::print, nullptr},
        {TextId::HelpClose, kTopic, false, &HelpWindow::leave, nullptr},
        {TextId::HelpCopy, kEdit, false, &HelpWindow::copy, nullptr},
        {TextId::HelpSelectAll, kEdit, false, &HelpWindow::selectAll, nullptr},
        {TextId::HelpContents, kGo, true, &HelpWindow::toContents, nullptr},
        {TextId::HelpIndex, kGo, true, &HelpWindow::toIndex, nullptr},
        {TextId::HelpBack, kGo, true, &HelpWindow::toLast, &topics::HelpBrowser::canGoBack},
        {TextId::HelpPrevious, kGo, true, &HelpWindow::toPrevious, &topics::HelpBrowser::canGoPrevious},
        {TextId::HelpNext, kGo, true, &HelpWindow::toNext, &topics::HelpBrowser::canGoNext},
        {TextId::HelpFind, kEdit, true, &HelpWindow::find, nullptr},
        {TextId::HelpFindNext, kEdit, false, &HelpWindow::findNext, nullptr},
    };

    struct Key {
        UINT key;
        bool control;
        bool alt;
        void (HelpWindow::*run)();
    };
    static constexpr Key kKeys[] = {
        {VK_ESCAPE, false, false, &HelpWindow::leave}, {VK_BACK, false, false, &HelpWindow::toLast},
        {VK_LEFT, false, true, &HelpWindow::toLast},   {VK_F3, false, false, &HelpWindow::findNext},
        {'F', true, false, &HelpWindow::find},         {'P', true, false, &HelpWindow::print},
    };
};

namespace {

constexpr std::size_t kCommandCount = std::size(HelpWindowTables::kCommands);

WORD NumberOf(std::size_t command) {
    return static_cast<WORD>(kFirstCommand + command);
}

// Without the key that a menu shows.
std::string ButtonText(std::size_t command) {
    const std::string_view text = LoadText(HelpWindowTables::kCommands[command].text);
    return std::string(text.substr(0, text.find('\t')));
}

std::vector<MenuRows> Menus() {
    std::vector<MenuRows> menus;
    for (const TextId heading : HelpWindowTables::kMenus)
        menus.push_back({std::string(LoadText(heading)), {}});
    for (std::size_t i = 0; i < kCommandCount; ++i) {
        const HelpWindowTables::Command& command = HelpWindowTables::kCommands[i];
        menus[command.menu].items.push_back({NumberOf(i), std::string(LoadText(command.text))});
    }
    return menus;
}

}  // namespace

HelpWindow::HelpWindow(ConfigStore& store, std::string indexDirectory, TopicPrinter& printer)
    : store_(store),
      printer_(printer),
      browser_([directory = std::move(indexDirectory)](const std::string& name, const std::string& from) {
          return FindLinkedHelpFile(name, from, directory);
      }),
      pane_(*this),
      popUp_(*this) {}

HelpWindow::~HelpWindow() {
    destroy();
}

// ---- what is shown -----------------------------------------------------------------------------------------------

bool HelpWindow::showContents(const std::string& path) {
    return present(browser_.openContents(path));
}

bool HelpWindow::showNumber(const std::string& path, std::int32_t number) {
    return present(browser_.openNumber(path, number));
}

bool HelpWindow::showKeyword(const std::string& path, const std::string& keyword) {
    return present(browser_.openKeyword(path, keyword));
}

bool HelpWindow::present(BrowserOutcome outcome) {
    if (outcome == BrowserOutcome::Nothing || !openWindow()) return false;
    if (IsIconic(window())) ShowWindow(window(), SW_RESTORE);
    SetForegroundWindow(window());
    showTopic();
    if (outcome != BrowserOutcome::Show) carryOut(outcome);
    return true;
}

void HelpWindow::carryOut(BrowserOutcome outcome) {
    switch (outcome) {
        case BrowserOutcome::Nothing:
            break;
        case BrowserOutcome::Show:
            showTopic();
            break;
        case BrowserOutcome::PopUp:
            popUp_.openPopUp(window(), browser_.popUp(), pane_.linkPlace());
            break;
        case BrowserOutcome::Index:
        case BrowserOutcome::Choice:
            askLater(outcome);
            break;
        case BrowserOutcome::Close:
            PostMessageA(window(), WM_CLOSE, 0, 0);
            break;
    }
    showRefused();
}

void HelpWindow::showTopic() {
    closePopUp();
    tell({});
    const topics::ShownTopic& shown = *browser_.current();
    setText(shown.caption());
    pane_.show(shown);
    refreshCommands();
    showRefused();
    SetFocus(pane_.window());
}

void HelpWindow::showRefused() {
    std::string list;
    for (const std::string& macro : browser_.takeRefused())
        list += (list.empty() ? "" : "; ") + macro;
    if (!list.empty()) tell(FillText(TextId::HelpMacrosRefused, {list}));
}

void HelpWindow::tell(const std::string& text) {
    SetWindowTextA(foot_, text.c_str());
    layOut();
}

void HelpWindow::followLink(TopicPane& pane, const topics::Link& link) {
    const BrowserOutcome outcome = browser_.follow(pane.shown(), link);
    carryOut(outcome);
    const bool isDead = outcome == BrowserOutcome::Nothing && link.action != topics::LinkAction::Macro;
    if (isDead) tell(std::string(LoadText(TextId::HelpLinkDead)));
}

// ---- the window --------------------------------------------------------------------------------------------------

bool HelpWindow::openWindow() {
    if (window()) return true;
    if (!create(kHelpClass, {.title = "", .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN})) return false;
    placeFirst();
    show(true);
    return true;
}

bool HelpWindow::onCreate() {
    MenuHandle bar = MakeMenuBar(Menus());
    if (SetMenu(window(), bar.get())) static_cast<void>(bar.release());  // the window now owns it
    foot_ = CreateWindowExA(0, "STATIC", "", WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0, window(), nullptr,
                            GetModuleHandleA(nullptr), nullptr);
    if (!foot_ || !addButtons() || !pane_.open(window())) return false;
    refreshFont();
    return true;
}

bool HelpWindow::addButtons() {
    bool areMade = true;
    for (std::size_t i = 0; i < kCommandCount; ++i) {
        if (!HelpWindowTables::kCommands[i].isButton) continue;
        const auto id = static_cast<UINT_PTR>(NumberOf(i));
        areMade &= CreateWindowExA(0, "BUTTON", ButtonText(i).c_str(), WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, window(),
                                   reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr) != nullptr;
    }
    return areMade;
}

// None where the command has none.
HWND HelpWindow::button(std::size_t command) const {
    return GetDlgItem(window(), NumberOf(command));
}

void HelpWindow::placeFirst() {
    const auto number = [this](const char* key, std::int32_t fallback) {
        return store_.ReadInt(kSection, key, fallback);
    };
    const int dpi = DpiOf(window());
    const ScreenRect room = WorkAreaNear(kFirstPlace);
    const ScreenRect first{kFirstPlace.x, kFirstPlace.y,
                           std::min(Scaled(kFirstPlace.width, dpi), room.width - 2 * kFirstPlace.x),
                           std::min(Scaled(kFirstPlace.height, dpi), room.height - 2 * kFirstPlace.y)};
    ScreenRect place{number("x", first.x), number("y", first.y), number("cx", first.width), number("cy", first.height)};
    if (place.width <= 0 || place.height <= 0) place = first;
    const ScreenRect areas[] = {WorkAreaNear(place)};
    WindowCL::place(RectOf(KeptOnScreen(place, areas)));
}

void HelpWindow::savePlace() const {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    if (!GetWindowPlacement(window(), &placement)) return;
    const ScreenRect place = ScreenRectOf(placement.rcNormalPosition);
    const ConfigStore::Batch batch(store_);
    store_.WriteInt(kSection, "x", place.x);
    store_.WriteInt(kSection, "y", place.y);
    store_.WriteInt(kSection, "cx", place.width);
    store_.WriteInt(kSection, "cy", place.height);
}

void HelpWindow::onDestroy() {
    closePopUp();
    savePlace();
}

bool HelpWindow::onSize(UINT kind) {
    if (kind == SIZE_MINIMIZED || !pane_.window()) return false;
    closePopUp();
    layOut();
    return true;
}

void HelpWindow::refreshFont() {
    const LOGFONTA description = StatusFont(DpiOf(window()));
    FontHandle font(CreateFontIndirectA(&description));
    for (std::size_t i = 0; i < kCommandCount; ++i)
        SendMessageA(button(i), WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    SendMessageA(foot_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    font_ = std::move(font);
    layOut();
}

void HelpWindow::layOut() {
    const RECT area = clientArea();
    const int dpi = DpiOf(window());
    const int gap = Scaled(kGap, dpi);
    const int lineHeight = static_cast<int>(MetricsOf(window(), font_.get()).tmHeight);
    const bool hasFoot = GetWindowTextLengthA(foot_) > 0;
    const int footHeight = hasFoot ? lineHeight + 2 * gap : 0;
    const LONG top = layOutButtons(gap, lineHeight + Scaled(kButtonEdges, dpi) / 2);
    const LONG bottom = std::max(top, area.bottom - footHeight);
    pane_.place({0, top, area.right, bottom});
    MoveWindow(foot_, gap, static_cast<int>(bottom) + gap, static_cast<int>(area.right) - 2 * gap, lineHeight, TRUE);
    ShowWindow(foot_, hasFoot ? SW_SHOWNA : SW_HIDE);
}

// Gives the height that they take.
int HelpWindow::layOutButtons(int gap, int height) {
    int x = gap;
    for (std::size_t i = 0; i < kCommandCount; ++i) {
        if (!HelpWindowTables::kCommands[i].isButton) continue;
        const int width = TextWidth(window(), font_.get(), ButtonText(i)) + Scaled(kButtonEdges, DpiOf(window()));
        MoveWindow(button(i), x, gap, width, height, TRUE);
        x += width + gap;
    }
    return height + 2 * gap;
}

void HelpWindow::refreshCommands() {
    for (std::size_t i = 0; i < kCommandCount; ++i) {
        const auto isEnabled = HelpWindowTables::kCommands[i].isEnabled;
        const bool enabled = !isEnabled || (browser_.*isEnabled)();
        EnableWindow(button(i), enabled);
        EnableMenuItem(GetMenu(window()), NumberOf(i), MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
    }
}

bool HelpWindow::onFocusGained() {
    SetFocus(pane_.window());
    return true;
}

bool HelpWindow::onDpiChanged(const RECT& suggested) {
    refreshFont();
    place(suggested);
    return true;
}

void HelpWindow::onSettingChange() {
    if (!pane_.window()) return;
    pane_.refreshColours();
    refreshFont();
}

// ---- commands, keys and questions --------------------------------------------------------------------------------

bool HelpWindow::onCommand(WORD id, bool) {
    if (id < kFirstCommand || id >= NumberOf(kCommandCount)) return false;
    SetFocus(pane_.window());
    (this->*HelpWindowTables::kCommands[id - kFirstCommand].run)();
    return true;
}

bool HelpWindow::useKey(const KeyMessage& key) {
    const auto isKey = [&key](const HelpWindowTables::Key& row) {
        return row.key == key.key && row.control == key.control && row.alt == key.alt;
    };
    const auto row = std::ranges::find_if(HelpWindowTables::kKeys, isKey);
    if (row == std::end(HelpWindowTables::kKeys)) return false;
    (this->*row->run)();
    return true;
}

// Of a button; the menus have theirs by the system.
bool HelpWindow::useMnemonic(unsigned char character) {
    for (std::size_t i = 0; i < kCommandCount; ++i) {
        const HelpWindowTables::Command& command = HelpWindowTables::kCommands[i];
        const bool isMeant = MnemonicOf(LoadText(command.text)) == LowerAscii(static_cast<char>(character));
        if (!isMeant || !IsWindowEnabled(button(i))) continue;
        (this->*command.run)();
        return true;
    }
    return false;
}

void HelpWindow::print() {
    const topics::ShownTopic* shown = browser_.current();
    if (shown && IsWindowEnabled(window())) tell(printer_.printTopic(window(), *shown));
}

void HelpWindow::leave() {
    if (popUp_.window()) {
        closePopUp();
    } else {
        PostMessageA(window(), WM_CLOSE, 0, 0);
    }
}

void HelpWindow::paneScrolled(TopicPane& pane, int y) {
    if (&pane == &pane_) browser_.keepScroll(y);
}

void HelpWindow::panePressed(TopicPane& pane) {
    if (&pane == &pane_) closePopUp();
}

void HelpWindow::paneLeft(TopicPane& pane) {
    if (&pane == &popUp_) closePopUp();
}

// The pop-up loses the keyboard while it is closed and would be closed again.
void HelpWindow::closePopUp() {
    if (isPopUpClosing_ || !popUp_.window()) return;
    const ScopedFlag closing(isPopUpClosing_);
    popUp_.closePopUp();
}

// A dialog waits for its answer, and who asked for the topic does not.
void HelpWindow::askLater(BrowserOutcome outcome) {
    PostMessageA(window(), kAskMessage, static_cast<WPARAM>(outcome), 0);
}

bool HelpWindow::onOther(Message& message) {
    if (message.number != kAskMessage) return false;
    if (message.wParam == static_cast<WPARAM>(BrowserOutcome::Index)) {
        askForKeyword();
    } else {
        askForTopic();
    }
    return true;
}

// The frame can be used meanwhile, so that another file may be shown when the dialog ends.
void HelpWindow::askForKeyword() {
    const topics::ShownTopic* shown = browser_.current();
    if (!shown || !IsWindowEnabled(window())) return;
    const auto file = shown->file;  // the keywords are texts of the file
    HelpIndexDialog dialog(file->index().keywords());
    const bool isChosen = dialog.runModal(window());
    if (isChosen && browser_.current()->file == file) carryOut(browser_.showKeyword(dialog.chosen()));
}

void HelpWindow::askForTopic() {
    if (browser_.found().empty() || !IsWindowEnabled(window())) return;
    const auto file = browser_.current()->file;
    HelpChoiceDialog dialog(browser_.found());
    const bool isChosen = dialog.runModal(window());
    if (isChosen && browser_.current()->file == file) carryOut(browser_.goTo(dialog.chosen().offset));
}

void HelpWindow::find() {
    if (!IsWindowEnabled(window())) return;
    HelpFindDialog dialog(findText_);
    if (!dialog.runModal(window())) return;
    findText_ = dialog.findText();
    findNext();
}

void HelpWindow::findNext() {
    if (findText_.empty()) return find();
    const bool isFound = pane_.findNext(findText_);
    tell(isFound ? std::string() : FillText(TextId::HelpTextNotFound, {findText_}));
    if (!isFound) MessageBeep(MB_ICONEXCLAMATION);
}

}  // namespace vexa
