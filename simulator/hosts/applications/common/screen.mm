#include "hosts/applications/common/screen.h"

#include "hosts/host.h"
#include "photolibrary/library.h"

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

std::size_t photoCount() { return sharedPhotoLibrary().assets({.includeHidden = true}).size(); }

} // namespace

void showRootViewController(UIViewController* controller) {
    UIWindow* window = [[[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease];
    [window setRootViewController:controller];
    [window makeKeyAndVisible];
}

UIViewController* controllerOnScreen() {
    UIViewController* controller = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    while (UIViewController* next = childInFront(controller))
        controller = next;
    return controller;
}

void waitUntil(const std::function<bool()>& condition, const std::string& what, double timeout) {
    if (!Host::runUntil(condition, timeout)) throw std::runtime_error("gave up waiting for " + what);
}

void waitForNewPhoto(const std::function<void()>& action) {
    const std::size_t before = photoCount();
    action();
    waitUntil([&] { return photoCount() > before; }, "a new photo in the library");
}

void layOutScreen() { [[[UIApplication sharedApplication] keyWindow] layoutIfNeeded]; }

} // namespace simulator
