// Originals that are looked up when they are called: what some hooking frameworks hand out for inherited
// methods.
#pragma once

#include <objc/runtime.h>

namespace simulator {

// A function that passes any call on to what `superclass` has for the selector at that moment, except where
// the result of an arm64 method is a structure returned in memory. There is room for 128 in a process; asking
// for more ends it with a message.
IMP lateOriginal(Class superclass, SEL selector);

} // namespace simulator
