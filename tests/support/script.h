// Cases of rules that need no window, as data. A line is a verb with its words, and after "->" what it gives:
//
//   # A file that has gone is written again     the case's name
//   put A.TXT abc{rn}
//   load A.TXT -> yes                           a verb without "->" may give anything
//   box -> Unable to open...                    "..." at an end stands for any text there
//
// Words and outcomes have the escapes of `Words`.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/file.h"
#include "support/case_files.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {

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

struct ScriptStep {
    explicit ScriptStep(const CaseStep& step);
    void expect(const Told& told, const std::string& disk) const;

    const CaseStep& step;
    std::string verb;
    std::string words;
    std::optional<std::string> outcome;
};

#ifdef _WIN32
inline constexpr bool kOnWindows = true;
#else
inline constexpr bool kOnWindows = false;
#endif

template <class Stage>
void RunScript(const Case& script, const Verbs<Stage>& verbs) {
    Stage stage;
    for (const CaseStep& line : script.steps) {
        const ScriptStep step(line);
        if (step.verb == "host-only" && kOnWindows) GTEST_SKIP() << "the rest is true on the host alone";
        const Words words(step.words, stage.disk.path());
        const auto own = verbs.find(step.verb);
        const auto common = CommonVerbs().find(step.verb);
        ASSERT_TRUE(own != verbs.end() || common != CommonVerbs().end())
            << line.number << ": unknown verb " << step.verb;
        step.expect(own != verbs.end() ? own->second(stage, words) : common->second(stage, words), stage.disk.path());
    }
}

// The cases of some files as tests of a stage.
#define VEXA_SCRIPTS(Suite, files, Stage, verbs)    \
    VEXA_CASES(Suite, ::vexa::test::CasesOf(files), \
               [](const ::vexa::test::Case& script) { ::vexa::test::RunScript<Stage>(script, verbs); })

}  // namespace vexa::test
