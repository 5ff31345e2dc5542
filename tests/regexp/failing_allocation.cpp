#include "failing_allocation.h"

#include <cstdlib>
#include <new>

namespace {

long allocationsLeft = -1;
long allocationsAlive = 0;

void* Allocate(std::size_t size) {
    if (allocationsLeft == 0) return nullptr;
    if (allocationsLeft > 0) --allocationsLeft;
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory) ++allocationsAlive;
    return memory;
}

void Free(void* memory) {
    if (memory) --allocationsAlive;
    std::free(memory);
}

}  // namespace

void vexa::test::AllowAllocations(long count) {
    allocationsLeft = count;
}

long vexa::test::AllocationsAlive() {
    return allocationsAlive;
}

void* operator new(std::size_t size) {
    if (void* memory = Allocate(size)) return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}

void operator delete(void* memory) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    Free(memory);
}

void operator delete[](void* memory) noexcept {
    Free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    Free(memory);
}
