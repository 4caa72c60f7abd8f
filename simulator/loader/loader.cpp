#include "loader/loader.h"

#include "loader/mach_o_image.h"

#include <dlfcn.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <list>
#include <mutex>
#include <span>

namespace simulator {
namespace {

#ifdef __aarch64__
constexpr bool processIsArm64 = true;
#else
constexpr bool processIsArm64 = false;
#endif

constexpr char elfMagic[] = {0x7f, 'E', 'L', 'F'};

// Lists, because callers hold pointers to their elements.
struct Registry {
    std::mutex mutex;
    std::list<LoadedLibrary> libraries;
    std::list<macho::Image> images;
};

Registry& registry() {
    // Never destroyed: hooks point into the images until the very end of the process.
    static Registry& instance = *new Registry;
    return instance;
}

LoadedLibrary& remember(LoadedLibrary library) {
    const std::scoped_lock lock(registry().mutex);
    return registry().libraries.emplace_back(std::move(library));
}

const macho::Image& mapImage(std::span<const std::byte> bytes) {
    const std::scoped_lock lock(registry().mutex);
    return registry().images.emplace_back(bytes);
}

LoadResult loadElf(const std::string& path) {
    if (dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL) == nullptr) return LoadError{dlerror()};
    return remember({path, LoadedLibrary::Format::elf, {}});
}

LoadResult loadMachO(const std::string& path, std::span<const std::byte> bytes) {
    try {
        if (!processIsArm64) {
            macho::parse(bytes);
            return LoadError{path + " is for arm64, this process is not"};
        }
        const macho::Image& image = mapImage(bytes);
        LoadedLibrary& library = remember({path, LoadedLibrary::Format::machO, image.segments()});
        library.initialisersRun = image.runInitialisers();
        return library;
    } catch (const macho::FormatError& error) {
        return LoadError{path + " " + error.what()};
    }
}

} // namespace

bool LoadedLibrary::contains(const void* address) const {
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    for (const LoadedSegment& segment : segments)
        if (wanted - segment.start < segment.size) return true;
    return false;
}

LoadResult loadLibrary(const std::string& path) {
    std::error_code problem;
    if (!std::filesystem::is_regular_file(path, problem))
        return LoadError{path + (problem ? " cannot be read: " + problem.message() : " is not a file")};
    std::ifstream stream(path, std::ios::binary);
    if (!stream) return LoadError{path + " cannot be read: " + std::strerror(errno)};
    const std::vector<char> content{std::istreambuf_iterator<char>(stream), {}};
    const auto bytes = std::as_bytes(std::span(content));
    if (bytes.size() >= sizeof elfMagic && std::memcmp(bytes.data(), elfMagic, sizeof elfMagic) == 0)
        return loadElf(path);
    if (macho::isMachO(bytes)) return loadMachO(path, bytes);
    return LoadError{path + " is neither an ELF nor a Mach-O library"};
}

const LoadedLibrary* loadedLibraryContaining(const void* address) {
    const std::scoped_lock lock(registry().mutex);
    for (const LoadedLibrary& library : registry().libraries)
        if (library.contains(address)) return &library;
    return nullptr;
}

} // namespace simulator
