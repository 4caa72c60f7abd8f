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

UIBarButtonItem* itemTitled(NSArray* items, NSString* title) {
    for (UIBarButtonItem* item in items)
        if ([[item title] isEqualToString:title]) return item;
    return nil;
}

} // namespace

UIViewController* controllerOnScreen() {
    UIViewController* controller = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    while (UIViewController* next = childInFront(controller))
        controller = next;
    return controller;
}

void tapBarButton(UIViewController* controller, const std::string& title) {
    UINavigationItem* item = [controller navigationItem];
    NSArray* sides[] = {[item leftBarButtonItems], [item rightBarButtonItems], [controller toolbarItems]};
    for (NSArray* side : sides) {
        UIBarButtonItem* button = itemTitled(side, string(title));
        if (button == nil) continue;
        [[UIApplication sharedApplication] sendAction:[button action]
                                                   to:[button target]
                                                 from:button
                                             forEvent:nil];
        return;
    }
    throw std::runtime_error("no button \"" + title + "\" in the bars of " +
                             text([[controller class] description]));
}

void tapAlertAction(const std::string& title) {
    UIViewController* front = controllerOnScreen();
    if (![front isKindOfClass:[UIAlertController class]])
        throw std::runtime_error("no alert is on the screen to tap \"" + title + "\"");
    auto alert = static_cast<UIAlertController*>(front);
    for (UIAlertAction* action in [alert actions]) {
        if (![[action title] isEqualToString:string(title)]) continue;
        [alert tapAction:action];
        return;
    }
    throw std::runtime_error("the alert \"" + text([alert title]) + "\" has no action \"" + title + "\"");
}

void waitUntil(const std::function<bool()>& condition, const std::string& what, double timeout) {
    NSDate* end = [NSDate dateWithTimeIntervalSinceNow:timeout];
    while (!condition()) {
        if ([end timeIntervalSinceNow] < 0) throw std::runtime_error("waited in vain for " + what);
        @autoreleasepool {
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        }
    }
}

void layOutScreen() { [[[UIApplication sharedApplication] keyWindow] layoutIfNeeded]; }

std::string text(NSString* string) {
    const char* bytes = [string UTF8String];
    return bytes ? bytes : "";
}

NSString* string(const std::string& text) { return [NSString stringWithUTF8String:text.c_str()]; }

} // namespace simulator
