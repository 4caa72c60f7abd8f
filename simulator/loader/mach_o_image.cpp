#include "loader/mach_o.h"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <sys/mman.h>

extern "C" void __register_frame(void* begin);

namespace simulator::macho {
namespace {

#ifdef __aarch64__
constexpr bool processIsArm64 = true;
#else
constexpr bool processIsArm64 = false;
#endif

// Lazy binding is done ahead of time; whoever comes here called through a pointer that was never bound.
[[noreturn]] void trapOnLazyBinding() { std::abort(); }

std::uint64_t addressOf(const Symbol& symbol) {
    if (symbol.name == "dyld_stub_binder") return reinterpret_cast<std::uintptr_t>(&trapOnLazyBinding);
    void* found = dlsym(RTLD_DEFAULT, symbol.name.c_str() + 1);
    if (found != nullptr)
        return reinterpret_cast<std::uintptr_t>(found) + static_cast<std::uint64_t>(symbol.addend);
    if (symbol.optional) return 0;
    throw FormatError("needs " + symbol.name + " from " + symbol.library + ", which nothing here defines");
}

std::size_t wholePages(std::uint64_t size) { return (size + 0x3fff) & ~std::uint64_t{0x3fff}; }

void applyFixups(const File& file, char* start) {
    const auto pointerAt = [start](std::uint64_t address) {
        return reinterpret_cast<std::uint64_t*>(start + address);
    };
    runFixups(
        file, [&](std::uint64_t address) { *pointerAt(address) += reinterpret_cast<std::uintptr_t>(start); },
        [&](std::uint64_t address, const Symbol& symbol) { *pointerAt(address) = addressOf(symbol); });
}

void protect(const Segment& segment, char* start) {
    const std::size_t size = wholePages(segment.size);
    __builtin___clear_cache(start, start + size);
    if (mprotect(start, size, static_cast<int>(segment.protection)) != 0)
        throw FormatError("could not be protected");
}

// The unwinder keeps what it is given for as long as the process lives.
void registerUnwindFrames(const File& file, char* start) {
    auto& frames = *new auto(
        framesFromCompactUnwind(start + file.compactUnwind.address, reinterpret_cast<std::uintptr_t>(start)));
    __register_frame(frames.data());
}

} // namespace

// A library's own addresses begin at 0.
Image map(std::span<const std::byte> bytes) {
    if (!processIsArm64) throw FormatError("is for arm64, this process is not");
    const File file = parse(bytes);
    const std::size_t size = wholePages(file.segments.back().address + file.segments.back().size);
    void* memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw FormatError("could not be mapped");
    auto* start = static_cast<char*>(memory);
    for (const Segment& segment : file.segments)
        std::memcpy(start + segment.address, segment.content.data(), segment.content.size());
    applyFixups(file, start);
    for (const Segment& segment : file.segments)
        protect(segment, start + segment.address);
    if (file.compactUnwind.size != 0) registerUnwindFrames(file, start);
    const auto* first = reinterpret_cast<const Initialiser*>(start + file.initialisers.address);
    return {reinterpret_cast<std::uintptr_t>(start),
            size,
            {first, first + file.initialisers.size / sizeof *first}};
}

} // namespace simulator::macho
