#include "device/next_function.h"
#include "frameworks/ObjectiveC/ObjectiveC.h"
#include "frameworks/ObjectiveC/Presence.h"
#include "frameworks/ObjectiveC/Replacement.h"

#import <Foundation/Foundation.h>
#include <objc/message.h>

namespace simulator {
namespace {

void raiseUnrecognised(id receiver, SEL, SEL selector) {
    const bool isClass = class_isMetaClass(object_getClass(receiver));
    [NSException raise:NSInvalidArgumentException
                format:@"%c[%s %s]: unrecognized selector sent to %s %p", isClass ? '+' : '-',
                       object_getClassName(receiver), sel_getName(selector), isClass ? "class" : "instance",
                       receiver];
}

bool overrides(Class cls, SEL selector) {
    return class_getMethodImplementation(cls, selector) !=
           class_getMethodImplementation([NSObject class], selector);
}

bool forwards(Class cls) {
    return overrides(cls, @selector(forwardInvocation:)) ||
           overrides(cls, @selector(forwardingTargetForSelector:));
}

__attribute__((constructor)) void nameClassAndSelectorInTheException() {
    replaceMethod("NSObject", '-', "doesNotRecognizeSelector:", raiseUnrecognised);
}

} // namespace
} // namespace simulator

IMP objc_msgLookup(id receiver, SEL selector) {
    Class cls = object_getClass(receiver);
    const auto responds =
        simulator::nextFunction<"class_respondsToSelector", decltype(class_respondsToSelector)>();
    if (!simulator::methodIsPresent(cls, selector) || (!responds(cls, selector) && !simulator::forwards(cls)))
        simulator::raiseUnrecognised(receiver, @selector(doesNotRecognizeSelector:), selector);
    return objc_msg_lookup(receiver, selector);
}

void* objc_autoreleasePoolPush(void) { return [[NSAutoreleasePool alloc] init]; }
void objc_autoreleasePoolPop(void* pool) { [static_cast<NSAutoreleasePool*>(pool) drain]; }
