// Runs the key-replay cases of the folder replay/, one test a case.
#include <gtest/gtest.h>

#include <sstream>

#include "document/document_session.h"
#include "document/memory_clipboard.h"
#include "document/replay_case.h"
#include "document/shown_document.h"
#include "support/case_files.h"
#include "support/test_disk.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "replay_files.inc"
};

std::string Shown(const MemoryClipboard& clipboard) {
    std::string shown = std::to_string(static_cast<int>(clipboard.kind)) + " ";
    for (const char c : clipboard.text.value_or("none"))
        shown += c == '\r' ? "\\r" : c == '\n' ? "\\n" : Escape(c);
    return shown;
}

void SetOption(EditorOptions& options, const std::string& name, int value) {
    if (name == "InsertMode") return void(options.InsertMode = value != 0);
    if (name == "SmartIndent") return void(options.SmartIndent = value != 0);
    if (name == "UseTabs") return void(options.UseTabs = value != 0);
    if (name == "LineWrap") return void(options.LineWrap = value != 0);
    if (name == "WrapColumn") return void(options.WrapColumn = value);
    if (name == "TabSize") return void(options.TabSize = value);
    if (name == "KeepMarking") return void(options.habits.keepMarking = value != 0);
    FAIL() << "unknown option " << name;
}

EditorOptions ParseOptions(const std::string& text) {
    EditorOptions options;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const std::size_t equals = word.find('=');
        SetOption(options, word.substr(0, equals), std::stoi(word.substr(equals + 1)));
    }
    return options;
}

// "Clipboard:text" is a text of another program, "Clipboard3:text" one of the editor, of that kind.
bool FillClipboard(MemoryClipboard& clipboard, const std::string& word) {
    const std::string name = "Clipboard";
    const std::size_t colon = word.find(':');
    if (word.rfind(name, 0) != 0 || colon == std::string::npos) return false;
    const std::string kind = word.substr(name.size(), colon - name.size());
    clipboard.text = Unescape(word.substr(colon + 1));
    clipboard.kind = static_cast<MarkMode>(kind.empty() ? 1 : std::stoi(kind));
    return true;
}

void PressAll(DocumentSession& session, MemoryClipboard& clipboard, const std::string& keys) {
    for (const auto& [word, isQuoted] : KeyWordsOf(keys)) {
        if (isQuoted) {
            session.type(Unescape(word));
        } else if (!FillClipboard(clipboard, word)) {
            PressWord(session.view_, word);
        }
    }
}

// "Electric:keyword=expansion" is an electric word, up to the end of its line.
ElectricList ElectricWordsOf(std::string& options) {
    ElectricList list;
    const std::string name = "Electric:";
    for (std::size_t at; (at = options.find(name)) != std::string::npos;) {
        const std::size_t end = options.find('\n', at);
        const std::string word = options.substr(at + name.size(), end - at - name.size());
        const std::size_t equals = word.find('=');
        EXPECT_EQ(list.set(word.substr(0, equals), word.substr(equals + 1)), ElectricSet::Done) << word;
        options.erase(at, end - at);
    }
    return list;
}

class KeySession : public ReplaySession, private DocumentSession {
  public:
    KeySession() {
        document_.setProfile(profile_);
        view_.resize(10, 80);
        view_.setClipboard(clipboard_);
        view_.setElectric(words_);
    }

    void setOptions(const std::string& options) override {
        std::string text = options;
        EXPECT_TRUE(words_.replace(ElectricWordsOf(text)));
        options_ = ParseOptions(text);
    }
    void run(const std::string& keys) override { PressAll(*this, clipboard_, keys); }
    EditView& view() override { return view_; }
    const RecordingNotices& notices() const override { return notices_; }
    std::string clipboard() const override { return Shown(clipboard_); }

  private:
    const TestDisk disk_;
    ElectricWords words_{disk_.path()};
    const ExtensionProfile profile_;
    MemoryClipboard clipboard_;
};

VEXA_CASES(Replay, CasesOf(kFiles, kReplayMarks), [](const Case& replay) {
    KeySession session;
    RunReplayCase(replay, session);
});

}  // namespace
}  // namespace vexa::test
