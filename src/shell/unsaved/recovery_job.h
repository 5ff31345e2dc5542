// Writing one recovery file, a little at a time: the lines are copied while the user does nothing, then written beside
// the older file, brought to the device in the background, and put in its place in one step.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "base/checksum.h"
#include "base/file.h"
#include "document/text/text_document.h"

namespace vexa {

class RecoveryJob {
  public:
    // Waiting is for the device; there is nothing to do meanwhile.
    enum class State { Working, Waiting, Written, Failed };

    // The document must live as long as the job.
    RecoveryJob(const TextDocument& document, const std::string& path) : document_(document), path_(path) { begin(); }
    // What has been begun and not finished is taken away.
    ~RecoveryJob();
    RecoveryJob(const RecoveryJob&) = delete;
    RecoveryJob& operator=(const RecoveryJob&) = delete;

    // Does a part that takes well below a millisecond. Not to be called again after the end.
    State step() { return (this->*next_)(); }
    const TextDocument& document() const { return document_; }
    // The state of the document that the file will have; known when it is written.
    std::uint32_t revision() const { return revision_; }

  private:
    void begin();
    State copyLines();
    State writePart();
    State awaitDevice();

    const TextDocument& document_;
    const std::string path_;
    State (RecoveryJob::*next_)() = &RecoveryJob::copyLines;
    std::uint32_t revision_ = 0;
    int beginnings_ = 0;
    std::vector<std::string> parts_;  // of the file; one string would have to move when it grows
    LineIndex line_;                  // the next to be copied
    Checksum checksum_;
    std::size_t written_ = 0;  // parts
    File file_;
    std::unique_ptr<platform::BackgroundFlush> flush_;
};

}  // namespace vexa
