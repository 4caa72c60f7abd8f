#include "loader/loader.h"

#include <dlfcn.h>

namespace simulator {

bool LoadedLibrary::contains(const void* address) const {
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    for (const LoadedSegment& segment : segments)
        if (wanted - segment.start < segment.size)
            return true;
    return false;
}

LoadResult loadLibrary(const std::string& path) {
    if (dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL) == nullptr)
        return LoadError{dlerror()};
    return LoadedLibrary{path, LoadedLibrary::Format::elf, {}};
}

} // namespace simulator
