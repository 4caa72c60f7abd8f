#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace simulator {

/// A named stretch of a loaded Mach-O image, in the process's own addresses.
struct LoadedSegment {
    std::string name;
    std::uintptr_t start;
    std::size_t size;
};

/// A library that the loader has brought into this process. It stays loaded until the process ends, as a
/// library does on a device: there is nothing to close.
struct LoadedLibrary {
    enum class Format { elf, machO };

    std::string path;
    Format format;
    /// Where the image lies; empty for an ELF library, which the C library's loader maps.
    std::vector<LoadedSegment> segments;
    /// How many initialisers the loader ran; 0 for an ELF library, whose initialisers the C library's loader
    /// runs.
    std::size_t initialisersRun = 0;

    /// Whether an address of this process lies in the image.
    bool contains(const void* address) const;
};

/// Says in one sentence, naming the file, why a library was not loaded.
struct LoadError {
    std::string message;
};

using LoadResult = std::variant<LoadedLibrary, LoadError>;

/// Loads the library at `path`, by its content: a shared object of this machine, or, in a process for arm64,
/// a Mach-O dynamic library for arm64. Its initialisers run before this returns, on the calling thread; an
/// exception that one of them lets out passes through. Files that are neither, or are damaged, give an error
/// and leave nothing mapped.
LoadResult loadLibrary(const std::string& path);

/// The image that holds `address`, or null: for proofs that a function really is the library's own code.
const LoadedLibrary* loadedLibraryContaining(const void* address);

} // namespace simulator
