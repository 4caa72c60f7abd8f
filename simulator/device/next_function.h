// How a function that stands in front of the C library's or the runtime's calls the one behind it.
#pragma once

#include <dlfcn.h>

// The definition that comes after the simulator's own in link order.
#define NEXT_FUNCTION(name)                                                                                  \
    ([] {                                                                                                    \
        static const auto found = reinterpret_cast<decltype(&(name))>(dlsym(RTLD_NEXT, #name));              \
        return found;                                                                                        \
    }())
