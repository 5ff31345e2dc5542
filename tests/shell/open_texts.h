// Documents of a test as if they were open in windows.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/view/edit_view.h"
#include "document/view/text_exchange.h"
#include "shell/auto_backup.h"
#include "support/recording_notices.h"
#include "support/test_disk.h"

namespace vexa::test {

struct OpenTexts : BackupFrame {
    bool isBusy() const override { return false; }
    std::vector<TextDocument*> openDocuments() const override { return open; }

    // A new document without a path, and with one its file.
    TextDocument& add(const std::optional<std::string>& path = std::nullopt) {
        TextDocument& document = made.emplace_back(options, notices);
        document.setName(path.value_or("untitled.txt"));
        if (!path || !platform::PathExists(*path) || !document.load()) document.newEmpty();
        open.push_back(&document);
        return document;
    }
    void type(TextDocument& document, std::string_view text) {
        EditView view(document, options, notices);
        for (const char c : text)
            view.key(KeyEvent{.character = static_cast<unsigned char>(c)});
    }
    static std::string textOf(const TextDocument& document) {
        std::string text;
        for (const std::string_view line : LinesOf(document))
            text.append(line) += "|";
        return text;
    }

    TestDisk disk;
    RecordingNotices notices;
    EditorOptions options;
    std::deque<TextDocument> made;
    std::vector<TextDocument*> open;
};

}  // namespace vexa::test
