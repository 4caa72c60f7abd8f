#include "device/next_function.h"
#import "frameworks/ObjectiveC/MainThreadOnly.h"
#include "frameworks/ObjectiveC/ObjectiveC.h"
#include "frameworks/ObjectiveC/Presence.h"
#include "frameworks/ObjectiveC/Replacement.h"

#import <Foundation/Foundation.h>
#include <objc/message.h>
#include <pthread.h>

@implementation NSObject (MainThreadOnly)
+ (BOOL)isMainThreadOnly {
    return NO;
}
@end

namespace simulator {
namespace {

void raiseUnrecognised(id receiver, SEL, SEL selector) {
    const bool isClass = class_isMetaClass(object_getClass(receiver));
    [NSException raise:NSInvalidArgumentException
                format:@"%c[%s %s]: unrecognized selector sent to %s %p", isClass ? '+' : '-',
                       object_getClassName(receiver), sel_getName(selector), isClass ? "class" : "instance",
                       receiver];
}

const pthread_t mainThread = pthread_self(); // the simulator is loaded on it

bool overrides(Class cls, SEL selector) {
    const auto find = NEXT_FUNCTION(class_getInstanceMethod);
    Class root = [NSObject class];
    return find(cls, selector) != find(class_isMetaClass(cls) ? object_getClass(root) : root, selector);
}

bool forwards(Class cls) {
    return overrides(cls, @selector(forwardInvocation:)) ||
           overrides(cls, @selector(forwardingTargetForSelector:));
}

void requireMainThread(id receiver, SEL selector) {
    Class cls = object_getClass(receiver);
    const bool isClass = class_isMetaClass(cls);
    if (![isClass ? receiver : cls isMainThreadOnly] || !overrides(cls, selector)) return;
    [NSException raise:NSInternalInconsistencyException
                format:@"%c[%s %s] must be used from the main thread only", isClass ? '+' : '-',
                       object_getClassName(receiver), sel_getName(selector)];
}

__attribute__((constructor)) void nameClassAndSelectorInTheException() {
    replaceMethod("NSObject", '-', "doesNotRecognizeSelector:", raiseUnrecognised);
}

} // namespace
} // namespace simulator

IMP objc_msgLookup(id receiver, SEL selector) {
    Class cls = object_getClass(receiver);
    const auto responds = NEXT_FUNCTION(class_respondsToSelector);
    if (!simulator::methodIsPresent(cls, selector) || (!responds(cls, selector) && !simulator::forwards(cls)))
        simulator::raiseUnrecognised(receiver, @selector(doesNotRecognizeSelector:), selector);
    if (!pthread_equal(pthread_self(), simulator::mainThread))
        simulator::requireMainThread(receiver, selector);
    return objc_msg_lookup(receiver, selector);
}

void* objc_autoreleasePoolPush(void) { return [[NSAutoreleasePool alloc] init]; }
void objc_autoreleasePoolPop(void* pool) { [static_cast<NSAutoreleasePool*>(pool) drain]; }
