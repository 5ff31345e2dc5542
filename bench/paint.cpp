// Measures how long a key takes until its text is painted, in the editor and in Wine's notepad, and scrolling by lines.
//
// usage: paint VEXA.EXE TEXT.FILE
//
// Each key is sent to the window, which is then made to paint at once; the clock runs from before the key to the end of
// the painting. Prints lines "name milliseconds" of the median, the 95th percentile and the longest.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int kKeys = 1000;
constexpr int kKeysInALine = 50;
constexpr DWORD kPatience = 20000;  // milliseconds

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

HWND FindTextWindow(const Program& program) {
    for (DWORD waited = 0; waited < kPatience; waited += 50) {
        Search search = {program.textClass, nullptr};
        const HWND frame = FindWindowA(program.frameClass, nullptr);
        if (frame) EnumChildWindows(frame, &Look, reinterpret_cast<LPARAM>(&search));
        if (search.found && IsWindowVisible(search.found)) return search.found;
        Sleep(50);
    }
    return nullptr;
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
    RedrawWindow(text, nullptr, nullptr, RDW_UPDATENOW);
    SendMessageA(text, WM_NULL, 0, 0);  // answered when a painting that had begun by itself is over
    return Milliseconds() - start;
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
            SendMessageA(text, WM_KEYDOWN, VK_RETURN, 1);
            SendMessageA(text, WM_CHAR, '\r', 1);
            RedrawWindow(text, nullptr, nullptr, RDW_UPDATENOW);
        }
        times.push_back(
            TimeUntilPainted(text, [&] { SendMessageA(text, WM_CHAR, static_cast<WPARAM>('a' + i % 26), 1); }));
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
    const auto key = [text](WPARAM character) { SendMessageA(text, WM_CHAR, character, 1); };
    key('/');
    std::printf("paint/comment_opened/vexa %.3f\n", TimeUntilPainted(text, [&] { key('*'); }));
    std::printf("paint/comment_removed/vexa %.3f\n",
                TimeUntilPainted(text, [&] { SendMessageA(text, WM_KEYDOWN, VK_BACK, 1); }));
}

bool Measure(const Program& program, std::string line) {
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
        return false;
    const HWND text = FindTextWindow(program);
    if (text) {
        WaitForInputIdle(process.hProcess, kPatience);
        RedrawWindow(text, nullptr, nullptr, RDW_UPDATENOW);
        if (&program == &kEditor) MeasureComment(text);
        MeasureKeys(program, text);
        MeasureScrolling(program, text);
    }
    TerminateProcess(process.hProcess, 0);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return text != nullptr;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return EXIT_FAILURE;
    const std::string file = std::string(" \"") + argv[2] + "\"";
    const bool measured =
        Measure(kEditor, std::string("\"") + argv[1] + "\"" + file) && Measure(kNotepad, "notepad.exe" + file);
    return measured ? EXIT_SUCCESS : EXIT_FAILURE;
}
