#include "hosts/applications/common/screen.h"

#include <stdexcept>

namespace simulator {

namespace {

UIViewController* childInFront(UIViewController* controller) {
    if (UIViewController* presented = [controller presentedViewController]) return presented;
    if ([controller isKindOfClass:[UITabBarController class]])
        return [static_cast<UITabBarController*>(controller) selectedViewController];
    if ([controller isKindOfClass:[UINavigationController class]])
        return [static_cast<UINavigationController*>(controller) topViewController];
    return nil;
}

} // namespace

UIViewController* controllerOnScreen() {
    UIViewController* controller = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    while (UIViewController* next = childInFront(controller))
        controller = next;
    return controller;
}

void waitUntil(const std::function<bool()>& condition, const std::string& what, double timeout) {
    NSDate* end = [NSDate dateWithTimeIntervalSinceNow:timeout];
    while (!condition()) {
        if ([end timeIntervalSinceNow] < 0) throw std::runtime_error("gave up waiting for " + what);
        @autoreleasepool {
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        }
    }
}

void layOutScreen() { [[[UIApplication sharedApplication] keyWindow] layoutIfNeeded]; }

} // namespace simulator
