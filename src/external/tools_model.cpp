#include "external/tools_model.h"

#include <algorithm>
#include <utility>

#include "base/ascii.h"
#include "base/platform.h"
#include "base/strings.h"
#include "external/process_runner.h"
#include "external/program_kind.h"

namespace vexa {

ToolsModel::ToolsModel(ToolList& list, Notices& notices, std::string searchPath)
    : list_(list), notices_(notices), searchPath_(std::move(searchPath)) {}

std::vector<std::string> ToolsModel::menuTexts() const {
    std::vector<std::string> texts;
    for (const ProgramRequest& tool : list_.tools())
        texts.push_back(tool.menuText());
    return texts;
}

void ToolsModel::select(std::size_t index) {
    if (index >= list_.tools().size()) return;
    selected_ = index;
    showFields();
}

void ToolsModel::showFields() {
    const ProgramRequest& tool = list_.tools()[*selected_];
    kind = tool.kind;
    showMode = tool.showMode;
    capture = tool.capture;
    askForArguments = tool.askForArguments;
    program = tool.program();
    menuText = tool.menuText();
    arguments = tool.arguments();
    directory = tool.directory();
}

// Makes a tool of the fields, or refuses one. The kind is what the program's file says it is.
std::optional<ToolsModel::Outcome> ToolsModel::readFields(ProgramRequest& tool) {
    if (kind != ProgramKind::Interpreter) {
        const std::optional<std::string> found = FindProgram(program, searchPath_);
        if (!found) {
            notices_.box(SpawnText(SpawnResult::FileNotFound), TextId::ErrorCaption, BoxButtons::Ok);
            return Outcome::StayAtProgram;
        }
        program = *found;
        kind = KindOfProgram(program);
    }
    std::ranges::transform(directory, directory.begin(), UpperAscii);
    if (!directory.empty() && !platform::DirectoryExists(directory)) {
        notices_.box(LoadText(TextId::NoToolDirectory), TextId::ErrorCaption, BoxButtons::Ok);
        return Outcome::StayAtDirectory;
    }
    tool.kind = kind;
    tool.showMode = showMode;
    tool.capture = capture;
    tool.askForArguments = askForArguments;
    tool.setProgram(program);
    tool.setMenuText(menuText);
    tool.setArguments(arguments);
    tool.setDirectory(directory);
    return std::nullopt;
}

bool ToolsModel::mayReplace(const std::string& name) {
    return notices_.box(FillText(TextId::ReplaceTool, {name}), TextId::ProgramCaption, BoxButtons::YesNo) ==
           BoxAnswer::Yes;
}

ToolsModel::Outcome ToolsModel::add() {
    if (list_.tools().size() >= kMostTools) {
        notices_.box(LoadText(TextId::TooManyTools), TextId::ErrorCaption, BoxButtons::Ok);
        return Outcome::Nothing;
    }
    ProgramRequest tool;
    if (const auto refused = readFields(tool)) return *refused;
    Tools tools = list_.tools();
    const std::optional<std::size_t> old = list_.find(tool.menuText());
    if (old && !mayReplace(tool.menuText())) return Outcome::Nothing;
    if (old) {
        tools[*old] = tool;
    } else {
        tools.push_back(tool);
    }
    const std::size_t index = old.value_or(tools.size() - 1);
    return keep(std::move(tools), index);
}

// Another tool of the new name gives way, if the user agrees.
ToolsModel::Outcome ToolsModel::update() {
    ProgramRequest tool;
    if (!selected_) return Outcome::Nothing;
    if (const auto refused = readFields(tool)) return *refused;
    Tools tools = list_.tools();
    std::size_t index = *selected_;
    tools[index] = tool;
    const std::optional<std::size_t> other = list_.find(tool.menuText());
    if (other && *other != index) {
        if (!mayReplace(tool.menuText())) return Outcome::Nothing;
        tools.erase(tools.begin() + static_cast<std::ptrdiff_t>(*other));
        if (*other < index) --index;
    }
    return keep(std::move(tools), index);
}

ToolsModel::Outcome ToolsModel::remove() {
    if (!selected_) return Outcome::Nothing;
    const std::string& name = list_.tools()[*selected_].menuText();
    if (notices_.box(FillText(TextId::DeleteTool, {name}), TextId::ProgramCaption, BoxButtons::YesNo) != BoxAnswer::Yes)
        return Outcome::Nothing;
    Tools tools = list_.tools();
    tools.erase(tools.begin() + static_cast<std::ptrdiff_t>(*selected_));
    return keep(std::move(tools), std::nullopt);
}

ToolsModel::Outcome ToolsModel::keep(Tools tools, std::optional<std::size_t> selection) {
    if (!list_.replace(std::move(tools))) {
        notices_.box(FillText(TextId::CannotWriteFile, {list_.path()}), TextId::ErrorCaption, BoxButtons::Ok);
        return Outcome::Nothing;
    }
    selected_ = selection;
    if (selected_) showFields();
    return Outcome::Changed;
}

}  // namespace vexa
