// Cases of rules that need no window, as data. A line is a verb with its words, and after "->" what it gives:
//
//   # A file that has gone is written again     the case's name
//   put A.TXT abc{rn}
//   load A.TXT -> yes                           a verb without "->" may give anything
//   box -> Unable to open...                    "..." at an end stands for any text there
//
// In words and outcomes {r}, {n} and {t} stand for these characters, {rn} for both of a line end, {1A} for any byte,
// {x*300} for 300 times the text, {disk} for the path of the test's disk, {..} for three full stops, and {} for
// nothing.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "base/file.h"
#include "support/case_files.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {

struct ScriptStep {
    int line;
    std::string verb;
    std::string words;
    std::optional<std::string> outcome;
};

struct ScriptCase {
    std::string topic;
    std::string name;
    std::vector<ScriptStep> steps;

    friend void PrintTo(const ScriptCase& one, std::ostream* out) { *out << one.name; }
};

std::vector<ScriptCase> ParseScript(const std::string& topic, const std::string& content);

// The words of a step, which are taken one by one. What is missing is empty, or 0.
class Words {
  public:
    Words(std::string text, std::string disk) : text_(std::move(text)), disk_(std::move(disk)) {}

    std::string word();
    int number();
    bool yes() { return word() == "yes"; }
    std::string rest() const;
    bool more() const { return !text_.empty(); }

  private:
    std::string text_;
    std::string disk_;
};

// What a step gives.
struct Told {
    Told() = default;
    Told(std::string given) : text(std::move(given)) {}
    Told(std::string_view given) : text(given) {}
    Told(const char* given) : text(given) {}
    Told(bool given) : text(given ? "yes" : "no") {}
    Told(int given) : text(std::to_string(given)) {}
    Told(std::size_t given) : text(std::to_string(given)) {}
    Told(const std::vector<std::string>& given);  // with ";" between them
    template <class Value>
    Told(const std::optional<Value>& given) : text(given ? Told(*given).text : "none") {}

    std::string text;
};

// What every case has; a stage of its own kind is made of it.
struct ScriptStage {
    ~ScriptStage() { SetFileFault(nullptr); }
    // A name on the disk, unless it is a full path.
    std::string path(const std::string& name) const;

    TestDisk disk;
    RecordingNotices notices;
    std::optional<LockedFile> locked;
    std::string remembered;  // of a file
};

// Verbs of one kind of stage.
template <class Stage>
using Verbs = std::map<std::string, Told (*)(Stage& stage, Words words)>;

// Gives a field of a model, which the first word names, the rest for its text.
template <class Model>
Told SetField(Model& model, const std::map<std::string, std::string Model::*>& fields, Words words) {
    const auto field = fields.at(words.word());
    return model.*field = words.rest(), Told();
}

// put, get, folder, remove, status, box, answer and others.
const Verbs<ScriptStage>& CommonVerbs();
void ExpectOutcome(const ScriptStage& stage, const ScriptStep& step, const Told& told);

#ifdef _WIN32
inline constexpr bool kOnWindows = true;
#else
inline constexpr bool kOnWindows = false;
#endif

template <class Stage>
void RunScript(const ScriptCase& script, const Verbs<Stage>& verbs) {
    Stage stage;
    for (const ScriptStep& step : script.steps) {
        if (step.verb == "host-only" && kOnWindows) GTEST_SKIP() << "the rest is true on the host alone";
        const Words words(step.words, stage.disk.path());
        const auto own = verbs.find(step.verb);
        const auto common = CommonVerbs().find(step.verb);
        ASSERT_TRUE(own != verbs.end() || common != CommonVerbs().end()) << step.line << ": unknown verb " << step.verb;
        ExpectOutcome(stage, step, own != verbs.end() ? own->second(stage, words) : common->second(stage, words));
    }
}

class Script : public testing::TestWithParam<ScriptCase> {};

// The cases of some files as tests of a stage.
#define VEXA_SCRIPTS(Suite, files, Stage, verbs)                                                               \
    class Suite : public ::vexa::test::Script {};                                                              \
    TEST_P(Suite, Case) {                                                                                      \
        ::vexa::test::RunScript<Stage>(GetParam(), verbs);                                                     \
    }                                                                                                          \
    INSTANTIATE_TEST_SUITE_P(                                                                                  \
        Scripts, Suite,                                                                                        \
        testing::ValuesIn(::vexa::test::CasesOf<::vexa::test::ScriptCase>(files, &::vexa::test::ParseScript)), \
        &::vexa::test::CaseName<testing::TestParamInfo<::vexa::test::ScriptCase>>)

}  // namespace vexa::test
