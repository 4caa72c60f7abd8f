// Which methods the release of the device has: asked by messages, look-ups and the hooking function.
#pragma once

#include <objc/runtime.h>

namespace simulator {

// Whether this release knows the method, whatever the stand-ins implement. The metaclass stands for class
// methods. Methods without a row in the signature table are known.
// C linkage, because C++ and Objective-C++ spell the type SEL differently in the names of functions.
extern "C" bool methodIsPresent(Class cls, SEL selector);

// A method that was added at run time exists from then on, although no release has it.
void noteAddedMethod(Class cls, SEL selector);

// To be called when the release changes.
void forgetMethodsAbsentBefore();

} // namespace simulator
