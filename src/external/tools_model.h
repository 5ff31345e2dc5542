// The rules of the "Tools" dialog. Each change is kept as soon as its button is pressed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/notices.h"
#include "external/tool_list.h"

namespace vexa {

class ToolsModel {
  public:
    // What the dialog does after a button: the list and the menu have changed, or the field that was refused has the
    // focus, or nothing.
    enum class Outcome { Changed, StayAtProgram, StayAtDirectory, Nothing };

    // Bare names of programs are looked for in the directories of the search path. The fields are those of a new tool.
    ToolsModel(ToolList& list, Notices& notices, std::string searchPath);

    // The fields, as typed.
    ProgramKind kind = ProgramKind::Windows;
    ShowMode showMode = ShowMode::Normal;
    bool capture = false;
    bool askForArguments = false;
    std::string program;
    std::string menuText;
    std::string arguments;
    std::string directory;

    std::vector<std::string> menuTexts() const;
    std::optional<std::size_t> selected() const { return selected_; }
    // Brings a tool into the fields.
    void select(std::size_t index);

    bool canAdd() const { return !menuText.empty(); }
    bool canUpdate() const { return selected_ && canAdd(); }
    bool canDelete() const { return selected_.has_value(); }
    Outcome add();
    // Has the selected tool be what the fields say.
    Outcome update();
    Outcome remove();

    // The file chosen by "Find" becomes the program; the menu text's field then has the focus.
    void takeFoundProgram(const std::string& path) { program = path; }

  private:
    std::optional<Outcome> readFields(ProgramRequest& tool);
    bool mayReplace(const std::string& name);
    Outcome keep(Tools tools, std::optional<std::size_t> selection);
    void showFields();

    ToolList& list_;
    Notices& notices_;
    const std::string searchPath_;
    std::optional<std::size_t> selected_;
};

}  // namespace vexa
