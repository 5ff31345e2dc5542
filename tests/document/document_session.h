// A document in a view, with options of its own and notices that remember.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/view/edit_view.h"
#include "support/recording_notices.h"

namespace vexa::test {

struct DocumentSession {
    // A new document with these lines.
    void fill(const std::vector<std::string>& lines) {
        document_.newEmpty();
        for (std::size_t i = 0; i < lines.size(); ++i)
            document_.lines().put(document_.makeLine(lines[i]), static_cast<std::int32_t>(i));
    }
    void type(std::string_view text) {
        for (const char c : text)
            view_.key(KeyEvent{.character = static_cast<unsigned char>(c)});
    }
    void press(std::uint16_t key, int times = 1, bool shift = false) {
        for (; times > 0; --times)
            view_.key(KeyEvent{.key = key, .shift = shift});
    }
    std::string text(std::int32_t line = 0) const { return std::string(document_.text(LineIndex(line))); }
    // Up to the last that is in use, or that has text.
    std::vector<std::string> lines(LastUsed last = LastUsed::Plain) const {
        std::vector<std::string> all;
        for (std::int32_t i = 0; i <= document_.lastLine(last).value; ++i)
            all.push_back(text(i));
        return all;
    }

    RecordingNotices notices_;
    EditorOptions options_;
    TextDocument document_{options_, notices_};
    EditView view_{document_, options_, notices_};
};

}  // namespace vexa::test
