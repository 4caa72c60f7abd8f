#include "frameworks/Hooking/LateOriginal.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace {

struct Inherited {
    Class superclass;
    SEL selector;
};

constexpr std::size_t capacity = 256; // as many entries as LateOriginalEntries.S has
std::array<Inherited, capacity> inherited;
std::size_t used = 0;

} // namespace

extern "C" {

extern const char lateOriginalEntries[];
extern const std::size_t lateOriginalEntrySize;

// Called by the entries with all argument registers saved.
IMP simulatorResolveLateOriginal(std::size_t entry) {
    return class_getMethodImplementation(inherited[entry].superclass, inherited[entry].selector);
}

} // extern "C"

namespace simulator {

IMP lateOriginal(Class superclass, SEL selector) {
    if (used == capacity) {
        std::fputs("simulator: too many replacements of inherited methods\n", stderr);
        std::abort();
    }
    inherited[used] = {superclass, selector};
    return reinterpret_cast<IMP>(const_cast<char*>(lateOriginalEntries) + used++ * lateOriginalEntrySize);
}

} // namespace simulator
