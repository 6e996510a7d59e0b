#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "two_displays.h"

namespace {

int allocations = 0;

}  // namespace

// Every allocation of this program is counted.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tavrin::tests {
namespace {

int AllocationsOf(TwoDisplays& shown, std::string_view keys) {
    const int before = allocations;
    shown.Press(keys);
    return allocations - before;
}

TEST(Allocations, NoKeyAllocates) {
    TwoDisplays shown;
    shown.conversion.SetRate(4.9762);
    EXPECT_EQ(AllocationsOf(shown, "1234567890123.45"), 0);
    EXPECT_EQ(AllocationsOf(shown, "+19.5%-1/3X1234.56=+7=nM5WRZ<C.1A"), 0);
    EXPECT_EQ(AllocationsOf(shown, "999999999999999X999999999999999X999999999999999="), 0);
}

TEST(Allocations, SettingANumberForReadingAllocatesNothingOnceTheTextHasGrown) {
    const data::Locale locale;
    std::string text;
    data::WriteGroupedNumber(text, -123456789012345, 6, locale);
    const int before = allocations;
    for (const double number : {0.0, 9.0, -1234.5, 99999999999999.0, 1e30})
        data::WriteGroupedNumber(text, number, 6, locale);
    EXPECT_EQ(allocations - before, 0);
}

TEST(Allocations, AreCounted) {
    const int before = allocations;
    const std::string text(100, 'x');
    EXPECT_EQ(allocations - before, 1) << text;
}

}  // namespace
}  // namespace tavrin::tests
