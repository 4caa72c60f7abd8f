// Functions that look up where to go each time they are called.
#pragma once

#include <objc/runtime.h>

#include <functional>

namespace simulator {

// A function that passes any call on to what `destination` gives at that moment, on the calling thread,
// except where the result of an arm64 method is a structure returned in memory. It lasts as long as the
// process; there is room for 256, and asking for more ends the process with a message.
IMP trampoline(std::function<IMP()> destination);

} // namespace simulator
