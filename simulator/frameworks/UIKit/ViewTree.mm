#import "UIKit/ViewTree.h"

#import "UIKit/UIKit.h"
#import "UIKit/internal/ActionTargets.h"
#import "UIKit/internal/Casts.h"
#import "UIKit/internal/Containers.h"
#import "UIKit/internal/RecognizerState.h"
#import "UIKit/internal/ViewInternals.h"
#include "device/strings.h"

#include <stdexcept>

namespace simulator {

namespace {

UIView* touchAtMiddle(UIView* view, Touch touch) {
    layoutWindows();
    UIWindow* window = [view window];
    if (window == nil) throw std::invalid_argument("the view to touch is not in a window");
    const CGRect bounds = [view bounds];
    const CGPoint middle = CGPointMake(CGRectGetMidX(bounds), CGRectGetMidY(bounds));
    UIView* hit = [window hitTest:[view convertPoint:middle toView:nil] withEvent:nil];
    touch.hitView = [[hit retain] autorelease];
    if (touch.hitView == nil) return nil;
    deliver(touch);
    layoutWindows();
    return touch.hitView;
}

// All buttons in the bars that can be seen.
NSArray* barButtonItems() {
    NSMutableArray* items = [NSMutableArray array];
    for (UIViewController* shown = frontController(); shown != nil; shown = [shown shownChild]) {
        UINavigationController* navigation = as<UINavigationController>(shown);
        UINavigationItem* item = [[navigation topViewController] navigationItem];
        NSArray* tools = [navigation isToolbarHidden] ? nil : [[navigation toolbar] items];
        for (NSArray* bar : {[item leftBarButtonItems], [item rightBarButtonItems], tools})
            if (bar != nil) [items addObjectsFromArray:bar];
    }
    return items;
}

} // namespace

UIViewController* frontController() {
    UIViewController* controller = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    while (UIViewController* presented = [controller presentedViewController])
        controller = presented;
    return controller;
}

UIAlertController* frontAlert() { return as<UIAlertController>(frontController()); }

UIView* tap(UIView* view, unsigned taps) { return touchAtMiddle(view, Touch{.taps = taps}); }

UIView* longPress(UIView* view, double seconds) { return touchAtMiddle(view, Touch{.seconds = seconds}); }

void tapBarButton(std::string_view title) {
    for (UIBarButtonItem* item in barButtonItems()) {
        if (text([item title]) != title) continue;
        const Retained<UIBarButtonItem*> alive(item);
        sendAction([item target], [item action], item);
        return layoutWindows();
    }
    throw std::invalid_argument("no bar button has the title " + std::string(title));
}

void typeText(std::size_t fieldIndex, std::string_view text) {
    NSArray* fields = [frontAlert() textFields];
    if (fieldIndex >= [fields count])
        throw std::invalid_argument("there is no text field " + std::to_string(fieldIndex));
    [[fields objectAtIndex:fieldIndex] setText:string(std::string(text))];
}

void tapAlertAction(std::string_view title) {
    UIAlertController* alert = frontAlert();
    for (UIAlertAction* action in [alert actions]) {
        if (text([action title]) != title || ![action isEnabled]) continue;
        [alert tapAction:action];
        return layoutWindows();
    }
    throw std::invalid_argument("no alert offers the action " + std::string(title));
}

} // namespace simulator
