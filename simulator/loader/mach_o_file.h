#pragma once

#include "loader/mach_o_format.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace simulator::macho {

/// Says what is wrong with a file, as the end of a sentence that begins with the file's name.
struct FormatError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Segment {
    std::string name;
    std::uint64_t address;
    std::uint64_t memorySize;
    std::span<const std::byte> content; // may be shorter than the memory, which is zero from there on
    std::uint32_t protection;
};

/// A stretch of the image's memory, at the address the file gives it.
struct Range {
    std::uint64_t address;
    std::uint64_t size;
};

struct Dependency {
    std::string name;
    bool weak;
};

/// Where the opcodes that repair the image's pointers lie.
struct FixupTables {
    std::span<const std::byte> rebase, bind, weakBind, lazyBind;
};

/// What a loader must know of a dynamic library for arm64. Views point into the bytes it was parsed from.
struct File {
    std::vector<Segment> segments;
    std::vector<Dependency> dependencies;
    FixupTables fixups;
    std::vector<Range> initialisers;
    std::optional<Range> compactUnwind, unwindFrames;
};

bool isMachO(std::span<const std::byte> bytes);

/// Reads and checks the load commands. Everything that the result refers to lies inside `bytes`, and every
/// section inside its segment. Throws FormatError.
File parse(std::span<const std::byte> bytes);

} // namespace simulator::macho
