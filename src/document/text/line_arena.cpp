#include "document/text/line_arena.h"

#include <new>

#include "document/text/text_line.h"

namespace vexa {

namespace {
constexpr std::size_t kRecordsPerBlock = 2048;
}

LineArena::~LineArena() = default;

char* LineArena::allocateText(std::size_t size) {
    texts_.push_back(std::unique_ptr<char[]>(new char[size]));
    return texts_.back().get();
}

TextLine* LineArena::makeLine(const char* text, std::size_t length) {
    if (records_.empty() || records_.back().used == kRecordsPerBlock) {
        records_.push_back({std::unique_ptr<std::byte[]>(new std::byte[kRecordsPerBlock * sizeof(TextLine)]), 0});
    }
    RecordBlock& block = records_.back();
    void* record = block.memory.get() + block.used++ * sizeof(TextLine);
    return ::new (record) TextLine(text, length, TextLine::InArena{});
}

void LineArena::clear() {
    texts_.clear();
    records_.clear();
}

}  // namespace vexa
