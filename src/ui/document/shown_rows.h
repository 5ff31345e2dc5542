// The rows of one height that a window shows from its top down, compared with those that it should show: only what
// differs is drawn, and what has only moved is moved.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>
#include <vector>

namespace vexa {

template <class Row>
class ShownRows {
  public:
    // Forgets what is shown, so that all of it will be drawn.
    void clear() { rows_.clear(); }

    // Shows `count` rows, render(0) first. `moved`: rows scrolled since the last call; below 0 is up.
    template <class Render>
    void show(HWND window, std::size_t count, int rowHeight, std::int32_t moved, Render render) {
        if (moved != 0) move(window, moved, rowHeight);
        rows_.resize(count);
        std::size_t unchangedUpTo = 0;
        for (std::size_t i = 0; i < count; ++i) {
            Row row = render(static_cast<std::int32_t>(i));
            if (row != rows_[i]) {
                rows_[i] = std::move(row);
                continue;
            }
            draw(window, unchangedUpTo, i, rowHeight);
            unchangedUpTo = i + 1;
        }
        draw(window, unchangedUpTo, count, rowHeight);
    }

    // Calls paint(top, row) for the rows that an area of the window touches.
    template <class Paint>
    void paint(const RECT& area, int rowHeight, Paint paint) const {
        const auto last = std::min(static_cast<std::size_t>((area.bottom + rowHeight - 1) / rowHeight), rows_.size());
        for (auto i = static_cast<std::size_t>(area.top / rowHeight); i < last; ++i)
            paint(static_cast<int>(i) * rowHeight, rows_[i]);
    }

  private:
    // Most of the picture is there already and only has to move, and the rows with it. Those that come into sight are
    // left empty and are to be drawn. Does nothing when nothing of the picture stays.
    void move(HWND window, std::int32_t moved, int rowHeight) {
        const auto count = static_cast<std::int32_t>(rows_.size());
        if (std::abs(moved) >= count) return;
        UpdateWindow(window);  // what is still to be drawn belongs to the rows as they stood
        RECT area;
        GetClientRect(window, &area);
        area.bottom = count * rowHeight;
        ScrollWindowEx(window, 0, -moved * rowHeight, nullptr, &area, nullptr, nullptr, SW_INVALIDATE);
        std::rotate(rows_.begin(), rows_.begin() + (moved > 0 ? moved : count + moved), rows_.end());
        const auto fresh = moved > 0 ? rows_.end() - moved : rows_.begin();
        std::fill(fresh, fresh + std::abs(moved), Row{});
    }

    static void draw(HWND window, std::size_t from, std::size_t to, int rowHeight) {
        if (from == to) return;
        RECT area;
        GetClientRect(window, &area);
        area.top = static_cast<int>(from) * rowHeight;
        area.bottom = static_cast<int>(to) * rowHeight;
        InvalidateRect(window, &area, FALSE);
    }

    std::vector<Row> rows_;  // as they were last drawn or are about to be
};

}  // namespace vexa
