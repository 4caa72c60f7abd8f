// Puts the simulator's own implementation in place of a method of GNUstep's Foundation.
#pragma once

#include "device/next_function.h"

#include <objc/runtime.h>

#include <cstdio>
#include <cstdlib>

namespace simulator {

// Returns the implementation that was there. Classes and selectors go by name, because replacements are
// installed while the simulator is being loaded, when its own references to selectors are not ready yet.
template <class Function>
Function* replaceMethod(const char* className, char kind, const char* selector, Function* replacement) {
    Class cls = objc_lookUpClass(className);
    if (kind == '+') cls = object_getClass(reinterpret_cast<id>(cls));
    const auto find = NEXT_FUNCTION(class_getInstanceMethod);
    Method method = find(cls, sel_registerName(selector));
    if (method == nullptr) {
        std::fprintf(stderr, "simulator: Foundation has no method %c[%s %s]\n", kind, className, selector);
        std::abort();
    }
    return reinterpret_cast<Function*>(method_setImplementation(method, reinterpret_cast<IMP>(replacement)));
}

} // namespace simulator
