// Stand-ins for what external programs ask of the frame.
#pragma once

#include <string>
#include <vector>

#include "external/captured_programs.h"
#include "external/message_list.h"
#include "external/output_list.h"

namespace vexa::test {

class FakeDocument : public SourceDocument {
  public:
    explicit FakeDocument(std::string documentPath) : documentPath_(std::move(documentPath)) {}

    std::string path() const override { return documentPath_; }
    bool isModified() const override { return modified; }
    bool save() override {
        ++saves;
        modified = !canSave;
        return canSave;
    }
    void moveCaret(LineIndex line) override { caretLine = line.value; }
    void activate() override { ++activations; }
    bool isActive() const override { return false; }

    bool modified = false;
    bool canSave = true;
    int saves = 0;
    int activations = 0;
    int caretLine = -7;

  private:
    std::string documentPath_;
};

struct OpenedFile {
    std::string path;
    std::int32_t line = 0;

    bool operator==(const OpenedFile&) const = default;
};

class RecordingOpener : public FileOpener {
  public:
    bool openFileAtLine(const std::string& path, std::int32_t line) override {
        opened.push_back({path, line});
        return true;
    }

    std::vector<OpenedFile> opened;
};

class RecordingTimer : public PollTimer {
  public:
    void start(int milliseconds) override { interval = milliseconds; }
    void stop() override { interval = 0; }

    int interval = 0;  // 0 while it does not run
};

class RecordingView : public ListView {
  public:
    void rowsChanged() override { ++changes; }
    void selectionChanged() override {}
    void show() override { ++shows; }
    bool isActive() const override { return active; }

    int changes = 0;
    int shows = 0;
    bool active = false;
};

}  // namespace vexa::test
