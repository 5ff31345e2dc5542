// Whatever is done, undone and done again in whatever order: undoing everything brings back the text that was loaded.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/document_session.h"
#include "document/random_user.h"

namespace vexa {
namespace {

const std::uint16_t kKeys[] = {kKeyLeft,  kKeyRight, kKeyUp,        kKeyDown,   kKeyHome,    kKeyEnd, kKeyPageUp,
                               kKeyEnter, kKeyTab,   kKeyBackspace, kKeyDelete, kKeyEscape,  'D',     'K',
                               'A',       'L',       'C',           'I',        kKeyPageDown};

void SetOptions(EditorOptions& options, unsigned seed) {
    options.UseTabs = seed % 2 != 0;
    options.LineWrap = seed % 3 == 0;
    options.WrapColumn = 12;
    options.SmartIndent = seed % 5 != 0;
    options.TabSize = 1 + static_cast<std::int32_t>(seed % 9);
}

TEST(UndoProperty, UndoingEverythingBringsBackTheLoadedText) {
    for (unsigned seed = 0; seed < 120; ++seed) {
        test::DocumentSession session;
        SetOptions(session.options_, seed);
        session.fill({"  line\t0", "  line\t1", "  line\t2", "  line\t3", "  line\t4", "  line\t5"});
        const auto loaded = session.lines(LastUsed::Text);
        session.view_.resize(5, 20);
        test::RandomUser user(session.view_, seed, " \tab(x", kKeys);
        for (int step = 0; step < 400; ++step)
            user.act();
        const TextDocument& document = session.document_;
        while (!document.history().isEmpty())
            session.view_.undo();
        ASSERT_EQ(session.lines(LastUsed::Text), loaded) << "seed " << seed;
        ASSERT_FALSE(document.isModified()) << "seed " << seed;
        ASSERT_EQ(document.currentLine(), LineIndex(0)) << "seed " << seed;
        ASSERT_EQ(document.column(), CharColumn(0)) << "seed " << seed;
        ASSERT_EQ(document.marked(), MarkedArea{}) << "seed " << seed;
    }
}

}  // namespace
}  // namespace vexa
