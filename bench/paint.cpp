// Measures how long a key takes until its text is painted.
//
// usage: paint text VEXA.EXE FILE          keys and scrolling by lines, in the editor and in Wine's notepad
//        paint long_line VEXA.EXE FILE     keys in a very long line
//        paint many_lines VEXA.EXE FILE    keys in a file of very many lines
//        paint hits VEXA.EXE FILE          keys in the lists of searches in files; beside FILE are the folders 10, 1000
//                                          and 100000, with as many lines that have the word "needle"
//
// The editor is ended without being closed, so its folder must not be one that it was measured in before: there it
// would offer what was typed.
//
// Each key is sent to the window, which is then made to paint at once; the clock runs from before the key to the end of
// the painting. Prints lines "name milliseconds" of the median, the 95th percentile and the longest. Fails when a
// character that was typed does not move the caret: it was not taken.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "shell/command_id.h"
#include "ui/resources/dialog_controls.h"

namespace {

constexpr int kKeys = 1000;
constexpr int kKeysInALine = 50;
constexpr int kLargeKeys = 200;
constexpr int kListTurns = 60;
constexpr DWORD kPatience = 60000;  // milliseconds

struct Program {
    const char* name;
    const char* frameClass;
    const char* textClass;  // of the window that holds the text, at any depth
};
constexpr Program kEditor = {"vexa", "AppFrameCL", "PaneWindowCL"};
constexpr Program kNotepad = {"notepad", "Notepad", "Edit"};

struct Search {
    const char* className;
    HWND found;
};

BOOL CALLBACK Look(HWND child, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    char name[64] = "";
    GetClassNameA(child, name, sizeof name);
    if (lstrcmpA(name, search.className) == 0) search.found = child;
    return search.found == nullptr;
}

HWND FindInside(HWND parent, const char* className) {
    Search search = {className, nullptr};
    if (parent) EnumChildWindows(parent, &Look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

template <class Condition>
bool WaitUntil(Condition condition) {
    for (DWORD waited = 0; waited < kPatience; waited += 50) {
        if (condition()) return true;
        Sleep(50);
    }
    return false;
}

HWND FindTextWindow(const Program& program) {
    HWND found = nullptr;
    const auto isThere = [&] {
        found = FindInside(FindWindowA(program.frameClass, nullptr), program.textClass);
        return found && IsWindowVisible(found);
    };
    return WaitUntil(isThere) ? found : nullptr;
}

double Milliseconds() {
    LARGE_INTEGER now;
    LARGE_INTEGER frequency;
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(now.QuadPart) / static_cast<double>(frequency.QuadPart);
}

template <class Act>
double TimeUntilPainted(HWND text, Act act) {
    const double start = Milliseconds();
    act();
    RedrawWindow(text, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    SendMessageA(text, WM_NULL, 0, 0);  // answered when a painting that had begun by itself is over
    return Milliseconds() - start;
}

void Key(HWND text, WPARAM key) {
    SendMessageA(text, WM_KEYDOWN, key, 1);
}

// As a keyboard does it: a key that types nothing has the character after it dropped, up to the next key.
void Type(HWND text, char character) {
    Key(text, LOBYTE(VkKeyScanA(character)));
    SendMessageA(text, WM_CHAR, static_cast<unsigned char>(character), 1);
}

RECT CaretOf(HWND text) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(text, nullptr), &info);
    return info.rcCaret;
}

double TimeTyping(HWND text, char character) {
    const RECT before = CaretOf(text);
    const double time = TimeUntilPainted(text, [&] { Type(text, character); });
    const RECT after = CaretOf(text);
    if (EqualRect(&before, &after)) {
        std::fprintf(stderr, "The character '%c' was not taken.\n", character);
        std::exit(EXIT_FAILURE);
    }
    return time;
}

void Print(const std::string& name, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("paint/%s/median %.3f\n", name.c_str(), times[times.size() / 2]);
    std::printf("paint/%s/percentile_95 %.3f\n", name.c_str(), times[times.size() * 95 / 100]);
    std::printf("paint/%s/longest %.3f\n", name.c_str(), times.back());
}

void MeasureKeys(const Program& program, HWND text) {
    std::vector<double> times;
    for (int i = 0; i < kKeys; ++i) {
        if (i % kKeysInALine == 0) {
            Type(text, '\r');
            RedrawWindow(text, nullptr, nullptr, RDW_UPDATENOW);
        }
        times.push_back(TimeTyping(text, static_cast<char>('a' + i % 26)));
    }
    Print(std::string("key/") + program.name, times);
}

void MeasureScrolling(const Program& program, HWND text) {
    std::vector<double> times;
    for (int i = 0; i < kKeys; ++i)
        times.push_back(TimeUntilPainted(text, [&] { SendMessageA(text, WM_VSCROLL, SB_LINEDOWN, 0); }));
    Print(std::string("scroll_line/") + program.name, times);
    SendMessageA(text, WM_VSCROLL, SB_TOP, 0);
}

// A comment that is opened on the first line takes in all text up to where the next one ends, and gives it back.
void MeasureComment(HWND text) {
    Type(text, '/');
    std::printf("paint/comment_opened/vexa %.3f\n", TimeTyping(text, '*'));
    std::printf("paint/comment_removed/vexa %.3f\n", TimeUntilPainted(text, [&] { Key(text, VK_BACK); }));
}

void MeasureText(const Program& program, HWND text) {
    if (&program == &kEditor) MeasureComment(text);
    MeasureKeys(program, text);
    MeasureScrolling(program, text);
}

void RepeatKey(const std::string& name, HWND text, WPARAM key) {
    std::vector<double> times;
    for (int i = 0; i < kLargeKeys; ++i)
        times.push_back(TimeUntilPainted(text, [&] { Key(text, key); }));
    Print(name + "/vexa", times);
}

void RepeatCharacter(const std::string& name, HWND text) {
    std::vector<double> times;
    for (int i = 0; i < kLargeKeys; ++i)
        times.push_back(TimeTyping(text, 'x'));
    Print(name + "/vexa", times);
}

void MeasureLongLine(const Program&, HWND text) {
    RepeatCharacter("long_line/type_at_start", text);
    Key(text, VK_END);
    RepeatCharacter("long_line/type_at_end", text);
    RepeatKey("long_line/left", text, VK_LEFT);
    RepeatKey("long_line/backspace", text, VK_BACK);
}

// A third End goes to the end of the text.
void MeasureManyLines(const Program&, HWND text) {
    RepeatKey("many_lines/page_down", text, VK_NEXT);
    RepeatKey("many_lines/enter", text, VK_RETURN);
    for (int i = 0; i < 3; ++i)
        Key(text, VK_END);
    RepeatCharacter("many_lines/type_at_end", text);
    RepeatKey("many_lines/page_up", text, VK_PRIOR);
    RepeatKey("many_lines/enter_near_end", text, VK_RETURN);
}

// ---- lists of hits -----------------------------------------------------------------------------------------------

std::string TextOf(HWND window) {
    char text[500] = "";
    SendMessageA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

void Command(HWND window, vexa::CommandId command) {
    SendMessageA(window, WM_COMMAND, static_cast<WPARAM>(command), 0);
}

void SearchFolder(HWND frame, const std::string& hits) {
    HWND dialog = nullptr;
    PostMessageA(frame, WM_COMMAND, static_cast<WPARAM>(vexa::CommandId::FindInFiles), 0);
    WaitUntil([&] { return (dialog = FindWindowA("#32770", "Find in Files")) != nullptr; });
    const HWND folder = GetDlgItem(dialog, IDC_SEARCHED_FOLDER);
    static const std::string beside = TextOf(folder);
    SendMessageA(folder, WM_SETTEXT, 0, reinterpret_cast<LPARAM>((beside + "\\" + hits).c_str()));
    SetDlgItemTextA(dialog, IDC_FIND_TEXT, "needle");
    SendMessageA(dialog, WM_COMMAND, IDOK, 0);
    const HWND status = FindInside(FindInside(frame, "StatusBarCL"), "CtrlWindowCL");
    const std::string end = "completed. " + hits + " lines";
    if (WaitUntil([&] { return TextOf(status).find(end) != std::string::npos; })) return;
    std::fprintf(stderr, "%s hits were not found: %s\n", hits.c_str(), TextOf(status).c_str());
    std::exit(EXIT_FAILURE);
}

// In turns with a preparation that is not measured.
template <class Prepare, class Act>
void MeasureTurns(const std::string& name, HWND window, Prepare prepare, Act act) {
    std::vector<double> times;
    for (int i = 0; i < kListTurns; ++i) {
        TimeUntilPainted(window, prepare);
        times.push_back(TimeUntilPainted(window, act));
    }
    Print("hits/" + name, times);
}

void MeasureList(HWND frame, const std::string& hits) {
    SearchFolder(frame, hits);
    const HWND list = FindInside(frame, "ListPaneCL");
    const auto home = [&] { Key(list, VK_HOME); };
    const auto end = [&] { Key(list, VK_END); };
    MeasureTurns("end/" + hits, frame, home, end);
    MeasureTurns("page_up/" + hits, frame, end, [&] { Key(list, VK_PRIOR); });
    MeasureTurns("open_last/" + hits, frame, end, [&] { Command(frame, vexa::CommandId::PreviousError); });
    MeasureTurns("open_first/" + hits, frame, home, [&] { Command(frame, vexa::CommandId::NextError); });
}

void MeasureHits(const Program&, HWND text) {
    for (const char* hits : {"10", "1000", "100000"})
        MeasureList(GetAncestor(text, GA_ROOT), hits);
}

bool Measure(const Program& program, const char* executable, const char* file, void (*work)(const Program&, HWND)) {
    std::string line = std::string("\"") + executable + "\" \"" + file + "\"";
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return false;
    const HWND text = FindTextWindow(program);
    if (text) {
        WaitForInputIdle(process.hProcess, kPatience);
        RedrawWindow(text, nullptr, nullptr, RDW_UPDATENOW);
        work(program, text);
    }
    TerminateProcess(process.hProcess, 0);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return text != nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return EXIT_FAILURE;
    const std::string_view what = argv[1];
    const auto work = what == "text"        ? MeasureText
                      : what == "long_line" ? MeasureLongLine
                      : what == "hits"      ? MeasureHits
                                            : MeasureManyLines;
    const bool measured =
        Measure(kEditor, argv[2], argv[3], work) && (what != "text" || Measure(kNotepad, "notepad.exe", argv[3], work));
    return measured ? EXIT_SUCCESS : EXIT_FAILURE;
}
