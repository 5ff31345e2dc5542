// Wherever memory runs out in a command, undoing brings back the text that was loaded. A program of its own, because it
// replaces the allocation.
#include <gtest/gtest.h>

#include <new>
#include <string>

#include "document/view/edit_view.h"
#include "regexp/failing_allocation.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {
namespace {

constexpr const char* kText = "alpha beta\r\n  gamma\r\ndelta\r\n";

struct Session {
    explicit Session(const std::string& path) {
        document.setName(path);
        document.load();
        view.resize(5, 20);
    }
    std::string text() const {
        std::string all;
        for (std::int32_t i = 0; i <= document.lastLine(LastUsed::Text); ++i)
            all += std::string(document.text(LineIndex(i))) + "\r\n";
        return all;
    }
    void undoAll() {
        document.history().nextGroup();
        while (!document.history().isEmpty())
            view.undo();
    }

    RecordingNotices notices;
    EditorOptions options;
    TextDocument document{options, notices};
    EditView view{document, options, notices};
};

void Press(EditView& view, std::uint16_t key, bool shift = false, int repeat = 1) {
    KeyEvent event;
    event.key = key;
    event.shift = shift;
    event.repeat = static_cast<std::uint16_t>(repeat);
    view.key(event);
}

void Type(EditView& view, const char* text) {
    for (; *text; ++text) {
        KeyEvent event;
        event.character = static_cast<unsigned char>(*text);
        view.key(event);
    }
}

using Command = void (*)(EditView& view);
constexpr Command kCommands[] = {
    [](EditView& view) { Type(view, "xy"); },
    [](EditView& view) { Press(view, kKeyRight, false, 3), Press(view, kKeyEnter); },
    [](EditView& view) { Press(view, kKeyEnd), Press(view, kKeyDelete, false, 4); },
    [](EditView& view) { Press(view, kKeyDown), Press(view, kKeyBackspace); },
    [](EditView& view) { Press(view, kKeyDown, true, 2), Press(view, kKeyTab); },
    [](EditView& view) { Press(view, kKeyDown, true, 2), Press(view, kKeyDelete); },
    [](EditView& view) { view.goToLine(80), Type(view, "z"), Press(view, kKeyEnter); },
    [](EditView& view) { view.selectAll(), view.changeCase(CaseChange::Upper), Press(view, kKeyDelete); },
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
            isDone = RunWith(allocations, [&] { command(session.view); });
            isDone &= RunWith(allocations, [&] { session.undoAll(); });
            isDone &= RunWith(allocations, [&] {
                while (session.document.history().redo()) {
                }
            });
            failures += isDone ? 0 : 1;
            session.undoAll();
            ASSERT_EQ(session.text(), kText) << allocations;
            ASSERT_FALSE(session.document.isModified()) << allocations;
            ASSERT_EQ(session.document.currentLine(), LineIndex(0)) << allocations;
        }
        EXPECT_TRUE(isDone);
    }
    EXPECT_GT(failures, 50);
}

}  // namespace
}  // namespace vexa::test
