// A document in a view with everything that searches in it.
#pragma once

#include "document/view/edit_view.h"
#include "search/find_commands.h"
#include "support/recording_notices.h"

namespace vexa::test {

// A clock that goes on by a step at each look, and a user who asks to stop at a time.
class FakeWatch : public SearchWatch {
  public:
    std::int64_t milliseconds() override { return now += step; }
    bool stopAsked() override { return now >= stopAt; }

    std::int64_t now = 0;
    std::int64_t step = 0;
    std::int64_t stopAt = INT64_MAX;
};

struct FindSession {
    FindSession() {
        document.setProfile(profile);
        view.resize(10, 80);
    }

    RecordingNotices notices;
    FakeWatch watch;
    EditorOptions editorOptions;
    ExtensionProfile profile;
    TextDocument document{editorOptions, notices};
    EditView view{document, editorOptions, notices};
    SearchOptions options{editorOptions.habits};
    FindCommands commands{options, notices, watch};
};

}  // namespace vexa::test
