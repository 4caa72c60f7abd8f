// Another extension's hand in a test: replaces methods to see what is asked of them.
#pragma once

#import "Hooking/Hooking.h"

namespace simulator::test {

// Through the device's hooking framework; `original` receives what calls are passed on to.
template <typename Function>
void replaceMethod(const char* className, SEL selector, Function* replacement, Function** original) {
    MSHookMessageEx(objc_getClass(className), selector, reinterpret_cast<IMP>(replacement),
                    reinterpret_cast<IMP*>(original));
}

} // namespace simulator::test
