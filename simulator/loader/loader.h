#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>

namespace simulator {

/// Says in one sentence, naming the file, why a library was not loaded.
struct LoadError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Loads the library at `path`, by its content: a shared object of this machine, or, in a process for arm64,
/// a Mach-O dynamic library or bundle for arm64. It stays until the process ends, as on a device. Its
/// initialisers run before this returns, on the calling thread; an exception that one of them lets out passes
/// through. Throws LoadError.
void loadLibrary(const std::string& path);

/// Where a Mach-O library lies in this process; up to the end of its code as in its file.
struct LoadedLibrary {
    std::string path;
    std::uintptr_t start;
    std::size_t size;
};

/// The Mach-O library that holds `address`, or null: for proofs that a function really is its own code.
const LoadedLibrary* loadedLibraryContaining(const void* address);

} // namespace simulator
