// The runtime's look-ups as this release of the device answers them. Defined ahead of the runtime's own, so
// that every caller gets them, the frameworks of this machine included.
#include "device/next_function.h"
#include "device/releases.h"
#include "frameworks/Hooking/HookCalls.h"
#include "frameworks/Hooking/InstallationLog.h"
#include "frameworks/ObjectiveC/Presence.h"

#include <objc/runtime.h>

using simulator::methodIsPresent;

extern "C" {

Class objc_getClass(const char* name) {
    Class found = NEXT_FUNCTION(objc_getClass)(name);
    return found != Nil && simulator::classIsPresent(name) ? found : Nil;
}

BOOL class_respondsToSelector(Class cls, SEL selector) {
    if (cls == Nil || selector == nullptr || !methodIsPresent(cls, selector)) return NO;
    return NEXT_FUNCTION(class_respondsToSelector)(cls, selector);
}

Method class_getInstanceMethod(Class cls, SEL selector) {
    if (cls == Nil || selector == nullptr || !methodIsPresent(cls, selector)) return nullptr;
    class_getSuperclass(cls); // links the class to it, which the runtime's own look-up takes for done
    return NEXT_FUNCTION(class_getInstanceMethod)(cls, selector);
}

Method class_getClassMethod(Class cls, SEL selector) {
    if (cls == Nil) return nullptr;
    return class_getInstanceMethod(object_getClass(reinterpret_cast<id>(cls)), selector);
}

// A method that the stand-in has but the release lacks can be added like any other that is missing.
BOOL class_addMethod(Class cls, SEL selector, IMP implementation, const char* types) {
    const auto add = NEXT_FUNCTION(class_addMethod);
    const auto find = NEXT_FUNCTION(class_getInstanceMethod);
    if (cls == Nil || selector == nullptr) return NO;
    const bool wasPresent = methodIsPresent(cls, selector);
    const IMP installed = simulator::isLoggingAddedMethods()
                              ? simulator::notingCalls(cls, selector, implementation)
                              : implementation;
    bool added = add(cls, selector, installed, types) != NO;
    if (!added && !wasPresent) {
        method_setImplementation(find(cls, selector), installed);
        added = true;
    }
    if (added) simulator::noteAddedMethod(cls, selector);
    simulator::logAddedMethod(cls, selector, implementation, types, added);
    return added ? YES : NO;
}

} // extern "C"
