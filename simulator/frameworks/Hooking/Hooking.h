// The method-hooking framework's one function.
#pragma once

#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#ifdef __cplusplus
extern "C" {
#endif

// Replaces the method and hands the original out through `result`. A nil class or a selector that the class
// does not understand changes nothing and leaves `result` as it is; an inherited method is overridden on
// `cls` alone.
void MSHookMessageEx(Class cls, SEL sel, IMP imp, IMP* result);

#ifdef __cplusplus
}
#endif
