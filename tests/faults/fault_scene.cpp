#include "faults/fault_scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/platform/host/sandbox.h"

namespace vexa::test {

namespace fs = std::filesystem;

namespace {

std::optional<std::string> Find(const Files& files, const std::string& name) {
    const auto found = files.find(name);
    return found == files.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

FaultScene::FaultScene(const WritingOperation& operation) : operation_(operation) {
    for (const char* directory : {"vConfig", "vbackup", "vHelp", "Work"})
        disk.makeDirectory(directory);
    for (const auto& [name, bytes] : operation.files)
        disk.put(name, bytes);
    old_ = files();
}

Files FaultScene::files() const {
    Files files;
    const fs::path root = fs::path(platform::host::ThePlaces().root) / "c";
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream file(entry.path(), std::ios::binary);
        files[entry.path().lexically_relative(root).string()] = {std::istreambuf_iterator<char>(file), {}};
    }
    return files;
}

void FaultScene::run(const FaultPlan& plan, const std::optional<Files>& expected) {
    expected_ = expected;
    SetFaultPlan(plan);
    operation_.run(*this);
    endFaults();
    if (!isJudged_) judge(std::nullopt);
}

// The disk as it is afterwards is the old one.
void FaultScene::withoutFaults(const std::function<void()>& before) {
    const FaultPlan plan = PresentFaultPlan();
    ClearFaultPlan();
    before();
    old_ = files();
    SetFaultPlan(plan);
}

void FaultScene::endFaults() {
    ClearFaultPlan();
}

void FaultScene::attempt(const Save& save, const std::function<void(std::optional<bool>)>& lookAtMemory) {
    const bool wasUnread = CountedFaults().refused > 0;
    const std::optional<bool> saved = save();
    endFaults();
    judge(saved);
    if (lookAtMemory) lookAtMemory(saved);
    if (!expected_ || wasUnread || saved.value_or(false)) return;
    EXPECT_NE(save(), false) << "what was to be written is lost";
    const Files now = files();
    for (const auto& [name, bytes] : *expected_)
        EXPECT_TRUE(isExpected(name, Find(now, name))) << name << " is not new when it is saved again";
}

void FaultScene::judge(std::optional<bool> saved) {
    isJudged_ = true;
    if (!expected_) return;
    found_ = files();
    Files known = old_;
    known.insert(expected_->begin(), expected_->end());
    for (const auto& [name, bytes] : known)
        judgeFile(name, saved);
    for (const auto& [name, bytes] : found_) {
        if (!known.contains(name)) judgeOther(name);
    }
    const bool isToBeTold = saved == false && *operation_.told;
    EXPECT_TRUE(!isToBeTold || wasTold(operation_.told)) << "the user was not told";
}

void FaultScene::judgeFile(const std::string& name, std::optional<bool> saved) const {
    const auto found = Find(found_, name);
    if (saved == true) {
        EXPECT_TRUE(isExpected(name, found)) << name << " is not new, though it was said to be saved";
        return;
    }
    const bool isOldOrNew = found == Find(old_, name) || (!saved && isExpected(name, found));
    EXPECT_TRUE(isOldOrNew || mayBe(name, found)) << name << " is neither old nor new";
}

bool FaultScene::isExpected(const std::string& name, const std::optional<std::string>& found) const {
    return found == Find(*expected_, name);
}

bool FaultScene::mayBe(const std::string& name, const std::optional<std::string>& found) const {
    switch (operation_.afterFailure) {
        case AfterFailure::OldOrNew:
            return false;
        case AfterFailure::OldOrNone:
            return !found;
        case AfterFailure::TornWithCopy:
            return CountedFaults().refused > 1 && isInToldCopy(name);
        case AfterFailure::TornAsTold:
            return CountedFaults().refused > 1 && (isInToldCopy(name) || wasTold("could not be put back"));
    }
    return false;
}

bool FaultScene::isInToldCopy(const std::string& name) const {
    return std::ranges::any_of(found_, [&](const auto& file) {
        const std::string copy = fs::path(file.first).filename().string();
        return file.first != name && file.second == Find(old_, name) && wasTold(copy);
    });
}

// What could not be taken away, or holds the old contents of a file that is torn.
void FaultScene::judgeOther(const std::string& name) const {
    const bool isCopy = operation_.afterFailure >= AfterFailure::TornWithCopy && CountedFaults().refused > 1;
    EXPECT_TRUE(CountedFaults().refusedRemoval || isCopy) << name << " is left";
}

bool FaultScene::wasTold(const std::string& text) const {
    const auto holds = [&text](const auto& notice) { return notice.text.find(text) != std::string::npos; };
    return std::ranges::any_of(notices.boxes, holds) || std::ranges::any_of(notices.statuses, holds);
}

}  // namespace vexa::test
