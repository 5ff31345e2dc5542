// A user who types, moves, marks, deletes, undoes and redoes at random, the same for the same seed.
#pragma once

#include <random>
#include <span>
#include <string_view>

#include "document/view/edit_view.h"

namespace vexa::test {

class RandomUser {
  public:
    // The characters that are typed and the keys that are pressed, letters mostly with Alt.
    RandomUser(EditView& view, unsigned seed, std::string_view characters, std::span<const std::uint16_t> keys)
        : view_(view), random_(seed), characters_(characters), keys_(keys) {}

    void act() {
        const auto choice = below(20);
        if (choice < 3) {
            view_.undo();
        } else if (choice < 5) {
            view_.redo();
        } else if (choice == 5) {
            useMouse();
        } else if (choice == 6) {
            const auto lines = static_cast<unsigned>(view_.document().lastLine(LastUsed::Plain).value) + 2;
            view_.goTo(LineIndex(below(lines)), CharColumn(below(6)));
        } else if (choice < 11) {
            view_.key(KeyEvent{.character = static_cast<unsigned char>(characters_[random_() % characters_.size()]),
                               .repeat = static_cast<std::uint16_t>(1 + below(2))});
        } else {
            pressKey();
        }
    }

  private:
    std::int32_t below(unsigned bound) { return static_cast<std::int32_t>(random_() % bound); }
    void pressKey() {
        KeyEvent event{.key = keys_[random_() % keys_.size()]};
        event.shift = below(3) == 0;
        event.alt = event.key >= 'A' && event.key <= 'Z' && below(3) != 0;
        event.control = !event.alt && below(4) == 0;
        event.repeat = static_cast<std::uint16_t>(1 + below(3));
        view_.key(event);
    }
    Cell cell() {
        const std::int32_t row = below(14) - 2;
        return {row, below(30) - 3};
    }
    void useMouse() {
        view_.press(cell(), below(2) == 0);
        view_.drag(cell());
        view_.release();
        if (below(20) == 0) view_.selectAll();
    }

    EditView& view_;
    std::mt19937 random_;
    std::string_view characters_;
    std::span<const std::uint16_t> keys_;
};

}  // namespace vexa::test
