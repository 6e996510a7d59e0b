#include "e2e/memory_shortage.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

thread_local bool isShort = false;
thread_local int left = 0;
thread_local bool wasFelt = false;

bool IsRefused() {
    if (!isShort) return false;
    if (left > 0) return --left, false;
    wasFelt = true;
    return true;
}

}  // namespace

void* operator new(std::size_t size) {
    void* memory = IsRefused() ? nullptr : std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tavrin::e2e {

MemoryShortage::MemoryShortage(int granted) {
    left = granted;
    wasFelt = false;
    isShort = true;
}

MemoryShortage::~MemoryShortage() {
    isShort = false;
}

bool MemoryShortage::WasFelt() {
    return wasFelt;
}

}  // namespace tavrin::e2e
