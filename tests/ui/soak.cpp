#include "ui/soak.h"

#include <cstdlib>
#include <iterator>

#include "external/tool_list.h"

namespace vexa::test {
namespace {

constexpr const char* kKeys[] = {
    "word ",       "{Enter}",      "x",        "{Backspace}",      "{Del}",
    "{Tab}",       "{Shift+Tab}",  "{Up}",     "{Down}",           "{Left}",
    "{Right}",     "{Home}",       "{End}",    "{PgUp}",           "{PgDn}",
    "{Ctrl+Left}", "{Ctrl+Right}", "{Alt+A}",  "{Alt+L}",          "{Alt+C}",
    "{Alt+D}",     "{Alt+K}",      "{Ctrl+K}", "{Alt+I}",          "{Alt+3}",
    "{Esc}",       "{Ctrl+Z}",     "{Ctrl+A}", "{Ctrl+Backspace}", "{F7}",
    "{F8}",        "{Alt+N}",      "a = 1;",   "{Ctrl+Home}",      "{Ctrl+End}",
};

std::string ToolThatWaitsFor(const std::string& program, const std::string& file) {
    ProgramRequest tool(program);
    tool.setMenuText("Tool");
    tool.setArguments("wait " + file);
    tool.capture = true;
    return EncodeTools({tool});
}

}  // namespace

unsigned FromEnvironment(const char* name, unsigned otherwise) {
    const char* given = std::getenv(name);
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : otherwise;
}

void PutSoakFiles(const TestFolder& folder) {
    for (const char* name : {"a.c", "b.c", "c.c"})
        folder.put(name, SoakText());
    folder.put("errors.txt", "c.c:3:5: error: wrong\r\n");
    folder.put("free", "");
    folder.putTestProgram();
    folder.putFromProgramFolder("Vexa.hlp");
    folder.makeDirectory("vConfig");
    folder.put("vConfig\\VexaTool.INF", ToolThatWaitsFor(folder.path("test_program.exe"), folder.path("free")));
    folder.put("vexa.INI",
               "[Editor Options]\r\nAutoBackup=0\r\nHelpViewer=Own\r\n"
               "[Compiler]\r\nCommand=type errors.txt\r\nFileName=SAMPLE.C\r\nDisplay=0\r\n");
}

std::string SoakText() {
    std::string text;
    for (int i = 0; i < 200; ++i)
        text += "int f" + std::to_string(i) + "(int x) { return g(x, {1, 2}); }  // a line of text\r\n";
    return text;
}

const char* AnyKeys(std::mt19937& random) {
    return kKeys[random() % std::size(kKeys)];
}

}  // namespace vexa::test
