#include "ui/ui_case.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <sstream>

#include "quickhelp/topic_numbers.h"
#include "quickhelp/topics/help_file.h"
#include "quickhelp/topics/made_help_file.h"
#include "ui/clipboard.h"
#include "ui/dde_client.h"
#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/key_script.h"
#include "ui/pixels.h"
#include "ui/test_printer.h"

namespace vexa::test {
namespace {

// What a case needs is not on this machine.
struct Missing {
    const char* what;
};

struct Stage {
    HWND dialog() const { return dialogs.at(dialogs.size() - 1); }  // none fails the step

    TestFolder folder;
    std::unique_ptr<TestPrinter> printer;
    std::unique_ptr<Editor> editor;
    std::unique_ptr<StartedProgram> waiting;  // a start that waits for what it has opened there
    std::vector<HWND> dialogs;                // the one that is meant is the last
    std::unique_ptr<OpenedClipboard> heldClipboard;
    POINT cell{};  // the size of a character
};

// ---- names -------------------------------------------------------------------------------------------------------

const std::map<std::string, CommandId> kCommands = {
#define VEXA_MENU(kind, heading)
#define VEXA_SEPARATOR()
#define VEXA_AGAIN(name, text)
#define VEXA_COMMAND(name, id, text, keys, status, macro, need) {#name, CommandId::name},
#include "shell/commands.def"
#undef VEXA_MENU
#undef VEXA_SEPARATOR
#undef VEXA_AGAIN
#undef VEXA_COMMAND
};
const std::map<std::string, int> kControls = {
#include "controls.inc"
    {"ok", IDOK}, {"cancel", IDCANCEL}, {"yes", IDYES}, {"no", IDNO}, {"help", IDHELP}};
const std::map<std::string, COLORREF> kColours = {{"white", kWhite}, {"yellow", kYellow}, {"black", kBlack},
                                                  {"gray", kGray},   {"blue", kDarkBlue}, {"purple", kDarkPurple},
                                                  {"cyan", kCyan}};
const std::map<std::string, std::size_t> kPanes = {
    {"recording", 1}, {"read-only", 2}, {"line-ends", 3}, {"mode", 4}, {"position", 5}};

// The text of a step, which is taken word by word.
class Words {
  public:
    Words(std::string text, std::string lines) : text_(std::move(text)), lines_(std::move(lines)) {}

    std::string word() {
        const std::size_t end = std::min(text_.find(' '), text_.size());
        const std::string word = text_.substr(0, end);
        text_.erase(0, end + 1);
        return word;
    }
    int number() { return std::stoi(word()); }
    // The middle of a line and column.
    POINT pixel(const Stage& stage) {
        const int line = number();
        const int column = number();
        constexpr int kInMargin = -12;
        return {column == 0 ? kInMargin : stage.cell.x * (column - 1) + 1,
                stage.cell.y * (line - 1) + stage.cell.y / 2};
    }
    HWND control(const Stage& stage) { return GetDlgItem(stage.dialog(), kControls.at(word())); }
    const std::string& rest() const { return text_; }
    const std::string& lines() const { return lines_; }

