// Searching in long lines, small windows and lists, slowly and from the dialogs, in the cases of the folder scripts/.
#include "base/config_store.h"
#include "search/find_session.h"
#include "search/replace_dialog_model.h"
#include "support/script.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "finding_scripts.inc"
};

struct FakeRows : ListRows {
    std::size_t rowCount() const override { return rows.size(); }
    std::string_view rowText(std::size_t row) const override { return rows[row]; }
    RowKind rowKind(std::size_t) const override { return RowKind::Plain; }
    std::size_t longestRow() const override { return 0; }
    std::optional<std::size_t> selectedRow() const override { return selected; }
    void selectRow(std::size_t row) override { selected = row; }
    void activateRow() override {}
    void clearRows() override {}

    std::vector<std::string> rows;
    std::optional<std::size_t> selected;
};

struct FindStage : ScriptStage {
    FindStage() {
        document.newEmpty();
        view.resize(10, 40);
    }
    SearchTarget target() {
        if (isInRows) return {nullptr, &rows};
        return isNowhere ? nullptr : &view;
    }
    ReplaceDialogModel& dialog() { return *model; }

    FakeWatch watch;
    EditorOptions editorOptions;
    TextDocument document{editorOptions, notices};
    EditView view{document, editorOptions, notices};
    SearchOptions options{editorOptions.habits};
    FindCommands commands{options, notices, watch};
    FakeRows rows;
    bool isInRows = false;
    bool isNowhere = false;
    HistoryList findHistory{disk.path(), FindDialogModel::kFindHistoryFile};
    HistoryList replaceHistory{disk.path(), ReplaceDialogModel::kReplaceHistoryFile};
    std::optional<ReplaceDialogModel> model;
};

Told PutLine(FindStage& stage, Words words) {
    const int line = words.number();
    return stage.document.lines().put(TextDocument::makeLine(words.rest()), line), Told();
}

Told PutLines(FindStage& stage, Words words) {
    const int count = words.number();
    for (int i = 0; i < count; ++i)
        stage.document.lines().put(TextDocument::makeLine(words.rest()), i);
    return {};
}

Told GoTo(FindStage& stage, Words words) {
    const LineIndex line(words.number());
    return stage.view.goTo(line, CharColumn(words.number())), Told();
}

Told At(FindStage& stage, Words) {
    return std::to_string(stage.document.currentLine().value) + " " + std::to_string(stage.document.column().value);
}

// Line, column and length.
Told Match(FindStage& stage, Words) {
    const LastMatch& match = stage.options.lastMatch;
    return std::to_string(match.line.value) + " " + std::to_string(match.column.value) + " " +
           std::to_string(match.length);
}

Told MarkedColumns(FindStage& stage, Words) {
    const MarkedArea& area = stage.document.marked();
    return std::to_string(area.start.column.value) + " " + std::to_string(area.end.column.value);
}

Told Caret(FindStage& stage, Words) {
    const auto caret = stage.view.caret();
    return caret ? std::to_string(caret->row) + " " + std::to_string(caret->column) : "none";
}

Told UndoAll(FindStage& stage, Words) {
    while (!stage.document.history().isEmpty())
        stage.view.undo();
    return {};
}

Told Rows(FindStage& stage, Words words) {
    stage.isInRows = true;
    while (words.more())
        stage.rows.rows.push_back(words.word());
    return {};
}

using Setter = void (SearchOptions::*)(bool);
const std::map<std::string, Setter> kOptions = {{"forward", &SearchOptions::setForward},
                                                {"match-case", &SearchOptions::setMatchCase},
                                                {"whole-word", &SearchOptions::setWholeWord},
                                                {"regular", &SearchOptions::setRegularExpression},
                                                {"replace-all", &SearchOptions::setReplaceAll}};

Told SetOption(FindStage& stage, Words words) {
    const Setter set = kOptions.at(words.word());
    return (stage.options.*set)(words.yes()), Told();
}

std::string ShownOf(bool forward, bool matchCase, bool wholeWord, bool regular, bool replaceAll) {
    return std::string(forward ? "forward" : "backward") + (matchCase ? " match-case" : "") +
           (wholeWord ? " whole-word" : "") + (regular ? " regular" : "") + (replaceAll ? " replace-all" : "");
}

Told Options(FindStage& stage, Words) {
    const SearchOptions& o = stage.options;
    return o.findText() + "|" + o.replaceText() + "|" +
           ShownOf(o.forward(), o.matchCase(), o.wholeWord(), o.regularExpression(), o.replaceAll());
}

Told Fields(FindStage& stage, Words) {
    const ReplaceDialogModel& m = stage.dialog();
    return m.findText + "|" + m.replaceText + "|" +
           ShownOf(m.forward, m.matchCase, m.wholeWord, m.regularExpression, m.replaceAll);
}

const std::map<std::string, std::string ReplaceDialogModel::*> kTexts = {
    {"find", static_cast<std::string ReplaceDialogModel::*>(&ReplaceDialogModel::findText)},
    {"replace", &ReplaceDialogModel::replaceText}};
const std::map<std::string, bool ReplaceDialogModel::*> kBoxes = {{"forward", &ReplaceDialogModel::forward},
                                                                  {"match-case", &ReplaceDialogModel::matchCase},
                                                                  {"whole-word", &ReplaceDialogModel::wholeWord},
                                                                  {"regular", &ReplaceDialogModel::regularExpression},
                                                                  {"replace-all", &ReplaceDialogModel::replaceAll}};

