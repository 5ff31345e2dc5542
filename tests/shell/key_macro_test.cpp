// Keys and commands recorded and played as the frame does it, in the cases of the folder macros/.
#include "shell/key_macro.h"

#include "document/view/edit_view.h"
#include "shell/command_dispatcher.h"
#include "shell/macro_repeat_model.h"
#include "support/script.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "macro_scripts.inc"
};

const std::map<std::string, CommandId> kCommands = {{"SelectAll", CommandId::SelectAll},
                                                    {"Undo", CommandId::Undo},
                                                    {"PlayMacro", CommandId::PlayMacro},
                                                    {"RecordMacro", CommandId::RecordMacro}};

const std::map<std::string, KeyEvent> kKeys = {{"Home", {.key = kKeyHome}},
                                               {"Delete", {.key = kKeyDelete}},
                                               {"Enter", {.key = kKeyEnter}},
                                               {"Ctrl+Right", {.key = kKeyRight, .control = true}},
                                               {"Shift+Right*2", {.key = kKeyRight, .shift = true, .repeat = 2}}};

struct MacroStage : ScriptStage, MacroTarget {
    MacroStage() {
        document.newEmpty();
        dispatcher.setRecorder([this](CommandId id, CommandOrigin origin) { macro.recordCommand(id, origin); });
        dispatcher.RegisterCommand(CommandId::SelectAll, [this](CommandId) { view.selectAll(); });
        dispatcher.RegisterCommand(CommandId::Undo, [this](CommandId) { view.undo(); });
        dispatcher.RegisterCommand(CommandId::PlayMacro, [this](CommandId) { macro.Play(); });
        dispatcher.RegisterCommand(CommandId::RecordMacro, [this](CommandId) { macro.toggleRecording(); });
    }
    Told press(const KeyEvent& event) {
        if (view.key(event)) macro.recordKey(event);
        return {};
    }
    Told type(std::string_view text) {
        for (const char c : text)
            press(KeyEvent{.character = static_cast<unsigned char>(c)});
        return {};
    }
    Told record(std::string_view text, bool append) {
        macro.StartRecording(append);
        type(text);
        return macro.StopRecording(), Told();
    }

    bool playKey(const KeyEvent& event) override {
        if (hasDocument) press(event);
        return hasDocument;
    }
    void playMessage(const MacroMessage& message) override { messages.push_back(message); }
    bool playCommand(CommandId id) override { return dispatcher.Dispatch(id, CommandOrigin::Step); }
    void updateDisplay() override {
        if (++updates == during || during == 0) happens(*this);
    }

    EditorOptions options;
    TextDocument document{options, notices};
    EditView view{document, options, notices};
    bool hasDocument = true;
    CommandDispatcher dispatcher{notices, [this](CommandNeed) { return hasDocument; }};
    KeyMacro macro{*this, notices};
    std::vector<MacroMessage> messages;
    int updates = 0;
    int during = -1;  // the update at which something happens, or 0 for each
    void (*happens)(MacroStage& stage) = nullptr;
};

Told Run(MacroStage& stage, Words words) {
    const CommandId id = kCommands.at(words.word());
    return stage.dispatcher.Dispatch(id, words.more() ? CommandOrigin::Key : CommandOrigin::Menu);
}

// What happens when so many more steps have been played.
Told After(MacroStage& stage, Words words) {
    static const std::map<std::string, void (*)(MacroStage&)> kHappenings = {
        {"stop", [](MacroStage& s) { s.macro.stop(); }},
        {"find-nothing", [](MacroStage& s) { s.macro.searchFailed(false); }},
        {"stop-search", [](MacroStage& s) { s.macro.searchFailed(true); }}};
    stage.during = stage.updates + words.number();
    return stage.happens = kHappenings.at(words.word()), Told();
}

Told DisturbEachStep(MacroStage& stage, Words) {
    stage.during = 0;
    stage.happens = [](MacroStage& s) {
        EXPECT_FALSE(s.macro.Play());
        s.dispatcher.Dispatch(CommandId::RecordMacro);
        EXPECT_FALSE(s.macro.isRecording());
    };
    return {};
}

Told Accept(MacroStage& stage, Words words) {
    MacroRepeatModel model;
    if (words.more()) model.count = words.rest();
    return model.accept(stage.notices);
}

const Verbs<MacroStage> kVerbs = {
    {"type", [](MacroStage& s, Words w) { return s.type(w.rest()); }},
    {"press", [](MacroStage& s, Words w) { return s.press(kKeys.at(w.word())); }},
    {"run", &Run},
    {"start", [](MacroStage& s, Words) { return s.macro.StartRecording(false), Told(); }},
    {"stop", [](MacroStage& s, Words) { return s.macro.StopRecording(), Told(); }},
    {"record", [](MacroStage& s, Words w) { return s.record(w.rest(), false); }},
    {"record-more", [](MacroStage& s, Words w) { return s.record(w.rest(), true); }},
    {"record-message",
     [](MacroStage& s, Words) {
         return s.macro.RecordStep(MacroMessage{1, 2, 3, -4}), Told();
     }},
    {"played-message",
     [](MacroStage& s, Words) {
         return Told(s.messages == std::vector<MacroMessage>{{1, 2, 3, -4}});
     }},
    {"refuse-step", [](MacroStage& s, Words) { return s.macro.refuseStep(), Told(); }},
    {"play", [](MacroStage& s, Words) { return Told(s.macro.Play()); }},
    {"repeat", [](MacroStage& s, Words w) { return s.macro.PlayRepeated(w.number()), Told(); }},
    {"steps", [](MacroStage& s, Words) { return Told(s.macro.steps().size()); }},
    {"first-step-is",
     [](MacroStage& s, Words w) { return Told(s.macro.steps()[0] == KeyMacroStep(kCommands.at(w.word()))); }},
    {"playing", [](MacroStage& s, Words) { return Told(s.macro.isPlaying()); }},
    {"updates", [](MacroStage& s, Words) { return Told(s.updates); }},
    {"line", [](MacroStage& s, Words w) { return Told(s.document.text(LineIndex(w.number() - 1))); }},
    {"document", [](MacroStage& s, Words w) { return s.hasDocument = w.yes(), Told(); }},
    {"after", &After},
    {"disturb-each-step", &DisturbEachStep},
    {"accept", &Accept},
};

VEXA_SCRIPTS(Macros, kFiles, MacroStage, kVerbs);

}  // namespace
}  // namespace vexa::test
