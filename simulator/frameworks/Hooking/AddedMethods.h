// Lets the runtime's stand-in report methods that a loading library adds.
#pragma once

#include <objc/runtime.h>

namespace simulator {

// Does nothing unless the calling thread is loading a library.
void logAddedMethod(Class cls, SEL selector, IMP implementation, const char* types, bool added);

} // namespace simulator
