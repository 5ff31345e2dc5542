// Wherever memory runs out in a command, undoing brings back the text that was loaded. A program of its own, because it
// replaces the allocation.
#include <gtest/gtest.h>

#include <new>
#include <string>

#include "document/document_session.h"
#include "regexp/failing_allocation.h"
#include "support/test_disk.h"

namespace vexa::test {
namespace {

constexpr const char* kText = "alpha beta\r\n  gamma\r\ndelta\r\n";
const std::vector<std::string> kLines = {"alpha beta", "  gamma", "delta"};

struct Session : DocumentSession {
    explicit Session(const std::string& path) {
        document_.setName(path);
        document_.load();
        view_.resize(5, 20);
    }
    void undoAll() {
        document_.history().nextGroup();
        while (!document_.history().isEmpty())
            view_.undo();
    }
};

using Command = void (*)(DocumentSession& s);
constexpr Command kCommands[] = {
    [](DocumentSession& s) { s.type("xy"); },
    [](DocumentSession& s) { s.press(kKeyRight, 3), s.press(kKeyEnter); },
    [](DocumentSession& s) { s.press(kKeyEnd), s.press(kKeyDelete, 4); },
    [](DocumentSession& s) { s.press(kKeyDown), s.press(kKeyBackspace); },
    [](DocumentSession& s) { s.press(kKeyDown, 2, true), s.press(kKeyTab); },
    [](DocumentSession& s) { s.press(kKeyDown, 2, true), s.press(kKeyDelete); },
    [](DocumentSession& s) { s.view_.goToLine(80), s.type("z"), s.press(kKeyEnter); },
    [](DocumentSession& s) { s.view_.selectAll(), s.view_.changeCase(CaseChange::Upper), s.press(kKeyDelete); },
};

// False when memory ran out on the way.
template <class Work>
bool RunWith(long allocations, Work work) {
    AllowAllocations(allocations);
    try {
        work();
        AllowAllocations(-1);
        return true;
    } catch (const std::bad_alloc&) {
        AllowAllocations(-1);
        return false;
    }
}

TEST(UndoMemory, WhateverAllocationFailsUndoIsExact) {
    const TestDisk disk;
    disk.put("a.txt", kText);
    int failures = 0;
    for (const Command command : kCommands) {
        bool isDone = false;
        for (long allocations = 0; !isDone && allocations < 500; ++allocations) {
            Session session(disk.path("a.txt"));
            isDone = RunWith(allocations, [&] { command(session); });
            isDone &= RunWith(allocations, [&] { session.undoAll(); });
            isDone &= RunWith(allocations, [&] {
                while (session.document_.history().redo()) {
                }
            });
            failures += isDone ? 0 : 1;
            session.undoAll();
            ASSERT_EQ(session.lines(LastUsed::Text), kLines) << allocations;
            ASSERT_FALSE(session.document_.isModified()) << allocations;
            ASSERT_EQ(session.document_.currentLine(), LineIndex(0)) << allocations;
        }
        EXPECT_TRUE(isDone);
    }
    EXPECT_GT(failures, 50);
}

// Each round begins with the loaded text, and half of them end with everything undone.
void UseForRounds(Session& session, int rounds) {
    constexpr int kCommandsARound = 400;
    for (int round = 0; round < rounds; ++round) {
        ASSERT_TRUE(session.document_.load());
        for (int i = 0; i < kCommandsARound; ++i)
            kCommands[static_cast<std::size_t>(i * 3 + round) % std::size(kCommands)](session);
        if (round % 2 == 0) session.undoAll();
    }
    ASSERT_TRUE(session.document_.load());
    session.notices_ = RecordingNotices();
}

TEST(UndoMemory, AHundredThousandCommandsLeaveNothingAllocated) {
    const TestDisk disk;
    disk.put("a.txt", kText);
    Session session(disk.path("a.txt"));
    UseForRounds(session, 10);
    const long before = AllocationsAlive();
    UseForRounds(session, 250);
    EXPECT_EQ(AllocationsAlive(), before);
}

}  // namespace
}  // namespace vexa::test
