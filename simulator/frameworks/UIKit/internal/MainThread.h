// The rule that views, controllers and alerts belong to the main thread.
#pragma once

#import <Foundation/Foundation.h>

namespace simulator {

// First line of every method that only the main thread may call: raises NSInternalInconsistencyException
// naming the method elsewhere.
inline void mainThreadOnly(id receiver, SEL method) {
    if ([NSThread isMainThread]) return;
    const char* kind =
        object_getClass(receiver) == receiver || class_isMetaClass(object_getClass(receiver)) ? "+" : "-";
    [NSException raise:NSInternalInconsistencyException
                format:@"%s[%@ %@] must be used from the main thread only", kind, [receiver class],
                       NSStringFromSelector(method)];
}

} // namespace simulator
