// The definition that comes after the simulator's own in link order: how a function that stands in front of
// the C library's or the runtime's calls the one behind it.
#pragma once

#include <dlfcn.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace simulator {

struct FunctionName {
    char text[48]{};

    template <std::size_t size> consteval FunctionName(const char (&name)[size]) {
        static_assert(size <= sizeof text);
        for (std::size_t i = 0; i < size; ++i)
            text[i] = name[i];
    }
};

template <FunctionName name, class Function> Function* nextFunction() {
    static Function* const found = [] {
        void* address = dlsym(RTLD_NEXT, name.text);
        if (address == nullptr) {
            std::fprintf(stderr, "simulator: no function %s behind ours\n", name.text);
            std::abort();
        }
        return reinterpret_cast<Function*>(address);
    }();
    return found;
}

} // namespace simulator
