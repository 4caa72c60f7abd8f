#include "loader/mach_o_image.h"

#include "loader/fixups.h"
#include "loader/unwind_frames.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <sys/mman.h>

extern "C" void __register_frame(void* begin);

namespace simulator::macho {
namespace {

// Lazy binding is done ahead of time; whoever comes here called through a pointer that was never bound.
[[noreturn]] void trapOnLazyBinding() { std::abort(); }

std::uint64_t addressOf(const Bind& bind) {
    if (bind.symbol == "dyld_stub_binder") return reinterpret_cast<std::uintptr_t>(&trapOnLazyBinding);
    const bool isCName = bind.symbol.starts_with('_');
    void* found = isCName ? dlsym(RTLD_DEFAULT, bind.symbol.c_str() + 1) : nullptr;
    if (found == nullptr && !bind.optional)
        throw FormatError("needs " + bind.symbol + " from " + bind.library + ", which nothing here defines");
    if (found == nullptr) return 0;
    return reinterpret_cast<std::uintptr_t>(found) + static_cast<std::uint64_t>(bind.addend);
}

int hostProtection(std::uint32_t protection) {
    return ((protection & protection::read) != 0 ? PROT_READ : 0) |
           ((protection & protection::write) != 0 ? PROT_WRITE : 0) |
           ((protection & protection::execute) != 0 ? PROT_EXEC : 0);
}

std::size_t wholePages(std::uint64_t size) { return (size + pageSize - 1) / pageSize * pageSize; }

} // namespace

Image::Image(std::span<const std::byte> bytes) : file_(parse(bytes)) {
    firstAddress_ = file_.segments.front().address;
    const Segment& last = file_.segments.back();
    size_ = wholePages(last.address + last.memorySize - firstAddress_);
    void* memory = mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw FormatError(std::string("could not be mapped: ") + std::strerror(errno));
    memory_ = static_cast<std::byte*>(memory);
    try {
        copySegments();
        applyFixups();
        checkInitialisers();
        protectSegments();
        registerUnwindFrames();
    } catch (...) {
        munmap(memory_, size_);
        throw;
    }
}

Image::~Image() {
    if (memory_ != nullptr) munmap(memory_, size_);
}

std::byte* Image::at(std::uint64_t address) const { return memory_ + (address - firstAddress_); }

void Image::copySegments() {
    for (Segment& segment : file_.segments) {
        if (!segment.content.empty())
            std::memcpy(at(segment.address), segment.content.data(), segment.content.size());
        segment.content = {}; // the caller's bytes go before the image does
    }
}

void Image::applyFixups() {
    const auto write = [this](std::uint64_t address, std::uint64_t value) {
        std::memcpy(at(address), &value, sizeof value);
    };
    const Fixups fixups = decodeFixups(file_);
    const std::uint64_t slide = reinterpret_cast<std::uintptr_t>(memory_) - firstAddress_;
    for (const Rebase& rebase : fixups.rebases) {
        std::uint64_t value = 0;
        std::memcpy(&value, at(rebase.address), sizeof value);
        write(rebase.address, value + slide);
    }
    for (const Bind& bind : fixups.binds)
        write(bind.address, addressOf(bind));
    file_.fixups = {};
}

void Image::checkInitialisers() const {
    for (const Range& list : file_.initialisers)
        for (std::uint64_t offset = 0; offset < list.size; offset += sizeof(std::uint64_t)) {
            std::uint64_t function = 0;
            std::memcpy(&function, at(list.address + offset), sizeof function);
            if (function - reinterpret_cast<std::uintptr_t>(memory_) >= size_)
                throw FormatError("has an initialiser outside its segments");
        }
}

void Image::protectSegments() {
    for (const Segment& segment : file_.segments) {
        auto* start = at(segment.address);
        const std::size_t size = wholePages(segment.memorySize);
        __builtin___clear_cache(reinterpret_cast<char*>(start), reinterpret_cast<char*>(start + size));
        if (mprotect(start, size, hostProtection(segment.protection)) != 0)
            throw FormatError(std::string("could not be protected: ") + std::strerror(errno));
    }
}

// The host's exceptions pass through the library's functions, so the unwinder must know their frames. It
// reads DWARF's up to a zero length, which the format does not have: the linker puts them last in their
// segment, before padding.
void Image::registerUnwindFrames() {
    if (file_.compactUnwind) {
        const auto [address, size] = *file_.compactUnwind;
        const auto image = reinterpret_cast<std::uintptr_t>(memory_);
        translatedFrames_ = framesFromCompactUnwind({at(address), size}, image);
    }
    if (file_.unwindFrames) {
        const std::uint64_t end = file_.unwindFrames->address + file_.unwindFrames->size;
        std::uint32_t terminator = 0;
        if (end - firstAddress_ > size_ - sizeof terminator)
            throw FormatError("has unwind information without an end");
        std::memcpy(&terminator, at(end), sizeof terminator);
        if (terminator != 0) throw FormatError("has unwind information that is not followed by padding");
        __register_frame(at(file_.unwindFrames->address));
    }
    if (!translatedFrames_.empty()) __register_frame(translatedFrames_.data());
}

std::vector<LoadedSegment> Image::segments() const {
    std::vector<LoadedSegment> result;
    result.reserve(file_.segments.size());
    for (const Segment& segment : file_.segments)
        result.push_back(
            {segment.name, reinterpret_cast<std::uintptr_t>(at(segment.address)), segment.memorySize});
    return result;
}

std::size_t Image::runInitialisers() const {
    using Initialiser = void (*)(int, const char**, const char**, const char**, const void*);
    std::size_t count = 0;
    for (const Range& list : file_.initialisers)
        for (std::uint64_t offset = 0; offset < list.size; offset += sizeof(Initialiser)) {
            Initialiser initialise = nullptr;
            std::memcpy(static_cast<void*>(&initialise), at(list.address + offset), sizeof initialise);
            initialise(0, nullptr, nullptr, nullptr, nullptr);
            ++count;
        }
    return count;
}

} // namespace simulator::macho
