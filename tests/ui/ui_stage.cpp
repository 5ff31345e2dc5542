#include "ui/ui_stage.h"

#include "ui/dialogs.h"

namespace vexa::test {
namespace {

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
const std::map<std::string, std::size_t> kPanes = {{"message", 0},   {"recording", 1}, {"read-only", 2},
                                                   {"line-ends", 3}, {"mode", 4},      {"position", 5}};

}  // namespace

HWND Stage::tabs() const {
    return ChildrenOf(editor->frame(), "TabStripCL").at(0);
}

bool HasReturned(const StartedProgram& start, DWORD expected) {
    DWORD code = 0;
    return start.ends() && GetExitCodeProcess(start.process(), &code) && code == expected;
}

CommandId CommandNamed(const std::string& name) {
    return kCommands.at(name);
}

std::vector<CommandId> AllCommands() {
    std::vector<CommandId> all;
    for (const auto& [name, command] : kCommands)
        all.push_back(command);
    return all;
}

int ControlNamed(const std::string& name) {
    return kControls.at(name);
}

std::size_t PaneNamed(const std::string& name) {
    return kPanes.at(name);
}

POINT StepWords::pixel(const Stage& stage) {
    const int line = number();
    const int column = number();
    constexpr int kInMargin = -12;
    return {column == 0 ? kInMargin : stage.cell.x * (column - 1) + 1, stage.cell.y * (line - 1) + stage.cell.y / 2};
}

}  // namespace vexa::test
