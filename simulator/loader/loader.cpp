#include "loader/loader.h"

#include "loader/mach_o.h"

#include <dlfcn.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <list>
#include <mutex>

namespace simulator {
namespace {

// Never destroyed, since hooks point into the libraries until the very end of the process; a list, because
// callers hold pointers to its elements.
std::mutex registryMutex;
std::list<LoadedLibrary>& registry() {
    static auto& libraries = *new std::list<LoadedLibrary>;
    return libraries;
}

void loadMachO(const std::string& path, std::span<const std::byte> bytes) {
    try {
        const macho::Image image = macho::map(bytes);
        {
            const std::scoped_lock lock(registryMutex);
            registry().push_back({path, image.start, image.size});
        }
        for (const macho::Initialiser initialise : image.initialisers)
            initialise(0, nullptr, nullptr, nullptr, nullptr);
    } catch (const macho::FormatError& error) {
        throw LoadError(path + " " + error.what());
    }
}

} // namespace

void loadLibrary(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream || !std::filesystem::is_regular_file(path)) throw LoadError(path + " cannot be read");
    const std::vector<char> content{std::istreambuf_iterator<char>(stream), {}};
    const auto bytes = std::as_bytes(std::span(content));
    if (macho::isMachO(bytes))
        loadMachO(path, bytes);
    else if (dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL) == nullptr)
        throw LoadError(dlerror());
}

const LoadedLibrary* loadedLibraryContaining(const void* address) {
    const std::scoped_lock lock(registryMutex);
    for (const LoadedLibrary& library : registry())
        if (reinterpret_cast<std::uintptr_t>(address) - library.start < library.size) return &library;
    return nullptr;
}

} // namespace simulator
