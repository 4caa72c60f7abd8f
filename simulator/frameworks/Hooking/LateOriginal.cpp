#include "frameworks/Hooking/LateOriginal.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace simulator {
namespace {

struct Inherited {
    Class superclass;
    SEL selector;
};

constexpr std::size_t capacity = 128;
std::array<Inherited, capacity> inherited;
std::size_t used = 0;

// A parameter for each register that may carry an argument; what lies on the stack stays where it is.
template <std::size_t> using Whole = long;
template <std::size_t> using Floating = double;
#if defined(__x86_64__)
using WholeRegisters = std::make_index_sequence<6>;
#elif defined(__aarch64__)
using WholeRegisters = std::make_index_sequence<8>;
#endif

template <class, class> struct Registers;
template <std::size_t... whole, std::size_t... floating>
struct Registers<std::index_sequence<whole...>, std::index_sequence<floating...>> {
    // Jumps on, so that whatever comes back goes straight to the caller.
    template <std::size_t entry> static long passOn(Whole<whole>... a, Floating<floating>... b) {
        const auto found =
            class_getMethodImplementation(inherited[entry].superclass, inherited[entry].selector);
        [[clang::musttail]] return reinterpret_cast<decltype(&passOn<entry>)>(found)(a..., b...);
    }
};
using Entries = Registers<WholeRegisters, std::make_index_sequence<8>>;

template <std::size_t... entry> constexpr auto entriesFor(std::index_sequence<entry...>) {
    return std::array{&Entries::passOn<entry>...};
}
constexpr auto entries = entriesFor(std::make_index_sequence<capacity>());

} // namespace

IMP lateOriginal(Class superclass, SEL selector) {
    if (used == capacity) {
        std::fputs("simulator: too many replacements of inherited methods\n", stderr);
        std::abort();
    }
    inherited[used] = {superclass, selector};
    return reinterpret_cast<IMP>(entries[used++]);
}

} // namespace simulator
