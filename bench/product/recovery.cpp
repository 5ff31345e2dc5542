// Keeping the unsaved changes of a document of 3 MB: the same source as a program of this machine and as a Windows
// program of 32 bits under Wine. A key that comes in the middle of a step waits for its end, which is to be 2 ms at
// most. Between any two steps the machine computes for as long without the editor ("machine"): what is too long there
// shows how often the machine itself was away. Prints lines "recovery/STEP/BUILD/FIGURE value", times in nanoseconds.
//
// usage: recovery BUILD FOLDER [ROOT]    FOLDER is a path as the editor has it, for the recovery files; on this
//        machine, in the folder ROOT as C:
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "document/view/edit_view.h"
#include "shell/unsaved/recovery_keeper.h"
#include "support/silent.h"

#ifndef _WIN32
#include "base/platform/host/sandbox.h"
#endif

namespace vexa::bench {
namespace {

constexpr int kRuns = 100;
constexpr int kLines = 90'000;

std::uint32_t g_now = 1;

double TimeOf(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - begin).count();
}

class OneDocument : public BackupFrame {
  public:
    OneDocument() {
        document_.newEmpty();
        for (int i = 0; i < kLines; ++i)
            document_.lines().insertAt(document_.makeLine("    a line of thirty-four characters"), i);
    }
    void type() { view_.key(KeyEvent{.character = 'x'}); }
    TextDocument& document() { return document_; }
    bool isBusy() const override { return false; }
    std::vector<TextDocument*> openDocuments() const override { return {&document_}; }

  private:
    SilentNotices notices_;
    EditorOptions options_;
    mutable TextDocument document_{options_, notices_};
    EditView view_{document_, options_, notices_};
};

// How long the steps of one kind took.
class Steps {
  public:
    explicit Steps(const char* name) : name_(name) {}
    void add(double time) { times_.push_back(time); }
    void print(const char* build) {
        constexpr double kBearable = 2e6;
        std::ranges::sort(times_);
        const auto tooLong = static_cast<std::size_t>(times_.end() - std::ranges::upper_bound(times_, kBearable));
        std::printf("recovery/%s/%s/steps %u\n", name_, build, static_cast<unsigned>(times_.size()));
        std::printf("recovery/%s/%s/longer_than_2_ms %u\n", name_, build, static_cast<unsigned>(tooLong));
        std::printf("recovery/%s/%s/median %.0f\n", name_, build, times_[times_.size() / 2]);
        std::printf("recovery/%s/%s/percentile_99.9 %.0f\n", name_, build, times_[times_.size() * 999 / 1000]);
        std::printf("recovery/%s/%s/longest %.0f\n", name_, build, times_.back());
    }

  private:
    const char* name_;
    std::vector<double> times_;
};

// As long as half of the steps, and without a call: when it takes longer, the machine was away.
void Compute() {
    constexpr unsigned kRounds = 50'000;
    volatile unsigned sum = 0;
    for (unsigned i = 0; i < kRounds; ++i)
        sum = sum + i;
}

class Keeping {
  public:
    Keeping(const std::string& folder, Steps& machine)
        : machine_(machine), keeper_(frame_, folder, notices_, [] { return g_now; }) {}

    void pause(Steps& steps) {
        frame_.type();
        work(steps);
        g_now += RecoveryKeeper::kPause;
        for (auto work = this->work(steps); work != RecoveryKeeper::Work::None; work = this->work(steps)) {
            if (work == RecoveryKeeper::Work::Wait) platform::Pause(1);
        }
    }
    // Keys come between any two steps, so that the copy begins again and again.
    void typeOn(Steps& steps) {
        constexpr int kKeys = 60;
        for (int i = 0; i < kKeys; ++i) {
            frame_.type();
            g_now += RecoveryKeeper::kLongestWait / 10;
            work(steps);
        }
        pause(steps);
    }
    void forget(Steps& steps) {
        frame_.type();
        Steps before("before");
        work(before);
        g_now += RecoveryKeeper::kPause;
        while (work(before) == RecoveryKeeper::Work::More) {
        }
        steps.add(TimeOf([this] { keeper_.forget(frame_.document()); }));
    }

  private:
    RecoveryKeeper::Work work(Steps& steps) {
        auto work = RecoveryKeeper::Work::None;
        steps.add(TimeOf([&] { work = keeper_.work(); }));
        machine_.add(TimeOf(Compute));
        return work;
    }

    Steps& machine_;
    SilentNotices notices_;
    OneDocument frame_;
    RecoveryKeeper keeper_;
};

void Measure(const char* build, const std::string& folder) {
    Steps first("first");  // makes the files of the run
    Steps afterPause("after_pause");
    Steps whileTyping("while_typing");
    Steps forgetting("forgetting");  // with what was written not yet on the disk
    Steps machine("machine");        // between any two steps, computing alone
    Keeping keeping(folder, machine);
    keeping.pause(first);
    for (int run = 0; run < kRuns; ++run) {
        keeping.pause(afterPause);
        keeping.typeOn(whileTyping);
        keeping.forget(forgetting);
    }
    for (Steps* steps : {&first, &afterPause, &whileTyping, &forgetting, &machine})
        steps->print(build);
}

}  // namespace
}  // namespace vexa::bench

int main(int count, char** words) {
    if (count < 3) return EXIT_FAILURE;
#ifndef _WIN32
    vexa::platform::host::SetSandboxRoot(count > 3 ? words[3] : ".");
#endif
    vexa::bench::Measure(words[1], words[2]);
}
