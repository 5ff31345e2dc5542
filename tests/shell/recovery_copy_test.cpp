// Whatever is done to a document while it is copied: the copy is that of its text at the end.
#include "shell/unsaved/recovery_copy.h"

#include <gtest/gtest.h>

#include <string>

#include "document/document_session.h"
#include "document/random_user.h"
#include "document/text/document_line_ends.h"

namespace vexa::test {
namespace {

constexpr std::uint16_t kKeys[] = {kKeyUp,        kKeyDown,   kKeyEnd, kKeyPageUp, kKeyEnter,   kKeyTab,
                                   kKeyBackspace, kKeyDelete, 'D',     'K',        kKeyPageDown};

std::string Taken(RecoveryCopy& copy) {
    std::string all;
    for (const RecoveryPart& part : copy.take())
        all += part.text;
    return all;
}

std::string CopiedAtOnce(TextDocument& document) {
    RecoveryCopy copy(document);
    EXPECT_TRUE(copy.step());
    return Taken(copy);
}

TEST(RecoveryCopyTest, ItIsTheTextAtItsEndWhateverIsDoneMeanwhile) {
    for (unsigned seed = 0; seed < 100; ++seed) {
        DocumentSession session;
        session.options_.habits.keepFiles = seed % 2 != 0;
        session.fill({"line 0", "", "", "line 3", "line\t4", "", "line 6", "line 7", "line 8", "line 9", ""});
        RandomUser user(session.view_, seed, " \tab(x", kKeys);
        for (int copies = 0; copies < 20; ++copies) {
            RecoveryCopy copy(session.document_, 10);
            for (int steps = 0; !copy.step() && steps < 1000; ++steps) {
                if (steps < 10) user.act();
                if (steps == 5 && seed % 4 == 1) session.view_.editor().run<UnifyLineEnds>(LineEnd::Lf);
            }
            ASSERT_EQ(Taken(copy), CopiedAtOnce(session.document_)) << seed << " " << copies;
        }
    }
}

// A user who never stops typing does not make it begin again and again.
TEST(RecoveryCopyTest, ItEndsThoughAKeyComesBetweenAnyTwoSteps) {
    DocumentSession session;
    session.fill(std::vector<std::string>(1000, "a line"));
    RecoveryCopy copy(session.document_, 100);
    int steps = 1;
    for (; !copy.step() && steps < 1000; ++steps)
        session.view_.key(steps % 8 == 0 ? KeyEvent{.key = kKeyEnter} : KeyEvent{.character = 'x'});
    EXPECT_GT(steps, 1000 * 7 / 110);
    EXPECT_LT(steps, 200);
}

}  // namespace
}  // namespace vexa::test
