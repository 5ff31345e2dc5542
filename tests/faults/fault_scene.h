// One run of an operation that writes files, on a disk whose calls may fail, and the judge of what it leaves.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "base/directories.h"
#include "base/editor_options.h"
#include "faults/fault_plan.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {

// Every file of a disk by its name relative to the disk.
using Files = std::map<std::string, std::string>;

// What a file may be when its writing has failed.
enum class AfterFailure {
    OldOrNew,      // what the operation says of it, and old or new where it says nothing
    OldOrNone,     // it may also have been taken away
    TornWithCopy,  // after two failures anything, if a safety copy that the user has been told of holds the old
                   // contents
    TornAsTold,    // after two failures also without one, for a user who wanted none and has been told
};

class FaultScene;

// A row of the table: how one operation writes, and what holds when it fails.
struct WritingOperation {
    friend void PrintTo(const WritingOperation& operation, std::ostream* stream) { *stream << operation.name; }

    const char* name;
    Files files;       // on the disk before
    const char* told;  // a part of what the user is told of a failure; empty where silence is the rule
    AfterFailure afterFailure;
    void (*run)(FaultScene& scene);
};

class FaultScene {
  public:
    // Whether the operation says that the files are written; none when it says nothing.
    using Save = std::function<std::optional<bool>()>;

    explicit FaultScene(const WritingOperation& operation);
    ~FaultScene() { ClearFaultPlan(); }

    // Runs the operation with these faults and judges it by the files that it leaves without any; without those, not.
    void run(const FaultPlan& plan, const std::optional<Files>& expected);
    Files files() const;

    // For operations: saves, looks at memory, and when the first time has failed saves again without faults, which must
    // succeed, as nothing has been lost.
    void attempt(const Save& save, const std::function<void(std::optional<bool>)>& lookAtMemory = {});
    // For operations: what happens before, and cannot fail.
    void withoutFaults(const std::function<void()>& before);
    // Every question from now on gets this answer.
    void answerAll(BoxAnswer answer) { notices.answers.assign(kMostQuestions, answer); }

    TestDisk disk;
    RecordingNotices notices;
    EditorOptions options;

  private:
    void endFaults();
    static constexpr std::size_t kMostQuestions = 20;

    void judge(std::optional<bool> saved);
    void judgeFile(const std::string& name, std::optional<bool> saved) const;
    void judgeOther(const std::string& name) const;
    bool mayBe(const std::string& name, const std::optional<std::string>& found) const;
    bool isExpected(const std::string& name, const std::optional<std::string>& found) const;
    bool isInToldCopy(const std::string& name) const;
    bool wasTold(const std::string& text) const;

    const WritingOperation& operation_;
    Files old_;
    std::optional<Files> expected_;
    Files found_;  // while they are judged
    bool isJudged_ = false;
};

}  // namespace vexa::test
