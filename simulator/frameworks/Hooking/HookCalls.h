// Which methods of a loaded library were called, how often and when, on a device whose conditions ask for it.
#pragma once

#include <objc/runtime.h>

#include <cstdint>
#include <string>
#include <vector>

namespace simulator {

struct HookCalls {
    std::string method; // "-[PUAlbumListViewController viewWillAppear:]"
    std::uint64_t count;
    double lastCall; // in seconds of the clock that all processes of this machine share
};

// What to install instead of the library's function: the function itself, or one that notes each call and
// passes it on when the conditions say that calls are noted.
IMP notingCalls(Class cls, SEL selector, IMP implementation);

// The methods that were called, in the order of their installation. Any thread.
std::vector<HookCalls> hookCalls();

} // namespace simulator
