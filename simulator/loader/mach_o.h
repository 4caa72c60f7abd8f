#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

/// The steps by which a dynamic library or bundle for arm64 comes into this process.
namespace simulator::macho {

/// Says what is wrong with a file, as the end of a sentence that begins with the file's name.
struct FormatError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A stretch of the image's memory, at the address the file gives it.
struct Range {
    std::uint64_t address, size;
};

struct Segment {
    std::uint64_t address, size;
    std::span<const std::byte> content; // may be shorter than the memory, which is zero from there on
    std::uint32_t protection;           // bits as for mprotect
};

/// What a file says. Views point into the bytes it was parsed from.
struct File {
    std::vector<Segment> segments;
    std::vector<std::string> dependencies;
    std::span<const std::byte> rebases, binds, lazyBinds; // opcodes that repair pointers
    Range initialisers{};
    Range compactUnwind{};
};

bool isMachO(std::span<const std::byte> bytes);

/// Reads the load commands. Throws FormatError when the file is no dynamic library or bundle for arm64 alone,
/// ends early, or has what this loader does not know.
File parse(std::span<const std::byte> bytes);

/// What an import asks for.
struct Symbol {
    std::string name; // with the leading underscore of C names
    std::string library;
    std::int64_t addend = 0;
    bool optional = false; // null when nobody defines it
};

/// Runs the fix-up opcodes. `rebase` gets the address of each pointer that must be moved by as much as the
/// image itself, `bind` that of each import, of the lazy ones, too: everything is bound at once.
void runFixups(const File& file, const std::function<void(std::uint64_t)>& rebase,
               const std::function<void(std::uint64_t, const Symbol&)>& bind);

/// Translates compact unwind information (the section __unwind_info) into call frame information as Linux
/// reads it, so that exceptions of the host pass through the library's functions as they do on a device.
/// `image` is the address in this process that function offsets count from. The result ends with the
/// terminator that __register_frame looks for.
std::vector<std::uint8_t> framesFromCompactUnwind(const char* unwindInfo, std::uint64_t image);

using Initialiser = void (*)(int, const char**, const char**, const char**, const void*);

/// A library in this process, bound; its initialisers, in order, have not run yet.
struct Image {
    std::uintptr_t start;
    std::size_t size;
    std::vector<Initialiser> initialisers;
};

/// Maps the library whose file content is `bytes` into this process, where it stays. Throws FormatError when
/// the file is not sound, this process is not for arm64, or nothing in it defines what the library imports.
Image map(std::span<const std::byte> bytes);

} // namespace simulator::macho
