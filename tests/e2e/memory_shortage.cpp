#include "e2e/memory_shortage.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

// NOLINTBEGIN(cppcoreguidelines-avoid-non-const-global-variables): operator new is one for all
thread_local bool isShort = false;
thread_local int left = 0;
thread_local bool wasFelt = false;
// NOLINTEND(cppcoreguidelines-avoid-non-const-global-variables)

bool IsRefused() {
    if (!isShort || left-- > 0) return false;
    left = 0;
    return wasFelt = true;
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
