#include "ui/help/help_window.h"

#include <algorithm>

#include "base/scoped_flag.h"
#include "base/strings.h"
#include "framework/dpi.h"
#include "quickhelp/linked_help_file.h"
#include "ui/help/help.h"
#include "ui/help/help_window_placement.h"
#include "ui/help/viewer_dialogs.h"
#include "ui/resources/resource.h"

namespace vexa {
namespace {

using topics::BrowserOutcome;

constexpr WindowClass kHelpClass{.name = kHelpWindowClass, .background = COLOR_3DFACE, .icon = IDI_VEXA};
constexpr UINT kAskMessage = WM_APP + 1;  // the outcome to ask about
constexpr int kFootGap = 3;               // pixels at the normal resolution

}  // namespace

struct HelpWindowTables {
    static constexpr TextId kMenus[] = {TextId::HelpTopicMenu, TextId::HelpEditMenu, TextId::HelpGoMenu};
    enum Menu : std::uint8_t { kTopic, kEdit, kGo };  // positions in kMenus

    struct Command {
        CommandBar::Row row;
        void (HelpWindow::*run)();
        bool (topics::HelpBrowser::*isEnabled)() const;  // always without one
    };
    static constexpr Command kCommands[] = {
        {{TextId::HelpPrint, kTopic, false}, &HelpWindow::print, nullptr},
        {{TextId::HelpClose, kTopic, false}, &HelpWindow::leave, nullptr},
        {{TextId::HelpCopy, kEdit, false}, &HelpWindow::copy, nullptr},
        {{TextId::HelpSelectAll, kEdit, false}, &HelpWindow::selectAll, nullptr},
        {{TextId::HelpContents, kGo, true}, &HelpWindow::toContents, nullptr},
        {{TextId::HelpIndex, kGo, true}, &HelpWindow::toIndex, nullptr},
        {{TextId::HelpBack, kGo, true}, &HelpWindow::toLast, &topics::HelpBrowser::canGoBack},
        {{TextId::HelpPrevious, kGo, true}, &HelpWindow::toPrevious, &topics::HelpBrowser::canGoPrevious},
        {{TextId::HelpNext, kGo, true}, &HelpWindow::toNext, &topics::HelpBrowser::canGoNext},
        {{TextId::HelpFind, kEdit, true}, &HelpWindow::find, nullptr},
        {{TextId::HelpFindNext, kEdit, false}, &HelpWindow::findNext, nullptr},
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

HelpWindow::HelpWindow(ConfigStore& store, std::string indexDirectory, TopicPrinter& printer)
    : store_(store),
      printer_(printer),
      browser_([directory = std::move(indexDirectory)](const std::string& name, const std::string& from) {
          return FindLinkedHelpFile(name, from, directory);
      }),
      pane_(*this),
      popUp_(*this) {
    for (const HelpWindowTables::Command& command : HelpWindowTables::kCommands)
        bar_.add(command.row);
}

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
            popUp_.openPopUp(window(), browser_.popUp(), pane_.linkPosition());
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
    place(LoadHelpWindowPlacement(store_, DpiOf(window())));
    show(true);
    return true;
}

bool HelpWindow::onCreate() {
    foot_ = CreateWindowExA(0, "STATIC", "", WS_CHILD | SS_NOPREFIX, 0, 0, 0, 0, window(), nullptr,
                            GetModuleHandleA(nullptr), nullptr);
    if (!foot_ || !bar_.open(window(), HelpWindowTables::kMenus) || !pane_.open(window())) return false;
    refreshFont();
    return true;
}

void HelpWindow::onDestroy() {
    closePopUp();
    SaveHelpWindowPlacement(store_, window());
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
    bar_.setFont(font.get());
    SendMessageA(foot_, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    font_ = std::move(font);
    layOut();
}

void HelpWindow::layOut() {
    const RECT area = clientArea();
    const int gap = Scaled(kFootGap, DpiOf(window()));
    const int lineHeight = static_cast<int>(MetricsOf(window(), font_.get()).tmHeight);
    const bool hasFoot = GetWindowTextLengthA(foot_) > 0;
    const int footHeight = hasFoot ? lineHeight + 2 * gap : 0;
    const LONG top = bar_.layOut(font_.get());
    const LONG bottom = std::max(top, area.bottom - footHeight);
    pane_.place({0, top, area.right, bottom});
    MoveWindow(foot_, gap, static_cast<int>(bottom) + gap, static_cast<int>(area.right) - 2 * gap, lineHeight, TRUE);
    ShowWindow(foot_, hasFoot ? SW_SHOWNA : SW_HIDE);
}

void HelpWindow::refreshCommands() {
    for (std::size_t i = 0; i < std::size(HelpWindowTables::kCommands); ++i) {
        const auto isEnabled = HelpWindowTables::kCommands[i].isEnabled;
        bar_.enable(i, !isEnabled || (browser_.*isEnabled)());
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
    const auto command = bar_.commandOf(id);
    if (!command) return false;
    SetFocus(pane_.window());
    (this->*HelpWindowTables::kCommands[*command].run)();
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

bool HelpWindow::useMnemonic(unsigned char character) {
    const auto command = bar_.commandOfMnemonic(character);
    if (command) (this->*HelpWindowTables::kCommands[*command].run)();
    return command.has_value();
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
