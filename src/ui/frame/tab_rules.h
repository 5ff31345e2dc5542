// Tabs of windows in a strip: where each lies, and which window was used before which.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace vexa {

// The windows by their last use, each known by an address. A walk goes on from one to the next, and only the window at
// which it ends counts as used.
class UseOrder {
  public:
    using Key = const void*;

    // The windows that are open now, in the order in which they were opened; new ones count as used. Another set of
    // windows ends a walk.
    void take(std::span<const Key> open);
    // The window is the active one. Changes nothing while a walk goes on.
    void use(Key key);
    // The window after, or before, the one where the walk is; the walk begins if need be. Null when none is open.
    Key step(bool back);
    bool isWalking() const { return walk_.has_value(); }
    void endWalk();

  private:
    std::vector<Key> keys_;  // the one used last first
    std::optional<std::size_t> walk_;
};

// Where the tabs lie, in pixels from the left end of the strip.
class TabLayout {
  public:
    struct Span {
        int left = 0;
        int right = 0;

        bool operator==(const Span&) const = default;
    };

    // Goes back as far as there are tabs to fill the room.
    void take(std::vector<int> widths, int room);
    // How many tabs are passed over at the left.
    std::size_t first() const { return first_; }
    void scroll(int tabs);
    // Brings a tab into the room, whole if it can be.
    void bringIn(std::size_t index);
    Span spanOf(std::size_t index) const;
    // None beside the tabs.
    std::optional<std::size_t> at(int x) const;
    bool hasMoreAtRight() const;
    // The position that a tab takes which is dragged to there: that of the tab under the mouse, unless the dragged one
    // would lie beside the mouse then, as two of unequal width would change places for ever.
    std::optional<std::size_t> dropAt(int x, std::size_t dragged) const;

  private:
    int widthOf(std::size_t from, std::size_t to) const;
    std::size_t lastFirst() const;

    std::vector<int> widths_;
    int room_ = 0;
    std::size_t first_ = 0;
};

}  // namespace vexa
