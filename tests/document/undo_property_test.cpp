// Whatever is done, undone and done again in whatever order: undoing everything brings back the text that was loaded.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "document/view/edit_view.h"
#include "support/recording_notices.h"

namespace vexa {
namespace {

const std::uint16_t kKeys[] = {kKeyLeft,  kKeyRight, kKeyUp,        kKeyDown,   kKeyHome,    kKeyEnd, kKeyPageUp,
                               kKeyEnter, kKeyTab,   kKeyBackspace, kKeyDelete, kKeyEscape,  'D',     'K',
                               'A',       'L',       'C',           'I',        kKeyPageDown};

std::vector<std::string> Lines(const TextDocument& document) {
    std::vector<std::string> lines;
    for (std::int32_t i = 0; i <= document.lastLine(LastUsed::Text); ++i)
        lines.emplace_back(document.text(LineIndex(i)));
    return lines;
}

class RandomUser {
  public:
    RandomUser(EditView& view, unsigned seed) : view_(view), random_(seed) {}

    void act() {
        const auto choice = random_() % 20;
        if (choice < 3) {
            view_.undo();
        } else if (choice < 5) {
            view_.redo();
        } else if (choice == 5) {
            useMouse();
        } else if (choice < 10) {
            KeyEvent event;
            event.character = static_cast<unsigned char>(" \tab(x"[random_() % 6]);
            view_.key(event);
        } else {
            pressKey();
        }
    }

  private:
    void pressKey() {
        KeyEvent event;
        event.key = kKeys[random_() % std::size(kKeys)];
        event.shift = random_() % 3 == 0;
        event.alt = event.key >= 'A' && event.key <= 'Z' && random_() % 3 != 0;
        event.control = !event.alt && random_() % 4 == 0;
        event.repeat = static_cast<std::uint16_t>(1 + random_() % 3);
        view_.key(event);
    }
    void useMouse() {
        const auto cell = [this] {
            return Cell{static_cast<std::int32_t>(random_() % 14) - 2, static_cast<std::int32_t>(random_() % 30) - 3};
        };
        view_.press(cell(), random_() % 2 == 0);
        view_.drag(cell());
        view_.release();
        if (random_() % 20 == 0) view_.selectAll();
    }

    EditView& view_;
    std::mt19937 random_;
};

void SetOptions(EditorOptions& options, unsigned seed) {
    options.UseTabs = seed % 2 != 0;
    options.LineWrap = seed % 3 == 0;
    options.WrapColumn = 12;
    options.SmartIndent = seed % 5 != 0;
    options.TabSize = 1 + static_cast<std::int32_t>(seed % 9);
}

TEST(UndoProperty, UndoingEverythingBringsBackTheLoadedText) {
    for (unsigned seed = 0; seed < 120; ++seed) {
        test::RecordingNotices notices;
        EditorOptions options;
        SetOptions(options, seed);
        TextDocument document(options, notices);
        document.newEmpty();
        for (int i = 0; i < 6; ++i)
            document.lines().put(document.makeLine("  line\t" + std::to_string(i)), i);
        const auto loaded = Lines(document);
        EditView view(document, options, notices);
        view.resize(5, 20);
        RandomUser user(view, seed);
        for (int step = 0; step < 400; ++step)
            user.act();

        while (!document.history().isEmpty())
            view.undo();
        ASSERT_EQ(Lines(document), loaded) << "seed " << seed;
        ASSERT_FALSE(document.isModified()) << "seed " << seed;
        ASSERT_EQ(document.currentLine(), LineIndex(0)) << "seed " << seed;
        ASSERT_EQ(document.column(), CharColumn(0)) << "seed " << seed;
        ASSERT_EQ(document.marked(), MarkedArea{}) << "seed " << seed;
    }
}

}  // namespace
}  // namespace vexa
