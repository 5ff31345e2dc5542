#include "ui/ui_case.h"

#include "ui/dialogs.h"
#include "ui/ui_stage.h"
#include "ui/wait.h"

namespace vexa::test {
namespace {

std::string Replaced(std::string text, const std::string& folder) {
    const std::string name = "%FOLDER%";
    for (std::size_t at; (at = text.find(name)) != std::string::npos;)
        text.replace(at, name.size(), folder);
    return text;
}

bool Succeeds(Stage& stage, const CaseStep& step) {
    std::string lines;
    for (const MarkedLine& line : step.lines)
        lines += line.text + "\r\n";
    Words all(Replaced(step.text, stage.folder.path()));
    const std::string verb = all.word();
    const StepWords words(all.rest(), Replaced(lines, stage.folder.path()));
    if (const auto doing = DoingSteps().find(verb); doing != DoingSteps().end()) return doing->second(stage, words);
    const Run seen = SeeingSteps().at(verb);
    return WaitUntil([&] { return seen(stage, words); });
}

// What there is to see when a step has failed.
std::string Seen(const Stage& stage) {
    if (!stage.editor) return "no editor";
    std::string seen = stage.editor->caption() + " | " + stage.editor->message();
    for (std::size_t i = 1; i <= PaneNamed("position"); ++i)
        seen += " | " + stage.editor->pane(i);
    const HWND front = GetForegroundWindow();
    return seen + "\nin front: " + TextOf(front) + ": " + BoxText(front);
}

}  // namespace

void RunUiCase(const Case& uiCase) {
    Stage stage;
    for (const CaseStep& step : uiCase.steps) {
        std::string name = "line " + std::to_string(step.number) + ": " + step.text;
        for (const MarkedLine& line : step.lines)
            name += "\n  " + line.text;
        try {
            ASSERT_TRUE(Succeeds(stage, step)) << name << "\n" << Seen(stage);
        } catch (const Missing& missing) {
            GTEST_SKIP() << missing.what;
        } catch (const std::exception& failure) {
            FAIL() << name << ": " << failure.what();
        }
    }
}

}  // namespace vexa::test