  private:
    std::string text_;
    std::string lines_;
};

// ---- what is done, once ------------------------------------------------------------------------------------------

bool PutNumbered(Stage& stage, Words words) {
    const std::string name = words.word();
    const int count = words.number();
    std::string text;
    for (int i = 1; i <= count; ++i)
        text += "line " + std::to_string(i) + "\r\n";
    stage.folder.put(name, text);
    return true;
}

bool Start(Stage& stage, const std::string& directory, const std::string& arguments) {
    stage.editor.reset();
    stage.dialogs.clear();
    std::istringstream words(arguments);
    const std::vector<std::string> names{std::istream_iterator<std::string>(words), {}};
    stage.editor = std::make_unique<Editor>(stage.folder, names, directory);
    return true;
}

bool HasReturned(const StartedProgram& start, DWORD expected) {
    DWORD code = 0;
    return start.ends() && GetExitCodeProcess(start.process(), &code) && code == expected;
}

bool StartAgain(Stage& stage, Words words) {
    return HasReturned(StartedProgram(stage.folder, words.rest()), 0);
}

bool StartWaiting(Stage& stage, Words words) {
    stage.waiting = std::make_unique<StartedProgram>(stage.folder, words.rest());
    return true;
}

bool Command(Stage& stage, Words words) {
    if (!stage.editor->takesCommands()) return false;
    stage.editor->command(CommandNamed(words.word()));
    return true;
}

bool End(Stage& stage, Words) {
    if (!stage.editor->takesCommands()) return false;
    stage.editor->requestClose();
    return stage.editor->ends();
}

bool MakePrinter(Stage& stage, Words) {
    stage.printer = std::make_unique<TestPrinter>(stage.folder.path("printed.ps"));
    return stage.printer->isThere() ? true : throw Missing{"no printer can be made here"};
}

bool HaveNoPrinter(Stage&, Words) {
    RemoveTestPrinter();
    return HasPrinter() ? throw Missing{"there is a printer"} : true;
}

bool HaveCompiler(Stage&, Words) {
    const bool isThere = GetFileAttributesA("Z:\\usr\\bin\\i686-w64-mingw32-gcc") != INVALID_FILE_ATTRIBUTES;
    return isThere ? true : throw Missing{"this machine has no compiler"};
}

// For dialogs of the system, whose controls have no names.
bool ClickLabel(Stage& stage, Words words) {
    for (const HWND button : ChildrenOf(stage.dialog(), "Button")) {
        if (TextOf(button) == words.rest()) return PostMessageA(button, BM_CLICK, 0, 0);
    }
    return false;
}

bool PressButton(Stage& stage, Words words) {
    const bool isPressed = Press(stage.dialog(), kControls.at(words.word()));
    stage.dialogs.pop_back();
    return isPressed;
}

bool GoTo(Stage& stage, Words words) {
    const HWND window = words.word() == "text" ? stage.editor->frame() : stage.dialog();
    SetForegroundWindow(window);
    return WaitUntil([&] { return GetForegroundWindow() == window; });
}

HWND TabsOf(Stage& stage) {
    return ChildrenOf(stage.editor->frame(), "TabStripCL").at(0);
}

// Presses a button at a position of the tabs, in pixels, and lets it go there or at a second one.
bool PressTab(Stage& stage, Words words) {
    const bool isMiddle = words.word() == "middle";
    const LPARAM from = MAKELPARAM(words.number(), 8);
    const LPARAM to = words.rest().empty() ? from : MAKELPARAM(words.number(), 8);
    PostMessageA(TabsOf(stage), isMiddle ? WM_MBUTTONDOWN : WM_LBUTTONDOWN, MK_LBUTTON, from);
    PostMessageA(TabsOf(stage), WM_MOUSEMOVE, MK_LBUTTON, to);
    return PostMessageA(TabsOf(stage), isMiddle ? WM_MBUTTONUP : WM_LBUTTONUP, 0, to);
}

bool AskForTitleMenu(Stage& stage, Words) {
    RECT frame{};
    GetWindowRect(stage.editor->frame(), &frame);
    const LPARAM title = MAKELPARAM((frame.left + frame.right) / 2, frame.top + 12);
    return PostMessageA(stage.editor->frame(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(stage.editor->frame()), title);
}

bool PressPane(Stage& stage, Words words) {
    const HWND bar = ChildrenOf(stage.editor->frame(), "StatusBarCL").at(0);
    return PostMessageA(ChildrenOf(bar, "CtrlWindowCL").at(kPanes.at(words.word())), WM_LBUTTONDOWN, 0, 0);
}

bool FillControl(Stage& stage, Words words) {
    const HWND control = words.control(stage);
    return SendMessageA(control, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(words.rest().c_str()));
}

bool MoveDialog(Stage& stage, Words words) {
    const int x = words.number();
    return SetWindowPos(stage.dialog(), nullptr, x, words.number(), 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

bool MeasureCell(Stage& stage, Words) {
    stage.editor->keys("{Ctrl+Home}{Right}{Down}");
    if (!stage.editor->showsPosition(2, 2)) return false;
    GUITHREADINFO caret{};
    caret.cbSize = sizeof(caret);
    GetGUIThreadInfo(GetWindowThreadProcessId(stage.editor->frame(), nullptr), &caret);
    stage.cell = {caret.rcCaret.left, caret.rcCaret.top};
    return stage.cell.x > 0;
}

bool Drag(Stage& stage, Words words) {
    const POINT from = words.pixel(stage);
    stage.editor->drag({from, words.pixel(stage)});
    return true;
}

bool DragWithAlt(Stage& stage, Words words) {
    const POINT from = words.pixel(stage);
    stage.editor->dragWithAlt(from, words.pixel(stage));
    return true;
}

bool TurnWheel(Stage& stage, Words words) {
    static const std::map<std::string, WORD> kHeld = {{"alone", 0}, {"shift", MK_SHIFT}, {"control", MK_CONTROL}};
    const WORD held = kHeld.at(words.word());
    const WPARAM turn = MAKEWPARAM(held, static_cast<WORD>(words.number()));
    return stage.editor->send(WM_MOUSEWHEEL, turn);
}

bool Scroll(Stage& stage, Words words) {
    static const std::map<std::string, WORD> kRequests = {{"line-down", SB_LINEDOWN}, {"line-up", SB_LINEUP},
                                                          {"page-down", SB_PAGEDOWN}, {"page-up", SB_PAGEUP},
                                                          {"start", SB_TOP},          {"end", SB_BOTTOM}};
    const UINT bar = words.word() == "vertical" ? WM_VSCROLL : WM_HSCROLL;
    return stage.editor->send(bar, kRequests.at(words.word()));
}

// Beside NAME.png the file NAME.area says which part of the screen it is, as "WIDTHxHEIGHT+X+Y".
bool TakePictureOf(Stage& stage, Words words) {
    RECT area{};
    const std::string part = words.word();
    GetWindowRect(part == "frame"    ? stage.editor->frame()
                  : part == "viewer" ? FindWindowA("VexaHelp", nullptr)
                                     : stage.dialog(),
                  &area);
    if (const char* folder = std::getenv("VEXA_SCREENSHOTS"))
        std::ofstream(std::string(folder) + "/" + words.rest() + ".area")
            << area.right - area.left << 'x' << area.bottom - area.top << '+' << area.left << '+' << area.top;
    stage.editor->takePicture(words.rest());
    return true;
}

using Run = bool (*)(Stage& stage, Words words);

const std::map<std::string, Run> kDoing = {
    {"file", [](Stage& s, Words w) { return s.folder.put(w.rest(), w.lines()), true; }},
    {"numbered", &PutNumbered},
    {"folder", [](Stage& s, Words w) { return s.folder.makeDirectory(w.rest()), true; }},
    {"read-only", [](Stage& s, Words w) { return s.folder.setReadOnly(w.rest()), true; }},
    {"remove", [](Stage& s, Words w) { return std::filesystem::remove(s.folder.path(w.rest())); }},
    {"test-program", [](Stage& s, Words) { return s.folder.putTestProgram(), true; }},
    {"help-file", [](Stage& s, Words w) { return s.folder.put(w.rest(), topics::test::MakeHelpFile()), true; }},
    {"manual", [](Stage& s, Words) { return s.folder.putFromProgramFolder("Vexa.hlp"), true; }},
    {"printer", &MakePrinter},
    {"no-printer", &HaveNoPrinter},
    {"compiler", &HaveCompiler},
    {"start", [](Stage& s, Words w) { return Start(s, {}, w.rest()); }},
    {"start-in", [](Stage& s, Words w) { return Start(s, s.folder.path(w.rest()), {}); }},
    {"start-again", &StartAgain},
    {"start-waiting", &StartWaiting},
    {"end", &End},
    {"kill", [](Stage& s, Words) { return s.editor->kill(), true; }},
    {"keys", [](Stage& s, Words w) { return s.editor->keys(w.rest()), true; }},
    {"keys-there", [](Stage&, Words w) { return PressKeys(w.rest()), true; }},
    {"command", &Command},
    {"click-pane", &PressPane},
    {"press-tab", &PressTab},
    {"title-menu", &AskForTitleMenu},
    {"click", [](Stage& s, Words w) -> bool { return PostMessageA(w.control(s), BM_CLICK, 0, 0); }},
    {"click-label", &ClickLabel},
    {"measure-cell", &MeasureCell},
    {"mouse-click", [](Stage& s, Words w) { return s.editor->click(w.pixel(s)), true; }},
    {"mouse-double", [](Stage& s, Words w) { return s.editor->doubleClick(w.pixel(s)), true; }},
    {"mouse-triple", [](Stage& s, Words w) { return s.editor->tripleClick(w.pixel(s)), true; }},
    {"mouse-right", [](Stage& s, Words w) { return s.editor->rightClick(w.pixel(s)), true; }},
    {"mouse-drag", &Drag},
    {"mouse-column", &DragWithAlt},
    {"wheel", &TurnWheel},
    {"scroll", &Scroll},
    {"fill", &FillControl},
    {"choose", [](Stage& s, Words w) { return EnterFileName(s.dialog(), w.rest()); }},
    {"press", &PressButton},
    {"go-to", &GoTo},
    {"move", &MoveDialog},
    {"minimise", [](Stage& s, Words) { return ShowWindow(s.editor->frame(), SW_MINIMIZE), true; }},
    {"dde", [](Stage&, Words w) { return ExecuteByDde(w.rest()); }},
    {"copy-elsewhere", [](Stage&, Words w) { return PutForeignText(w.lines()), true; }},
    {"hold-clipboard", [](Stage& s, Words) { return s.heldClipboard = std::make_unique<OpenedClipboard>(), true; }},
    {"release-clipboard", [](Stage& s, Words) { return s.heldClipboard.reset(), true; }},
    {"picture-of", &TakePictureOf},
    {"picture", [](Stage& s, Words w) { return s.editor->takePicture(w.rest()), true; }},
};

// ---- what is seen, sooner or later -------------------------------------------------------------------------------

bool HasDialog(Stage& stage, Words words) {
    while (!stage.dialogs.empty() && !IsWindow(stage.dialog()))
        stage.dialogs.pop_back();
    const HWND front = GetForegroundWindow();
    if (ClassOf(front) != "#32770" || TextOf(front) != words.rest()) return false;
    if (stage.dialogs.empty() || stage.dialog() != front) stage.dialogs.push_back(front);
    return true;
}

bool IsGone(Stage& stage, Words) {
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

bool HasRow(Stage& stage, Words words) {
    const HWND list = words.control(stage);
    const int row = words.number();
    return RowOf(list, row) == words.rest();
}

bool IsAt(Stage& stage, Words words) {
    const int line = words.number();
    char text[40];
    std::snprintf(text, sizeof text, " L:%5.5d C:%3.3d", line, words.number());
    return stage.editor->pane(kPanes.at("position")) == text;
}

bool HasMoved(Stage& stage, Words words) {
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

bool FileHas(Stage& stage, Words words) {
    const std::string text = "\r\n" + FileOf(stage, words.word());
    return text.find("\r\n" + words.rest() + "\r\n") != std::string::npos;
}

bool IsOverFrame(Stage& stage, Words) {
    RECT frame{};
    RECT dialog{};
    GetWindowRect(stage.editor->frame(), &frame);
    GetWindowRect(stage.dialog(), &dialog);
    return std::abs(frame.left + frame.right - dialog.left - dialog.right) <= 2 &&
           std::abs(frame.top + frame.bottom - dialog.top - dialog.bottom) <= 2;
}

bool IsOtherInFront(Stage& stage, Words) {
    DWORD process = 0;
    GetWindowThreadProcessId(GetForegroundWindow(), &process);
    return process != 0 && process != GetProcessId(stage.editor->process());
}

bool HasFocus(Stage& stage, Words words) {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(stage.dialog(), nullptr), &info);
    return info.hwndFocus == words.control(stage);
}

bool IsShown(Stage& stage, Words words) {
    return IsWindowVisible(ChildrenOf(stage.editor->frame(), words.rest()).at(0));
}

bool IsViewer(Stage&, Words words) {
    const HWND viewer = FindWindowA("VexaHelp", nullptr);
    return viewer && viewer == GetForegroundWindow() && TextOf(viewer) == words.rest();
}

// The viewer is in front with a topic of the manual, which has the number of a command or stands for a dialog.
bool IsTopic(Stage& stage, Words words) {
    const auto file = topics::HelpFile::open(stage.folder.get("Vexa.hlp"));
    const std::string name = words.word();
    const auto dialog = kControls.find(name);
    const std::uint32_t number = name == "contents" ? 0
                                 : dialog != kControls.end()
                                     ? kHelpOnDialogs + static_cast<std::uint32_t>(dialog->second)
                                     : static_cast<std::uint32_t>(CommandNamed(name));
    const auto offset = file->index().offsetOfNumber(static_cast<std::int32_t>(number));
    const auto topic = offset ? file->topicAt(*offset) : file->contentsTopic();
    return IsViewer(stage, Words(file->system().title + " - " + file->topic(topic.value_or(0)).title, {}));
}

// Of the job that was printed last; each page begins with a comment of its own.
bool HasPages(Stage& stage, Words words) {
    const std::string job = stage.folder.get("printed.ps");
    int pages = 0;
    for (std::size_t at = 0; (at = job.find("\n%%Page: ", at)) != std::string::npos; ++at)
        ++pages;
    return pages == words.number();
}

bool IsChecked(HWND box) {
    return SendMessageA(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

const std::map<std::string, Run> kSeeing = {
    {"!", [](Stage& s, Words w) { return s.editor->message() == w.rest(); }},
    {"says-below", [](Stage& s, Words w) { return s.editor->message().find(w.rest()) != std::string::npos; }},
    {"at", &IsAt},
    {"beyond", [](Stage& s, Words w) { return s.editor->line() > w.number(); }},
    {"pane", [](Stage& s, Words w) { return s.editor->pane(kPanes.at(w.word())) == w.rest(); }},
    {"wide", [](Stage& s, Words w) { return s.editor->paneWidth(kPanes.at(w.word())) > 0; }},
    {"narrow", [](Stage& s, Words w) { return s.editor->paneWidth(kPanes.at(w.word())) == 0; }},
    {"title", [](Stage& s, Words w) { return TextOf(s.editor->frame()) == w.rest(); }},
    {"caption", [](Stage& s, Words w) { return s.editor->caption().find(w.rest()) != std::string::npos; }},
    {"documents", [](Stage& s, Words w) { return s.editor->documents().size() == std::stoul(w.rest()); }},
    {"dialog", &HasDialog},
    {"says", [](Stage& s, Words w) { return BoxText(s.dialog()).find(w.rest()) != std::string::npos; }},
    {"gone", &IsGone},
    {"no-dialog", [](Stage& s, Words) { return !s.editor->hasDialog(); }},
    {"field", [](Stage& s, Words w) { return TextOf(w.control(s)) == w.rest(); }},
    {"field-has", [](Stage& s, Words w) { return TextOf(w.control(s)).find(w.rest()) != std::string::npos; }},
    {"checked", [](Stage& s, Words w) { return IsChecked(w.control(s)); }},
    {"unchecked", [](Stage& s, Words w) { return !IsChecked(w.control(s)); }},
    {"enabled", [](Stage& s, Words w) -> bool { return IsWindowEnabled(w.control(s)); }},
    {"disabled", [](Stage& s, Words w) { return !IsWindowEnabled(w.control(s)); }},
    {"focused", &HasFocus},
    {"rows", [](Stage& s, Words w) { return RowsOf(w.control(s)) == w.number(); }},
    {"row", &HasRow},
    {"chosen", [](Stage& s, Words w) { return SendMessageA(w.control(s), LB_GETCURSEL, 0, 0) == w.number(); }},
    {"moved", &HasMoved},
    {"file-is", [](Stage& s, Words w) { return FileOf(s, w.rest()) == w.lines(); }},
    {"file-has", &FileHas},
    {"exists", [](Stage& s, Words w) { return s.folder.has(w.rest()); }},
    {"missing", [](Stage& s, Words w) { return !s.folder.has(w.rest()); }},
    {"clipboard", [](Stage&, Words w) { return ClipboardText() == (w.lines().empty() ? w.rest() : w.lines()); }},
    {"clipboard-has", [](Stage&, Words w) { return ClipboardText().find(w.rest()) != std::string::npos; }},
    {"tabs", [](Stage& s, Words w) { return TextOf(TabsOf(s)) == w.rest(); }},
    {"menu", [](Stage& s, Words) { return s.editor->hasPopupMenu(); }},
    {"over-frame", &IsOverFrame},
    {"other-program", &IsOtherInFront},
    {"waiting", [](Stage& s, Words) { return s.waiting->isRunning(); }},
    {"returned", [](Stage& s, Words w) { return HasReturned(*s.waiting, std::stoul(w.rest())); }},
    {"ended", [](Stage& s, Words) { return !s.editor->isRunning(); }},
    {"shown", &IsShown},
    {"hidden", [](Stage& s, Words w) { return !IsShown(s, w); }},
    {"minimised", [](Stage& s, Words) -> bool { return IsIconic(s.editor->frame()); }},
    {"restored", [](Stage& s, Words) { return !IsIconic(s.editor->frame()); }},
    {"viewer", &IsViewer},
    {"topic", &IsTopic},
    {"viewer-says",
     [](Stage&, Words w) { return TextOf(ChildrenOf(FindWindowA("VexaHelp", nullptr), "Static").at(0)) == w.rest(); }},
    {"no-viewer", [](Stage&, Words) { return !FindWindowA("VexaHelp", nullptr); }},
    {"background", [](Stage& s, Words w) { return ShowsBackground(s.editor->activePane(), kColours.at(w.word())); }},
    {"first-line", [](Stage& s, Words w) { return ShowsInFirstLine(s.editor->activePane(), kColours.at(w.word())); }},
    {"pages", &HasPages},
};

// ---- running -----------------------------------------------------------------------------------------------------

std::string Replaced(std::string text, const std::string& folder) {
    const std::string name = "%FOLDER%";
    for (std::size_t at; (at = text.find(name)) != std::string::npos;)
        text.replace(at, name.size(), folder);
    return text;
}

bool Succeeds(Stage& stage, const UiStep& step) {
    const Words words(Replaced(step.rest, stage.folder.path()), Replaced(step.lines, stage.folder.path()));
    if (const auto doing = kDoing.find(step.verb); doing != kDoing.end()) return doing->second(stage, words);
    const Run seen = kSeeing.at(step.verb);
    return WaitUntil([&] { return seen(stage, words); });
}

// What there is to see when a step has failed.
std::string Seen(const Stage& stage) {
    if (!stage.editor) return "no editor";
    std::string seen = stage.editor->caption() + " | " + stage.editor->message();
    for (std::size_t i = 1; i <= kPanes.size(); ++i)
        seen += " | " + stage.editor->pane(i);
    const HWND front = GetForegroundWindow();
    return seen + "\nin front: " + TextOf(front) + ": " + BoxText(front);
}

}  // namespace

CommandId CommandNamed(const std::string& name) {
    return kCommands.at(name);
}

std::vector<UiCase> ParseUiCases(const std::string& topic, const std::string& content) {
    std::vector<UiCase> cases;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        if (line.empty()) continue;
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string verb = line.substr(0, blank);
        const std::string rest = line.substr(std::min(blank + 1, line.size()));
        if (verb == "#") {
            cases.push_back({topic, rest, {}});
        } else if (verb == "<" || verb == ">") {
            cases.back().steps.back().lines += rest + "\r\n";
        } else {
            cases.back().steps.push_back({verb, rest, {}});
        }
    }
    return cases;
}

void RunUiCase(const UiCase& uiCase) {
    Stage stage;
    int number = 0;
    for (const UiStep& step : uiCase.steps) {
        ++number;
        try {
            ASSERT_TRUE(Succeeds(stage, step)) << "step " << number << ": " << step.verb << " " << step.rest << "\n"
                                               << step.lines << Seen(stage);
        } catch (const Missing& missing) {
            GTEST_SKIP() << missing.what;
        } catch (const std::exception& failure) {
            FAIL() << "step " << number << ": " << step.verb << " " << step.rest << ": " << failure.what();
        }
    }
}

}  // namespace vexa::test
