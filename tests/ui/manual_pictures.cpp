// Brings the editor to the states that the pictures of the manual show, and has each taken. Beside NAME.png the file
// NAME.area says which part of the screen the picture is, as "WIDTHxHEIGHT+X+Y". tools/screenshots runs it.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "ui/dialogs.h"
#include "ui/editor.h"
#include "ui/resources/dialog_controls.h"

namespace vexa::test {
namespace {

constexpr const char* kSource =
    "/* Counts the lines, words and characters of a text.\r\n"
    "   Usage: words < text */\r\n"
    "#include <ctype.h>\r\n"
    "#include <stdio.h>\r\n"
    "\r\n"
    "#define SPACE 32\r\n"
    "\r\n"
    "struct count {\r\n"
    "    long lines;\r\n"
    "    long words;\r\n"
    "    long characters;\r\n"
    "};\r\n"
    "\r\n"
    "static void add(struct count *sum, int c, int last)\r\n"
    "{\r\n"
    "    sum->characters++;\r\n"
    "    if (c == 10) sum->lines++;\r\n"
    "    if (!isspace(c) && isspace(last)) sum->words++;\r\n"
    "}\r\n"
    "\r\n"
    "int main(void)\r\n"
    "{\r\n"
    "    struct count sum = {0, 0, 0};\r\n"
    "    int c, last = SPACE;\r\n"
    "\r\n"
    "    while ((c = getchar()) != EOF) {  // to the end of the text\r\n"
    "        add(&sum, c, last);\r\n"
    "        last = c;\r\n"
    "    }\r\n"
    "    printf(\"%ld lines, %ld words\\n\", sum.lines, sum.words);\r\n"
    "    return 0;\r\n"
    "}\r\n";

constexpr const char* kTable =
    "static const struct color table[] = {\r\n"
    "    {\"black\",  0x00, 0x00, 0x00},\r\n"
    "    {\"blue\",   0x00, 0x00, 0xFF},\r\n"
    "    {\"green\",  0x00, 0xFF, 0x00},\r\n"
    "    {\"red\",    0xFF, 0x00, 0x00},\r\n"
    "    {\"purple\", 0xFF, 0x00, 0xFF},\r\n"
    "    {\"yellow\", 0xFF, 0xFF, 0x00},\r\n"
    "    {\"white\",  0xFF, 0xFF, 0xFF},\r\n"
    "};\r\n";

void Need(bool condition, const char* what) {
    if (!condition) throw std::runtime_error(what);
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const std::size_t at = text.find(from);
    Need(at != std::string::npos, "the source has changed");
    return text.replace(at, from.size(), to);
}

// The folder of the sources, whose short name the captions show.
class SourceFolder {
  public:
    SourceFolder() { CreateDirectoryA(kPath, nullptr); }
    static std::string put(const std::string& name, const std::string& text) {
        const std::string path = std::string(kPath) + "\\" + name;
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }

  private:
    static constexpr const char* kPath = "C:\\SOURCE";
};

// An editor in a window of a size that fits on a page.
class Studio {
  public:
    explicit Studio(int height, const std::string& moreSettings = {}) {
        folder_.put("vexa.INI", "[Editor Options]\r\nRestoreSize=1\r\n[Frame Size]\r\nx=20\r\ny=20\r\ncx=700\r\ncy=" +
                                    std::to_string(height) + "\r\nstate=1\r\n" + moreSettings);
    }

    const TestFolder& folder() const { return folder_; }
    Editor open(const std::string& name, const std::string& text) const {
        return Editor(folder_, {SourceFolder::put(name, text)});
    }
    static HWND dialog(const Editor& editor, CommandId command, const std::string& caption) {
        editor.command(command);
        return waitFor(editor, caption);
    }
    static HWND waitFor(const Editor& editor, const std::string& caption) {
        const HWND dialog = editor.dialog(caption);
        Need(dialog && WaitUntil([&] { return GetForegroundWindow() == dialog; }), caption.c_str());
        return dialog;
    }
    // Of a dialog, which is then left.
    static void takeDialog(const Editor& editor, const std::string& name, HWND dialog) {
        take(editor, name, dialog);
        editor.keys("{Esc}");
        Need(WaitUntil([&] { return !IsWindow(dialog); }), name.c_str());
    }
    static void take(const Editor& editor, const std::string& name, HWND window) {
        RECT area{};
        GetWindowRect(window, &area);
        std::ofstream(std::string(std::getenv("VEXA_SCREENSHOTS")) + "/" + name + ".area")
            << area.right - area.left << 'x' << area.bottom - area.top << '+' << area.left << '+' << area.top;
        editor.takePicture(name);
    }

