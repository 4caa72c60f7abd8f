#include "frameworks/Hooking/Trampoline.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace simulator {
namespace {

constexpr std::size_t capacity = 256;
std::size_t used = 0;

std::array<std::function<IMP()>, capacity>& destinations() {
    static auto& all = *new std::array<std::function<IMP()>, capacity>;
    return all;
}

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
        const auto found = destinations()[entry]();
        [[clang::musttail]] return reinterpret_cast<decltype(&passOn<entry>)>(found)(a..., b...);
    }
};
using Entries = Registers<WholeRegisters, std::make_index_sequence<8>>;

template <std::size_t... entry> constexpr auto entriesFor(std::index_sequence<entry...>) {
    return std::array{&Entries::passOn<entry>...};
}
constexpr auto entries = entriesFor(std::make_index_sequence<capacity>());

} // namespace

IMP trampoline(std::function<IMP()> destination) {
    if (used == capacity) {
        std::fputs("simulator: too many methods are passed on\n", stderr);
        std::abort();
    }
    destinations()[used] = std::move(destination);
    return reinterpret_cast<IMP>(entries[used++]);
}

} // namespace simulator
