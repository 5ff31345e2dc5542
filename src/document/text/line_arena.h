// Memory for the texts and records of the lines that one load reads: few large blocks, freed together.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace vexa {

class TextLine;

class LineArena {
  public:
    LineArena() = default;
    ~LineArena();
    LineArena(const LineArena&) = delete;
    LineArena& operator=(const LineArena&) = delete;

    // Uninitialised bytes that live as long as the arena. Throws std::bad_alloc.
    char* allocateText(std::size_t size);
    // A line over text of the arena, which must be followed by a NUL. Throws std::bad_alloc.
    TextLine* makeLine(const char* text, std::size_t length);
    // Frees every block. No line made here may be in use any more.
    void clear();

  private:
    struct RecordBlock {
        std::unique_ptr<std::byte[]> memory;
        std::size_t used;
    };
    std::vector<std::unique_ptr<char[]>> texts_;
    std::vector<RecordBlock> records_;
};

}  // namespace vexa
