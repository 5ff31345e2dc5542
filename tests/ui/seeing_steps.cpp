// What the steps of a case look for.
#include <algorithm>
#include <iterator>

#include "quickhelp/topic_numbers.h"
#include "quickhelp/topics/help_file.h"
#include "ui/dialogs.h"
#include "ui/pixels.h"
#include "ui/ui_stage.h"

namespace vexa::test {
namespace {

const std::map<std::string, COLORREF> kColours = {{"white", kWhite}, {"yellow", kYellow}, {"black", kBlack},
                                                  {"gray", kGray},   {"blue", kDarkBlue}, {"purple", kDarkPurple},
                                                  {"cyan", kCyan}};

bool HasDialog(Stage& stage, StepWords words) {
    while (!stage.dialogs.empty() && !IsWindow(stage.dialog()))
        stage.dialogs.pop_back();
    const HWND front = GetForegroundWindow();
    if (!IsWindowVisible(front) || ClassOf(front) != "#32770" || TextOf(front) != words.rest()) return false;
    if (stage.dialogs.empty() || stage.dialog() != front) stage.dialogs.push_back(front);
    return true;
}

bool IsGone(Stage& stage, StepWords) {
    if (IsWindow(stage.dialog()) && IsWindowVisible(stage.dialog())) return false;
    stage.dialogs.pop_back();
    return true;
}

// Lists answer other programs in wide characters alone.
std::string RowOf(HWND list, int row) {
    wchar_t wide[300] = L"";
    const UINT message = ClassOf(list) == "ComboBox" ? CB_GETLBTEXT : LB_GETTEXT;
    SendMessageW(list, message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(wide));
    char text[300] = "";
    WideCharToMultiByte(CP_ACP, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    std::replace(std::begin(text), std::end(text), '\t', ' ');  // between columns
    return text;
}

LRESULT RowsOf(HWND list) {
    return SendMessageA(list, ClassOf(list) == "ComboBox" ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
}

bool HasRow(Stage& stage, StepWords words) {
    const HWND list = words.control(stage);
    const int row = words.number();
    return RowOf(list, row) == words.rest();
}

bool IsAt(Stage& stage, StepWords words) {
    const int line = words.number();
    char text[40];
    std::snprintf(text, sizeof text, " L:%5.5d C:%3.3d", line, words.number());
    return stage.editor->pane(PaneNamed("position")) == text;
}

bool HasMoved(Stage& stage, StepWords words) {
    RECT place{};
    GetWindowRect(stage.dialog(), &place);
    const int x = words.number();
    return place.left == x && place.top == words.number();
}

// Read when the editor takes messages, so not in the middle of its writing.
std::string FileOf(const Stage& stage, const std::string& name) {
    if (stage.editor) stage.editor->answers();
    return stage.folder.get(name);
}

bool FileHas(Stage& stage, StepWords words) {
    const std::string text = "\r\n" + FileOf(stage, words.word());
    return text.find("\r\n" + words.rest() + "\r\n") != std::string::npos;
}

bool IsOverFrame(Stage& stage, StepWords) {
    RECT frame{};
    RECT dialog{};
    GetWindowRect(stage.editor->frame(), &frame);
    GetWindowRect(stage.dialog(), &dialog);
    return std::abs(frame.left + frame.right - dialog.left - dialog.right) <= 2 &&
           std::abs(frame.top + frame.bottom - dialog.top - dialog.bottom) <= 2;
}

bool IsOtherInFront(Stage& stage, StepWords) {
    DWORD process = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &process);
    return process != 0 && process != GetProcessId(stage.editor->process());
}

bool HasFocus(Stage& stage, StepWords words) {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(stage.dialog(), nullptr), &info);
    return info.hwndFocus == words.control(stage);
}

// Without a text the middle of a pane has one colour from edge to edge.
bool IsPlain(Stage& stage, StepWords words) {
    const HWND bar = ChildrenOf(stage.editor->frame(), "StatusBarCL").at(0);
    const HWND pane = ChildrenOf(bar, "CtrlWindowCL").at(words.pane());
    RECT inside{};
    GetClientRect(pane, &inside);
    const auto pixels = PixelsOf(pane);
    const auto row = pixels.begin() + inside.bottom / 2 * inside.right;
    return std::all_of(row + 1, row + inside.right - 1, [row](std::uint32_t pixel) { return pixel == row[1]; });
}

bool IsShown(Stage& stage, StepWords words) {
    return IsWindowVisible(ChildrenOf(stage.editor->frame(), words.rest()).at(0));
}

bool IsViewer(Stage&, StepWords words) {
    const HWND viewer = FindWindowA("VexaHelp", nullptr);
    return viewer && viewer == GetForegroundWindow() && TextOf(viewer) == words.rest();
}

// The viewer is in front with a topic of the manual, which has the number of a command or stands for a dialog.
bool IsTopic(Stage& stage, StepWords words) {
    const auto file = topics::HelpFile::open(stage.folder.get("Vexa.hlp"));
    const std::string name = words.word();
    const std::uint32_t number = name == "contents" ? 0
                                 : name.starts_with("dialog-")
                                     ? kHelpOnDialogs + static_cast<std::uint32_t>(ControlNamed(name))
                                     : static_cast<std::uint32_t>(CommandNamed(name));
    const auto offset = file->index().offsetOfNumber(static_cast<std::int32_t>(number));
    const auto topic = offset ? file->topicAt(*offset) : file->contentsTopic();
    return IsViewer(stage, StepWords(file->system().title + " - " + file->topic(topic.value_or(0)).title, {}));
}

// Of the job that was printed last; each page begins with a comment of its own.
bool HasPages(Stage& stage, StepWords words) {
    const std::string job = stage.folder.get("printed.ps");
    int pages = 0;
    for (std::size_t at = 0; (at = job.find("\n%%Page: ", at)) != std::string::npos; ++at)
        ++pages;
    return pages == words.number();
}

bool IsChecked(HWND box) {
    return SendMessageA(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

const std::map<std::string, Run> kSteps = {
    {"!", [](Stage& s, StepWords w) { return s.editor->message() == w.rest(); }},
    {"says-below", [](Stage& s, StepWords w) { return s.editor->message().find(w.rest()) != std::string::npos; }},
    {"at", &IsAt},
    {"beyond", [](Stage& s, StepWords w) { return s.editor->line() > w.number(); }},
    {"pane", [](Stage& s, StepWords w) { return s.editor->pane(w.pane()) == w.rest(); }},
    {"plain", &IsPlain},
    {"wide", [](Stage& s, StepWords w) { return s.editor->paneWidth(w.pane()) > 0; }},
    {"narrow", [](Stage& s, StepWords w) { return s.editor->paneWidth(w.pane()) == 0; }},
    {"title", [](Stage& s, StepWords w) { return TextOf(s.editor->frame()) == w.rest(); }},
    {"caption", [](Stage& s, StepWords w) { return s.editor->caption().find(w.rest()) != std::string::npos; }},
    {"documents", [](Stage& s, StepWords w) { return s.editor->documents().size() == std::stoul(w.rest()); }},
    {"dialog", &HasDialog},
    {"says", [](Stage& s, StepWords w) { return BoxText(s.dialog()).find(w.rest()) != std::string::npos; }},
    {"gone", &IsGone},
    {"no-dialog", [](Stage& s, StepWords) { return !s.editor->hasDialog(); }},
    {"field", [](Stage& s, StepWords w) { return TextOf(w.control(s)) == w.rest(); }},
    {"field-has", [](Stage& s, StepWords w) { return TextOf(w.control(s)).find(w.rest()) != std::string::npos; }},
    {"checked", [](Stage& s, StepWords w) { return IsChecked(w.control(s)); }},
    {"unchecked", [](Stage& s, StepWords w) { return !IsChecked(w.control(s)); }},
    {"enabled", [](Stage& s, StepWords w) -> bool { return IsWindowEnabled(w.control(s)); }},
    {"disabled", [](Stage& s, StepWords w) { return !IsWindowEnabled(w.control(s)); }},
    {"switched-off", [](Stage& s, StepWords w) { return !IsWindowEnabled(w.window(s)); }},
    {"focused", &HasFocus},
    {"marked", [](Stage& s, StepWords w) { return SendMessageA(w.control(s), CB_GETEDITSEL, 0, 0) != 0; }},
    {"unmarked", [](Stage& s, StepWords w) { return SendMessageA(w.control(s), CB_GETEDITSEL, 0, 0) == 0; }},
    {"rows", [](Stage& s, StepWords w) { return RowsOf(w.control(s)) == w.number(); }},
    {"row", &HasRow},
    {"chosen", [](Stage& s, StepWords w) { return SendMessageA(w.control(s), LB_GETCURSEL, 0, 0) == w.number(); }},
    {"moved", &HasMoved},
    {"file-is", [](Stage& s, StepWords w) { return FileOf(s, w.rest()) == w.lines(); }},
    {"file-has", &FileHas},
    {"exists", [](Stage& s, StepWords w) { return s.folder.has(w.rest()); }},
    {"missing", [](Stage& s, StepWords w) { return !s.folder.has(w.rest()); }},
    {"clipboard", [](Stage&, StepWords w) { return ClipboardText() == (w.lines().empty() ? w.rest() : w.lines()); }},
    {"clipboard-has", [](Stage&, StepWords w) { return ClipboardText().find(w.rest()) != std::string::npos; }},
    {"tabs", [](Stage& s, StepWords w) { return TextOf(s.tabs()) == w.rest(); }},
    {"menu", [](Stage& s, StepWords) { return s.editor->hasPopupMenu(); }},
    {"over-frame", &IsOverFrame},
    {"other-program", &IsOtherInFront},
    {"waiting", [](Stage& s, StepWords) { return s.waiting->isRunning(); }},
    {"returned", [](Stage& s, StepWords w) { return HasReturned(*s.waiting, std::stoul(w.rest())); }},
    {"ended", [](Stage& s, StepWords) { return !s.editor->isRunning(); }},
    {"shown", &IsShown},
    {"hidden", [](Stage& s, StepWords w) { return !IsShown(s, w); }},
    {"minimised", [](Stage& s, StepWords) -> bool { return IsIconic(s.editor->frame()); }},
    {"restored", [](Stage& s, StepWords) { return !IsIconic(s.editor->frame()); }},
    {"viewer", &IsViewer},
    {"topic", &IsTopic},
    {"viewer-says",
     [](Stage&, StepWords w) {
         return TextOf(ChildrenOf(FindWindowA("VexaHelp", nullptr), "Static").at(0)) == w.rest();
     }},
    {"no-viewer", [](Stage&, StepWords) { return !FindWindowA("VexaHelp", nullptr); }},
    {"background",
     [](Stage& s, StepWords w) { return ShowsBackground(s.editor->activePane(), kColours.at(w.word())); }},
    {"first-line",
     [](Stage& s, StepWords w) { return ShowsInFirstLine(s.editor->activePane(), kColours.at(w.word())); }},
    {"pages", &HasPages},
};

}  // namespace

const std::map<std::string, Run>& SeeingSteps() {
    return kSteps;
}

}  // namespace vexa::test
