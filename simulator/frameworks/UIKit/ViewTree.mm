#import "UIKit/ViewTree.h"

#import "UIKit/UIKit.h"
#import "UIKit/internal/ControllerState.h"
#import "UIKit/internal/LayoutQueue.h"
#import "UIKit/internal/Strings.h"
#import "UIKit/internal/Touches.h"

#include <stdexcept>
#include <vector>

namespace simulator {

namespace {

UIWindow* keyWindow() {
    UIWindow* window = [[UIApplication sharedApplication] keyWindow];
    if (!window) throw std::invalid_argument("there is no key window");
    return window;
}

UIView* touchAt(UIWindow* window, CGPoint point, Touch touch) {
    const Retained<UIView*> hit([window hitTest:point withEvent:nil]);
    if (!hit) return nil;
    touch.hitView = hit.get();
    touch.pointInWindow = point;
    deliver(touch);
    layoutWindows();
    return hit.autoreleased();
}

UIView* touch(UIView* view, const Touch& touch) {
    layoutWindows();
    UIWindow* window = [view window];
    if (!window) throw std::invalid_argument("the view to touch is not in a window");
    const CGRect bounds = [view bounds];
    const CGPoint middle = CGPointMake(CGRectGetMidX(bounds), CGRectGetMidY(bounds));
    return touchAt(window, [view convertPoint:middle toView:nil], touch);
}

void collectTextFields(UIView* view, NSMutableArray* fields) {
    if ([view isKindOfClass:[UITextField class]]) [fields addObject:view];
    for (UIView* subview in [view subviews])
        collectTextFields(subview, fields);
}

NSArray* textFieldsOnScreen() {
    if (UIAlertController* alert = frontAlert()) return [alert textFields];
    NSMutableArray* fields = [NSMutableArray array];
    collectTextFields(keyWindow(), fields);
    return fields;
}

void addItems(NSMutableArray* all, NSArray* items) {
    if (items) [all addObjectsFromArray:items];
}

// The controllers that the front controller shows, itself first.
void collectShown(UIViewController* controller, std::vector<UIViewController*>& all) {
    all.push_back(controller);
    for (UIViewController* child in [controller shownChildren])
        collectShown(child, all);
}

// All buttons in the bars that can be seen.
NSArray* barButtonItems() {
    NSMutableArray* items = [NSMutableArray array];
    std::vector<UIViewController*> shown;
    if (UIViewController* front = frontController()) collectShown(front, shown);
    for (UIViewController* controller : shown) {
        if (![controller isKindOfClass:[UINavigationController class]]) continue;
        auto* navigation = static_cast<UINavigationController*>(controller);
        UINavigationItem* item = [[navigation topViewController] navigationItem];
        if (![navigation isNavigationBarHidden]) {
            addItems(items, [item leftBarButtonItems]);
            addItems(items, [item rightBarButtonItems]);
        }
        if (![navigation isToolbarHidden]) addItems(items, [[navigation toolbar] items]);
    }
    return items;
}

} // namespace

UIViewController* frontController() {
    UIViewController* controller = [[[UIApplication sharedApplication] keyWindow] rootViewController];
    while (UIViewController* presented = [controller controllerState].presented.get())
        controller = presented;
    return controller;
}

UIAlertController* frontAlert() {
    UIViewController* front = frontController();
    return [front isKindOfClass:[UIAlertController class]] ? static_cast<UIAlertController*>(front) : nil;
}

UIView* tap(UIView* view, unsigned taps) { return touch(view, Touch{.taps = taps}); }

UIView* longPress(UIView* view, double seconds) { return touch(view, Touch{.seconds = seconds}); }

UIView* tapAt(CGPoint point, unsigned taps) {
    layoutWindows();
    return touchAt(keyWindow(), point, Touch{.taps = taps});
}

UIView* longPressAt(CGPoint point, double seconds) {
    layoutWindows();
    return touchAt(keyWindow(), point, Touch{.seconds = seconds});
}

void tapBarButtonItem(UIBarButtonItem* item) {
    if (![item isEnabled])
        throw std::invalid_argument("the bar button is not enabled: " + toStd([item title]));
    const Retained<UIBarButtonItem*> alive(item);
    sendAction([item target], [item action], item);
    layoutWindows();
}

void tapBarButton(std::string_view title) {
    for (UIBarButtonItem* item in barButtonItems())
        if (toStd([item title]) == title) return tapBarButtonItem(item);
    throw std::invalid_argument("no bar button has the title " + std::string(title));
}

void typeText(std::size_t fieldIndex, std::string_view text) {
    NSArray* fields = textFieldsOnScreen();
    if (fieldIndex >= [fields count])
        throw std::invalid_argument("there is no text field " + std::to_string(fieldIndex));
    UITextField* field = [fields objectAtIndex:fieldIndex];
    if (![field becomeFirstResponder]) throw std::invalid_argument("the text field takes no text");
    NSString* typed = toNS(text);
    const NSRange all = NSMakeRange(0, [[field text] length]);
    id delegate = [field delegate];
    if ([delegate respondsToSelector:@selector(textField:shouldChangeCharactersInRange:replacementString:)] &&
        ![delegate textField:field shouldChangeCharactersInRange:all replacementString:typed])
        return;
    [field setText:typed];
    [field sendActionsForControlEvents:UIControlEventEditingChanged];
}

void tapAlertAction(std::string_view title) {
    UIAlertController* alert = frontAlert();
    if (!alert) throw std::invalid_argument("no alert is on the screen to tap " + std::string(title));
    for (UIAlertAction* action in [alert actions]) {
        if (toStd([action title]) != title) continue;
        if (![action isEnabled])
            throw std::invalid_argument("the action is not enabled: " + std::string(title));
        [alert tapAction:action];
        layoutWindows();
        return;
    }
    throw std::invalid_argument("the alert has no action " + std::string(title));
}

} // namespace simulator