  private:
    TestFolder folder_;
};

void TakeEditing() {
    const Studio studio(560);
    const Editor editor = studio.open("words.c", kSource);
    editor.keys("{Down*17}{Alt+1}{Down*11}{End}");
    Need(editor.showsPosition(29, 6), "position");
    Studio::take(editor, "main-window", editor.frame());
    const HWND find = Studio::dialog(editor, CommandId::Find, "Find");
    editor.keys("{Alt+N}sum->[a-z]+");
    editor.keys("{Alt+X}");
    Studio::takeDialog(editor, "find", find);
    const HWND replace = Studio::dialog(editor, CommandId::Replace, "Replace");
    editor.keys("{Alt+N}sum{Alt+P}total{Alt+S}{Alt+W}");
    Studio::takeDialog(editor, "replace", replace);
    Studio::takeDialog(editor, "editor-options", Studio::dialog(editor, CommandId::ChangeOptions, "Editor Options"));
    Studio::takeDialog(editor, "color-setup", Studio::dialog(editor, CommandId::ChangeColours, "Color Setup"));
    Studio::take(editor, "page-setup", Studio::dialog(editor, CommandId::PrintSetup, "Page Setup"));
}

void TakeColumnBlock() {
    const Studio studio(300);
    const Editor editor = studio.open("colors.c", kTable);
    editor.keys("{Down}{Right*14}{Alt+C}{Down*6}{Right*6}");
    Need(editor.showsPosition(8, 21), "position");
    Studio::take(editor, "column-block", editor.frame());
}

void TakeWords() {
    const Studio studio(400);
    studio.folder().makeDirectory("vConfig");
    studio.folder().put("vConfig\\vexa.elc",
                        "3\r\n"
                        "for\t3\tfor (i = 0; i < \\c; i++) {\\n\\t\\n}\r\n"
                        "main\t4\tint main(int argc, char *argv[])\\n{\\n\\t\\c\\n}\r\n"
                        "while\t5\twhile (\\c) {\\n\\t\\n}\r\n");
    const Editor editor = studio.open("words.c", kSource);
    const HWND electric = Studio::dialog(editor, CommandId::ChangeElectric, "Electric Keyboard");
    Studio::takeDialog(editor, "electric", electric);
    Studio::dialog(editor, CommandId::ChangeExtensions, "File Extensions");
    editor.keys("{Alt+N}");
    const HWND edit = Studio::waitFor(editor, "Edit File Extension");
    editor.keys("{Alt+X}c{Alt+N}C source files");
    Studio::take(editor, "edit-extension", edit);
}

void TakeCompiler() {
    {
        const Studio studio(400, "[Compiler]\r\nCommand=gcc -Wall -c %s\r\nFileName=SAMPLE.C\r\n");
        const Editor editor = studio.open("words.c", kSource);
        Studio::take(editor, "setup-compiler", Studio::dialog(editor, CommandId::SetUpCompiler, "Setup Compiler"));
    }
    const Studio studio(600);
    studio.folder().putTestProgram();
    studio.folder().put("vexa.INI", studio.folder().get("vexa.INI") +
                                        "[Compiler]\r\nCommand=" + studio.folder().path("test_program.exe") +
                                        " gcc -Wall -c %s\r\nFileName=SAMPLE.C\r\nDisplay=0\r\n");
    const std::string broken = Replaced(Replaced(kSource, "sum.words", "sum.word"), "c, last", "c, n, last");
    const Editor editor = studio.open("words.c", broken);
    editor.keys("{Alt+F10}");
    Need(editor.showsMessage("Compilation completed with errors."), "compilation");
    Need(editor.runCommand(CommandId::NextWindow) && editor.runCommand(CommandId::TileHorizontally), "tiling");
    editor.keys("{Ctrl+N}");
    Need(editor.showsPosition(30, 1), "the line of the error");
    Studio::take(editor, "message-window", editor.frame());
}

void TakeTools() {
    const Studio studio(400);
    const Editor editor = studio.open("words.c", kSource);
    const HWND tools = Studio::dialog(editor, CommandId::ChangeTools, "Tools");
    editor.keys("{Alt+L}{Alt+E}{Alt+O}");
    editor.keys("{Alt+R}dir /b /s *.h{Alt+M}List headers{Enter}");
    editor.keys("{Alt+R}findstr /n \"TODO\" *.c *.h{Alt+M}Things to do{Enter}");
    editor.keys("{Alt+R}mingw32-make -k{Alt+M}Make{Enter}");
    const auto hasAll = [&] { return SendDlgItemMessageA(tools, IDC_TOOLS, LB_GETCOUNT, 0, 0) == 3; };
    Need(WaitUntil(hasAll), "tools");
    Studio::take(editor, "tools", tools);
}

void TakeQuickHelp() {
    const Studio studio(400);
    studio.folder().makeDirectory("vHelp");
    const auto install = [&](const std::string& name, const std::string& title) {
        studio.folder().put(name + ".HLP", "");
        studio.folder().put("vHelp\\" + name + ".ZIX",
                            "00001\r\n" + studio.folder().path(name + ".HLP") + "\r\n" + title + "\r\nprintf\r\n");
    };
    install("CLIB", "C Library Reference");
    install("GUIDE", "Programmer's Guide");
    const Editor editor = studio.open("words.c", kSource);
    editor.keys("{Down*29}{Right*4}{Alt+Q}");
    Studio::take(editor, "quick-help", Studio::waitFor(editor, "Quick Help"));
}

}  // namespace
}  // namespace vexa::test

int main() {
    using namespace vexa::test;
    try {
        const SourceFolder sources;
        for (const auto take : {&TakeEditing, &TakeColumnBlock, &TakeWords, &TakeCompiler, &TakeTools, &TakeQuickHelp})
            take();
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "A picture could not be taken: %s\n", failure.what());
        return 1;
    }
}