Told Tick(FindStage& stage, Words words) {
    const auto box = kBoxes.at(words.word());
    return stage.dialog().*box = words.yes(), Told();
}

Told SaveAndLoad(FindStage& stage, Words) {
    ConfigStore store(stage.disk.path("VEXA.INI"));
    stage.options.Save(store);
    stage.options = SearchOptions();
    return stage.options.Load(store), Told();
}

Told CountStatuses(FindStage& stage, Words words) {
    const int least = words.number();
    const int most = words.number();
    const int count = static_cast<int>(stage.notices.statuses.size());
    return count >= least && count <= most ? Told("so many") : Told(count);
}

const Verbs<FindStage> kVerbs = {
    {"line", &PutLine},
    {"same-lines", &PutLines},
    {"text", [](FindStage& s, Words w) { return Told(s.document.text(LineIndex(w.number()))); }},
    {"go", &GoTo},
    {"at", &At},
    {"top", [](FindStage& s, Words) { return Told(s.view.topLine().value); }},
    {"left", [](FindStage& s, Words) { return Told(s.view.leftColumn().value); }},
    {"caret", &Caret},
    {"match", &Match},
    {"marked-columns", &MarkedColumns},
    {"undo", [](FindStage& s, Words) { return s.view.undo(), Told(); }},
    {"redo", [](FindStage& s, Words) { return s.view.redo(), Told(); }},
    {"undo-all", &UndoAll},
    {"clear", [](FindStage& s, Words) { return s.view.clear(), Told(); }},
    {"modified", [](FindStage& s, Words) { return Told(s.document.isModified()); }},
    {"can-undo", [](FindStage& s, Words) { return Told(!s.document.history().isEmpty()); }},
    {"nowhere", [](FindStage& s, Words w) { return s.isNowhere = w.yes(), Told(); }},
    {"rows", &Rows},
    {"selected", [](FindStage& s, Words) { return Told(s.rows.selected); }},
    {"unselect", [](FindStage& s, Words) { return s.rows.selected.reset(), Told(); }},
    // searches
    {"find", [](FindStage& s, Words w) { return s.options.setFindText(w.rest(), false), Told(); }},
    {"find-pending", [](FindStage& s, Words w) { return s.options.setFindText(w.rest(), true), Told(); }},
    {"pending", [](FindStage& s, Words) { return Told(s.options.matchPending()); }},
    {"no-pending", [](FindStage& s, Words) { return s.options.setMatchPending(false), Told(); }},
    {"replace-with", [](FindStage& s, Words w) { return s.options.setReplaceText(w.rest()), Told(); }},
    {"inserted", [](FindStage& s, Words) { return Told(s.options.insertedText()); }},
    {"option", &SetOption},
    {"around", [](FindStage& s, Words w) { return s.editorOptions.habits.searchAround = w.yes(), Told(); }},
    {"options", &Options},
    {"toggle-match-case", [](FindStage& s, Words) { return s.commands.toggleMatchCase(), Told(); }},
    {"next", [](FindStage& s, Words) { return s.commands.findNext(s.target()), Told(); }},
    {"previous", [](FindStage& s, Words) { return s.commands.findPrevious(s.target()), Told(); }},
    {"replace", [](FindStage& s, Words) { return Told(s.commands.replace(s.target().view)); }},
    {"find-at-caret", [](FindStage& s, Words) { return Told(s.commands.findAtCaret(s.target())); }},
    {"clock-step", [](FindStage& s, Words w) { return s.watch.step = w.number(), Told(); }},
    {"stop-at", [](FindStage& s, Words w) { return s.watch.stopAt = w.number(), Told(); }},
    {"status-count", &CountStatuses},
    {"first-status", [](FindStage& s, Words) { return Told(s.notices.statuses.at(0).text); }},
    {"save-and-load", &SaveAndLoad},
    // dialogs
    {"dialog",
     [](FindStage& s, Words) { return s.model.emplace(s.commands, s.findHistory, s.replaceHistory), Told(); }},
    {"fields", &Fields},
    {"fill", [](FindStage& s, Words w) { return SetField(s.dialog(), kTexts, w); }},
    {"tick", &Tick},
    {"can-search", [](FindStage& s, Words) { return Told(s.dialog().canSearch()); }},
    {"pattern-changed", [](FindStage& s, Words) { return s.dialog().patternChanged(), Told(); }},
    {"dialog-next", [](FindStage& s, Words) { return s.dialog().findNext(s.target()), Told(); }},
    {"dialog-replace", [](FindStage& s, Words) { return s.dialog().replace(s.target().view), Told(); }},
    {"take-search", [](FindStage& s, Words) { return s.dialog().takeSearch(), Told(); }},
    {"cancel", [](FindStage& s, Words) { return s.dialog().cancel(), Told(); }},
    {"found-before", [](FindStage& s, Words) { return Told(s.findHistory.entries()); }},
    {"replaced-before", [](FindStage& s, Words) { return Told(s.replaceHistory.entries()); }},
};

VEXA_SCRIPTS(Finding, kFiles, FindStage, kVerbs);

}  // namespace
}  // namespace vexa::test
