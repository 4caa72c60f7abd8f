// The device's method-hooking framework.
#pragma once

#include "objc/runtime.h"

extern "C" {
// Replaces the method `selector` of `target` (the metaclass for class methods) and stores the implementation
// that it had in `*previous`. A nil class or an unknown method installs nothing.
void MSHookMessageEx(rollkeeper::Class target, rollkeeper::SEL selector, rollkeeper::IMP replacement,
                     rollkeeper::IMP* previous);
} // extern "C"
